// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/WindowHost.h"

#include "core/mTraduction.h"
#include "ui/look/ForReaders.h"
#include "ui/text/Localisation.h"
#include "ui/text/Mnemonics.h"
#include "ui/window/FileChooser.h"
#include "ui/window/frmLeftOut.h"
#include "ui/window/frmProgress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Loops yield once an item, and a look at an empty queue costs more than most items do. No one sees a pause this long.
constexpr qint64 yieldedEvery = 5;

// Boxes stand over the window that the user works in, or the one that has just come up.
QWidget* Owner() {
    if (QWidget* const modal = QApplication::activeModalWidget(); modal != nullptr)
        return modal;
    if (QWidget* const active = QApplication::activeWindow(); active != nullptr)
        return active;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

QMessageBox::Icon SignOf(Host::Icon icon) {
    switch (icon) {
    case Host::Icon::Critical:
        return QMessageBox::Critical;
    case Host::Icon::Exclamation:
        return QMessageBox::Warning;
    case Host::Icon::Question:
        return QMessageBox::Question;
    case Host::Icon::Information:
        return QMessageBox::Information;
    case Host::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

struct Choice {
    QMessageBox::StandardButton Button;
    Host::Answer Means;
    QString Key;
};

// The first one is pressed by Enter, where nothing else is asked for.
QList<Choice> ChoicesOf(Host::Buttons buttons) {
    const Choice yes{QMessageBox::Yes, Host::Answer::Yes, u"Yes"_s};
    const Choice no{QMessageBox::No, Host::Answer::No, u"No"_s};
    const Choice cancel{QMessageBox::Cancel, Host::Answer::Cancel, u"Cancel"_s};
    switch (buttons) {
    case Host::Buttons::YesNo:
        return {yes, no};
    case Host::Buttons::YesNoCancel:
        return {yes, no, cancel};
    case Host::Buttons::SaveCancel:
        return {{QMessageBox::Save, Host::Answer::Save, u"Save"_s}, cancel};
    case Host::Buttons::Ok:
        break;
    }
    return {{QMessageBox::Ok, Host::Answer::Ok, u"OK"_s}};
}

// Escape and the cross mean Cancel, or Ok where there is nothing else. A box of Yes and No has neither, whatever the
// toolkit would take them for.
class MessageBox : public QMessageBox {
public:
    MessageBox(QWidget* owner, bool mustBeAnswered) : QMessageBox(owner), mustBeAnswered_(mustBeAnswered) {
        if (mustBeAnswered_)
            setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!mustBeAnswered_ || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent* event) override {
        if (mustBeAnswered_)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

private:
    bool mustBeAnswered_;
};

class WindowProgress : public Progress {
public:
    /// A window that is released goes to `left`, which outlives this object.
    explicit WindowProgress(std::unique_ptr<frmProgress>& left)
        : window_(std::make_unique<frmProgress>()),
          left_(left) {
        window_->show();
    }

    void SetText(const QString& text) override { window_->SetText(text); }

    void SetValue(int percent) override { window_->SetValue(percent); }

    void Hide() override { window_->hide(); }

    [[nodiscard]] bool Cancelled() const override { return window_->Cancelled(); }

    void Cancel() override { window_->Cancel(); }

    void StopTimer() override { window_->StopTimer(); }

    void Release() override { released_ = true; }

    ~WindowProgress() override {
        if (!released_)
            return;
        window_->LetGo();
        left_ = std::move(window_);
    }

private:
    std::unique_ptr<frmProgress> window_;
    std::unique_ptr<frmProgress>& left_;
    bool released_ = false;
};

} // namespace

WindowHost::WindowHost() = default;

WindowHost::~WindowHost() = default;

Host::Answer WindowHost::Message(const QString& text, Icon icon, Buttons buttons, const QString& title,
                                 std::optional<Answer> defaultAnswer) {
    MessageBox box(Owner(), buttons == Buttons::YesNo);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(mTraduction::DisplayText(text));
    box.setIcon(SignOf(icon));
    // That it is an alert is told already.
    if (auto* const sign = box.findChild<QLabel*>(u"qt_msgboxex_icon_label"_s))
        ForReaders::Hide(*sign);
    const QList<Choice> choices = ChoicesOf(buttons);
    QStringList texts;
    for (const Choice& choice : choices)
        texts += mTraduction::GetText(choice.Key);
    if (texts.size() > 1)
        texts = Mnemonics::Spread(texts); // a box takes the letter without the Alt key, too
    for (const Choice& choice : choices) {
        box.addButton(choice.Button)->setText(texts.takeFirst());
        if (choice.Means == defaultAnswer.value_or(choices.constFirst().Means))
            box.setDefaultButton(choice.Button);
    }
    const int pressed = box.exec();
    for (const Choice& choice : choices) {
        if (choice.Button == pressed)
            return choice.Means;
    }
    return choices.constLast().Means; // the program ends below the box
}

void WindowHost::MessageWithList(const QString& text, const QStringList& lines) {
    frmLeftOut(text, lines, Owner()).exec();
}

std::optional<QString> WindowHost::InputBox(const QString& prompt, const QString& title, const QString& text) {
    QInputDialog dialog(Owner());
    dialog.setWindowTitle(title);
    dialog.setLabelText(mTraduction::DisplayText(prompt));
    dialog.setTextValue(text);
    dialog.setOkButtonText(mTraduction::GetText(u"OK"_s));
    dialog.setCancelButtonText(mTraduction::GetText(u"Cancel"_s));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.textValue();
}

void WindowHost::Beep() {
    QApplication::beep();
}

std::optional<QString> WindowHost::OpenFileName(const FileDialog& dialog) {
    return FileChooser::FileToOpen(Owner(), dialog);
}

QStringList WindowHost::OpenFileNames(const FileDialog& dialog) {
    return FileChooser::FilesToOpen(Owner(), dialog);
}

std::optional<QString> WindowHost::SaveFileName(const FileDialog& dialog) {
    return FileChooser::FileToSave(Owner(), dialog);
}

std::optional<QString> WindowHost::ChooseFolder(const QString& title, const QString& folder) {
    return FileChooser::Folder(Owner(), title, folder);
}

std::unique_ptr<Progress> WindowHost::ShowProgress() {
    left_.reset();
    return std::make_unique<WindowProgress>(left_);
}

void WindowHost::Yield() {
    if (yielding_ || (yielded_.isValid() && yielded_.elapsed() < yieldedEvery))
        return;
    const QScopedValueRollback yielding(yielding_, true);
    QCoreApplication::processEvents();
    yielded_.start();
}
