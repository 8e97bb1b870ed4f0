// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/WindowHost.h"

#include "core/mTraduction.h"
#include "platform/Paths.h"
#include "ui/text/FileFilter.h"
#include "ui/text/Localisation.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

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

// The last one is what closing the box without a choice means.
QList<Choice> ChoicesOf(Host::Buttons buttons) {
    const Choice yes{QMessageBox::Yes, Host::Answer::Yes, u"Yes"_s};
    const Choice no{QMessageBox::No, Host::Answer::No, u"No"_s};
    switch (buttons) {
    case Host::Buttons::YesNo:
        return {yes, no};
    case Host::Buttons::YesNoCancel:
        return {yes, no, {QMessageBox::Cancel, Host::Answer::Cancel, u"Cancel"_s}};
    case Host::Buttons::Ok:
        break;
    }
    return {{QMessageBox::Ok, Host::Answer::Ok, u"OK"_s}};
}

std::optional<QString> Ask(const Host::FileDialog& wanted, QFileDialog::AcceptMode mode) {
    QFileDialog dialog(Owner(), wanted.Title);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setNameFilters(ToNameFilters(wanted.Filter));
    dialog.setDefaultSuffix(wanted.DefaultExtension);
    if (!wanted.Folder.isEmpty())
        dialog.setDirectory(Paths::ToNative(wanted.Folder));
    if (!wanted.DefaultName.isEmpty())
        dialog.selectFile(Paths::ToNative(wanted.DefaultName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return Paths::FromNative(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

} // namespace

WindowHost::WindowHost(ProgressWindowMaker maker) : maker_(std::move(maker)) {}

WindowHost::~WindowHost() = default;

Host::Answer WindowHost::Message(const QString& text, Icon icon, Buttons buttons, const QString& title) {
    QMessageBox box(Owner());
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(mTraduction::DisplayText(text));
    box.setIcon(SignOf(icon));
    const QList<Choice> choices = ChoicesOf(buttons);
    for (const Choice& choice : choices)
        box.addButton(choice.Button)->setText(mTraduction::GetText(choice.Key));
    box.setDefaultButton(choices.constFirst().Button);
    box.setEscapeButton(choices.constLast().Button);
    const int pressed = box.exec();
    for (const Choice& choice : choices) {
        if (choice.Button == pressed)
            return choice.Means;
    }
    return choices.constLast().Means;
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
    return Ask(dialog, QFileDialog::AcceptOpen);
}

std::optional<QString> WindowHost::SaveFileName(const FileDialog& dialog) {
    return Ask(dialog, QFileDialog::AcceptSave);
}

void WindowHost::ShowProgress() {
    progress_ = maker_();
    progress_->Widget()->show();
}

void WindowHost::SetProgressText(const QString& text) {
    if (progress_)
        progress_->SetText(mTraduction::DisplayText(text));
}

void WindowHost::SetProgressValue(int percent) {
    if (progress_)
        progress_->SetValue(percent);
}

void WindowHost::HideProgress() {
    if (progress_)
        progress_->Widget()->hide();
}

bool WindowHost::ProgressCancelled() const {
    return progress_ && progress_->Cancelled();
}

void WindowHost::CancelProgress() {
    if (progress_)
        progress_->Cancel();
}

void WindowHost::StopProgressTimer() {
    if (progress_)
        progress_->StopTimer();
}

void WindowHost::UnloadProgress() {
    progress_.reset();
}

void WindowHost::Yield() {
    if (yielded_.isValid() && yielded_.elapsed() < yieldedEvery)
        return;
    yielded_.start(); // before and after: what runs now may yield too
    QCoreApplication::processEvents();
    yielded_.start();
}
