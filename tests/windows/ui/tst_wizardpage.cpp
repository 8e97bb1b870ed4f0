// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "tests/support/World.h"
#include "tests/windows/SmallScreens.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/WizardPage.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class Page : public WizardPage {
public:
    explicit Page(const QString& next = u"Next"_s) {
        auto* layout = new QVBoxLayout(Body());
        auto* caption = new QLabel;
        caption->setProperty("Tag", u"FilesToExport"_s);
        caption->setObjectName(u"lblText"_s);
        layout->addWidget(caption);
        auto* box = new QLineEdit;
        layout->addWidget(box);
        caption->setBuddy(box);
        Localise(u"ExportFiles"_s, next);
    }

    using WizardPage::AddMnemonics;
    using WizardPage::CancelButton;
    using WizardPage::NextButton;
    using WizardPage::PreviousButton;

    void Previous() override { Done += u'p'; }

    void Next() override { Done += u'n'; }

    QString Done;
};

} // namespace

class tst_wizardpage : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nNext=Weiter\r\nPrevious=Zur\xFC"
                            "ck\r\nCancel=Abbrechen\r\nClose=Zumachen\r\n"
                            "ExportFiles=Dateien ausgeben\r\nFilesToExport=Dateien:\r\n");
        world_->Start();
        page_ = std::make_unique<Page>();
    }

    void cleanup() {
        page_.reset();
        world_.reset();
    }

    void pageAndBodyHaveTheirTexts() {
        QCOMPARE(page_->windowTitle(), u"Brindock 2005"_s);
        QCOMPARE(Part<QLabel>("Label1")->text(), u"Dateien ausgeben"_s);
        QCOMPARE(Part<QLabel>("lblText")->text(), u"Dateien:"_s);
        QCOMPARE(page_->PreviousButton()->text(), u"Zur\u00FCck"_s);
        QCOMPARE(page_->NextButton()->text(), u"Weiter"_s);
        QCOMPARE(page_->CancelButton()->text(), u"Abbrechen"_s);
        QCOMPARE(page_->accessibleName(), u"Dateien ausgeben"_s);
    }

    void buttonsAndCaptionsGetKeysOfTheirOwn() {
        page_->AddMnemonics();
        QCOMPARE(page_->NextButton()->text(), u"&Weiter"_s);
        QCOMPARE(page_->CancelButton()->text(), u"&Abbrechen"_s);
        QCOMPARE(page_->PreviousButton()->text(), u"&Zur\u00FCck"_s);
        QCOMPARE(Part<QLabel>("lblText")->text(), u"&Dateien:"_s);
        Show();
        page_->NextButton()->setFocus();
        QTest::keyClick(page_.get(), Qt::Key_D, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), page_->findChild<QLineEdit*>());
    }

    void theLastPagesNextButtonMayHaveAnotherText() { QCOMPARE(Page(u"Close"_s).NextButton()->text(), u"Zumachen"_s); }

    void theVersionLineStandsTwice() {
        const QString version = u"Brindock 2005 v"_s + mMain::VersionText();
        QCOMPARE(Part<QLabel>("Label5")->text(), version);
        QCOMPARE(Part<QLabel>("Label6")->text(), version);
    }

    void allPagesHaveOneSize() {
        Page other(u"Close"_s);
        other.show();
        page_->show();
        QCOMPARE(page_->size(), other.size());
        QCOMPARE(page_->size(), QSize(600, 440));
        QVERIFY(FitsSmallScreens(*page_));
    }

    void buttonsRunWhatThePageDoes() {
        Show();
        QVERIFY(!page_->PreviousButton()->isEnabled());
        page_->PreviousButton()->setEnabled(true);
        QTest::mouseClick(page_->PreviousButton(), Qt::LeftButton);
        QTest::mouseClick(page_->NextButton(), Qt::LeftButton);
        QCOMPARE(page_->Done, u"pn"_s);
        QVERIFY(page_->isVisible());
        QTest::mouseClick(page_->CancelButton(), Qt::LeftButton);
        QVERIFY(!page_->isVisible());
    }

    void enterIsNext() {
        Show();
        QTest::keyClick(page_->findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(page_->Done, u"n"_s);
        page_->NextButton()->setEnabled(false);
        QTest::keyClick(page_->findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(page_->Done, u"n"_s);
    }

    void escapeIsCancel() {
        Show();
        QTest::keyClick(page_.get(), Qt::Key_Escape);
        QVERIFY(!page_->isVisible());
        QCOMPARE(page_->Done, QString());
    }

    void theCrossIsCancelToo() {
        Show();
        page_->close();
        QVERIFY(!page_->isVisible());
        QCOMPARE(page_->result(), static_cast<int>(QDialog::Rejected));
    }

    void escapeAndCrossAreNextWhereNothingIsLeftToCancel() {
        Show();
        page_->CancelButton()->setEnabled(false);
        QTest::keyClick(page_.get(), Qt::Key_Escape);
        page_->close();
        QCOMPARE(page_->Done, u"nn"_s);
    }

    void aPageThatWorksStays() {
        Show();
        page_->CancelButton()->setEnabled(false);
        page_->NextButton()->setEnabled(false);
        QTest::keyClick(page_.get(), Qt::Key_Escape);
        page_->close();
        QVERIFY(page_->isVisible());
        QCOMPARE(page_->Done, QString());
    }

    void theKeyboardBeginsInTheBodyAndTheTabKeyGoesOnToTheButtons() {
        Show();
        QCOMPARE(QApplication::focusWidget(), page_->findChild<QLineEdit*>());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), page_->NextButton());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), page_->CancelButton());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), page_->findChild<QLineEdit*>());
    }

private:
    template <typename Control>
    Control* Part(const char* name) {
        return page_->findChild<Control*>(QString::fromLatin1(name));
    }

    void Show() {
        page_->show();
        page_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page_.get()));
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<Page> page_;
};

WINDOW_TEST(tst_wizardpage)
#include "tst_wizardpage.moc"
