// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/text/Localisation.h"

#include "platform/RuntimeError.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

/// A control with both, which notes the order of the assignments.
class CaptionAndText : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QString text READ Text WRITE SetText)
public:
    using QWidget::QWidget;

    [[nodiscard]] QString Caption() const { return caption_; }

    [[nodiscard]] QString Text() const { return text_; }

    void SetCaption(const QString& caption) {
        caption_ = caption;
        order_ += u"Caption "_s;
    }

    void SetText(const QString& text) {
        text_ = text;
        order_ += u"Text "_s;
    }

    [[nodiscard]] QString Order() const { return order_; }

private:
    QString caption_;
    QString text_;
    QString order_;
};

/// A control that refuses its caption.
class Refusing : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
public:
    using QWidget::QWidget;

    [[nodiscard]] QString Caption() const { return {}; }

    void SetCaption(const QString& /*caption*/) { throw RuntimeError(ErrorNumber::InvalidProperty, u"no"_s); }
};

template <typename Control>
Control* Tagged(QWidget& window, const QString& tag) {
    auto* const control = new Control(&window);
    control->setProperty("Tag", tag);
    return control;
}

} // namespace

class tst_localisation : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nHello=Bonjour\r\nTwo=un\\ndeux\r\nTitle=Fen\xEAtre\r\nB=&Ouvrir\r\n");
        world_->Start();
    }

    void cleanup() { world_.reset(); }

    void everyKindOfControlShowsTheTextOfItsTag() {
        QWidget window;
        auto* const label = Tagged<QLabel>(window, u"Hello"_s);
        auto* const button = Tagged<QPushButton>(window, u"B"_s);
        auto* const box = Tagged<QCheckBox>(window, u"Hello"_s);
        auto* const group = Tagged<QGroupBox>(window, u"Hello"_s);
        auto* const line = Tagged<QLineEdit>(window, u"Hello"_s);
        auto* const plain = Tagged<QPlainTextEdit>(window, u"Hello"_s);
        auto* const menu = Tagged<QMenu>(window, u"Hello"_s);
        auto* const action = new QAction(&window);
        action->setProperty("Tag", u"Hello"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(label->text(), u"Bonjour"_s);
        QCOMPARE(button->text(), u"&Ouvrir"_s);
        QCOMPARE(box->text(), u"Bonjour"_s);
        QCOMPARE(group->title(), u"Bonjour"_s);
        QCOMPARE(line->text(), u"Bonjour"_s);
        QCOMPARE(plain->toPlainText(), u"Bonjour"_s);
        QCOMPARE(menu->title(), u"Bonjour"_s);
        QCOMPARE(action->text(), u"Bonjour"_s);
    }

    void aControlWithACaptionAndATextGetsBothTheCaptionFirst() {
        QWidget window;
        auto* const both = Tagged<CaptionAndText>(window, u"Hello"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(both->Caption(), u"Bonjour"_s);
        QCOMPARE(both->Text(), u"Bonjour"_s);
        QCOMPARE(both->Order(), u"Caption Text "_s);
    }

    void aComboBoxThatCanBeEditedTakesTheText() {
        QWidget window;
        auto* const combo = Tagged<QComboBox>(window, u"Hello"_s);
        combo->setEditable(true);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(combo->currentText(), u"Bonjour"_s);
    }

    void aControlWithoutATagKeepsItsBuiltInText() {
        QWidget window;
        QLabel label(u"Fichier"_s, &window);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(label.text(), u"Fichier"_s);
    }

    void aMissingKeyShowsTheKeyAndNotTheBuiltInText() {
        QWidget window;
        auto* const label = Tagged<QLabel>(window, u"NoSuchKey"_s);
        label->setText(u"Fichier"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(label->text(), u"NoSuchKey"_s);
    }

    void aMissingKeyIsLoggedOnceThoughItIsAssignedTwice() {
        QWidget window;
        Tagged<CaptionAndText>(window, u"NoSuchKey"_s);
        mTraduction::ApplyLanguage(&window);
        const QByteArray log = World::ReadFile(world_->ProgramFolder() + u"\\localization.log"_s);
        QCOMPARE(log.count("ID=NoSuchKey"), 1);
    }

    void controlsAreNamedInTheWindowsOrderWithTheirChildrenBeforeTheNext() {
        QWidget window;
        auto* const outer = Tagged<QGroupBox>(window, u"K1"_s);
        auto* const inner = new QLabel(outer);
        inner->setProperty("Tag", u"K2"_s);
        Tagged<QLabel>(window, u"K3"_s);
        window.setProperty("Tag", u"K4"_s);
        mTraduction::ApplyLanguage(&window);
        const QByteArray log = World::ReadFile(world_->ProgramFolder() + u"\\localization.log"_s);
        QVERIFY(log.indexOf("ID=K1") >= 0);
        QVERIFY(log.indexOf("ID=K1") < log.indexOf("ID=K2"));
        QVERIFY(log.indexOf("ID=K2") < log.indexOf("ID=K3"));
        QVERIFY(log.indexOf("ID=K3") < log.indexOf("ID=K4"));
    }

    void aControlThatRefusesIsPassedOver() {
        QWidget window;
        Tagged<Refusing>(window, u"Hello"_s);
        Tagged<QSpinBox>(window, u"Hello"_s); // its text can't be written
        auto* const label = Tagged<QLabel>(window, u"Hello"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(label->text(), u"Bonjour"_s);
    }

    void theWindowsOwnTagIsItsTitle() {
        QWidget window;
        window.setWindowTitle(u"built in"_s);
        window.setProperty("Tag", u"Title"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(window.windowTitle(), u"Fen\u00EAtre"_s);
    }

    void aWindowWithoutATagKeepsItsTitle() {
        QWidget window;
        window.setWindowTitle(u"Brindock 2005"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(window.windowTitle(), u"Brindock 2005"_s);
    }

    void lineBreaksAreTheToolkitsOwn() {
        QWidget window;
        auto* const label = Tagged<QLabel>(window, u"Two"_s);
        mTraduction::ApplyLanguage(&window);
        QCOMPARE(label->text(), u"un\ndeux"_s);
    }

private:
    std::unique_ptr<World> world_;
};

WINDOW_TEST(tst_localisation)
#include "tst_localisation.moc"
