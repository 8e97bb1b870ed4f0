// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/install/AddFilesTest.h"

#include <QComboBox>
#include <QGroupBox>
#include <QTimer>

using namespace Qt::StringLiterals;

class tst_addfiles1 : public AddFilesTest {
    Q_OBJECT
private:
    QComboBox* Games() { return Part<QComboBox>("cbGame"); }

    QGroupBox* Frame() { return Part<QGroupBox>("frmInformations"); }

    void Browse(const QString& file) {
        host_->FileNames.emplace_back(file);
        Press("cmdBrowse");
    }

private Q_SLOTS:

    void cleanup() { End(); }

    void thePageHasItsTexts() {
        Begin({0});
        Open();
        QCOMPARE(wizard_->Page()->windowTitle(), u"Brindock 2005"_s);
        QCOMPARE(Text("Label1"), u"Add files"_s);
        QVERIFY(Text("Label2").startsWith(u"Choose a file to add."_s));
        QCOMPARE(Text("lblText"), u"File to add:"_s);
        QCOMPARE(Frame()->title(), u"Information"_s);
        QCOMPARE(Text("Label3"), u"Size:"_s);
        QCOMPARE(Text("Label4"), u"File type:"_s);
        QCOMPARE(Text("lblFileContentCaption"), u"Content:"_s);
        QCOMPARE(Text("Label5"), u"Brindock 2005 v3.5.4"_s);
        QCOMPARE(Text("Label6"), u"Brindock 2005 v3.5.4"_s);
    }

    // It has no key: the built-in text stays, in every language. This is meant.
    void theGamesCaptionKeepsItsBuiltInText() {
        Begin({0});
        Open();
        QCOMPARE(Text("Label7").remove(u'&'), u"Jeu :"_s);
        QCOMPARE(Games()->accessibleName(), u"Game"_s);
    }

    // The file may be another one since the row was selected.
    void aClickOnTheSelectedGameCounts() {
        Begin({2, 3});
        Open(Put(u"a.map"_s));
        QTest::keyClick(Games(), Qt::Key_Down);
        QCOMPARE(Games()->currentIndex(), 1);
        Browse(Put(u"shellmap1.map"_s));
        const auto before = host_->Messages.size();
        Q_EMIT Games()->activated(1);
        QCOMPARE(Games()->currentIndex(), 0);
        QCOMPARE(host_->Messages.size(), before + 1);
    }

    void beforeAFileIsChosenThereIsNoInformationAndNoNext() {
        Begin({0, 1});
        Open();
        QVERIFY(!Frame()->isVisible());
        QVERIFY(Part<QWidget>("picHint")->isVisible());
        QVERIFY(!Button("cmdNext")->isEnabled());
        QVERIFY(!Button("cmdPrevious")->isEnabled());
        QCOMPARE(Games()->count(), 2);
        QCOMPARE(Games()->currentText(), u"Generals"_s);
    }

    void aMapIsShownInALowFrame() {
        Begin({0});
        Open();
        Browse(Put(u"Alpine Assault.map"_s, QByteArray(1234567, 'm')));
        QVERIFY(Frame()->isVisible() && !Part<QWidget>("picHint")->isVisible());
        QCOMPARE(Text("lblFile"), u"Alpine Assault.map"_s);
        QCOMPARE(Text("lblSize"), u"1,206 KB"_s);
        QCOMPARE(Text("lblFileType"), u"Map"_s);
        QVERIFY(!Part<QLabel>("lblFileContent")->isVisible() && !Part<QLabel>("lblFileContentCaption")->isVisible());
        QCOMPARE(Frame()->height(), 108);
        QVERIFY(Games()->isEnabled() && Button("cmdNext")->isEnabled());
    }

    void aZipIsShownInAHighFrameWithItsContent() {
        Begin({0});
        Open();
        Browse(PutZip(u"a.zip"_s, {{.Name = "a.map"}, {.Name = "readme.txt"}}));
        QCOMPARE(Text("lblFileType"), u"ZIP archive"_s);
        QCOMPARE(Text("lblFileContent"), u"2 file(s)"_s);
        QVERIFY(Part<QLabel>("lblFileContent")->isVisible() && Part<QLabel>("lblFileContentCaption")->isVisible());
        QCOMPARE(Frame()->height(), 124);
    }

    void aCancelledDialogChangesNothing() {
        Begin({0});
        Open();
        host_->FileNames.emplace_back(std::nullopt);
        Press("cmdBrowse");
        QVERIFY(!Frame()->isVisible());
        QVERIFY(!Button("cmdNext")->isEnabled());
    }

    void aRefusedFileIsToldUnderItsName() {
        Begin({0});
        Open();
        Browse(Put(u"a.MAP"_s));
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(host_->Messages[0].Title, u"a.MAP"_s);
        QCOMPARE(host_->Messages[0].Text, u"This type of file is not supported."_s);
        QVERIFY(!Frame()->isVisible());
    }

    void theZeroHourShellMapTakesTheChoiceAwayUntilAnotherFileIsChosen() {
        Begin({0, 1});
        Open();
        Browse(Put(u"ShellMapMD.map"_s));
        QCOMPARE(Games()->currentIndex(), 1);
        QVERIFY(!Games()->isEnabled());
        Browse(Put(u"b.map"_s));
        QVERIFY(Games()->isEnabled());
    }

    void theSecondRowJumpsBackForTheShellMapOfGenerals() {
        Begin({2, 3});
        Open();
        Browse(Put(u"shellmap1.map"_s));
        Games()->setFocus();
        QTest::keyClick(Games(), Qt::Key_Down);
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(host_->Messages[0].Text, u"This shell map cannot be installed for the selected game."_s);
        QCOMPARE(Games()->currentIndex(), 0);
    }

    void nextStaysForTheShellMapOfGeneralsInZeroHour() {
        Begin({1});
        Open();
        Browse(Put(u"shellmap1.map"_s));
        Press("cmdNext");
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(Shown(), u"frmAddFiles1"_s);
    }

    void theCommandLinesFileIsThereWhenThePageIs() {
        Begin({0});
        mMain::AddFileRequested = true;
        mMain::CommandFileArgument = Put(u"my map.map"_s, QByteArray(1234567, 'm'));
        Open();
        QCOMPARE(Text("lblFile"), u"my map.map"_s);
        QCOMPARE(Text("lblSize"), u"1205 KB"_s);
        QVERIFY(Button("cmdNext")->isEnabled());
    }

    void aFileThatIsHandedOverCountsAsChosenInTheDialog() {
        Begin({0});
        Open(Put(u"my map.map"_s, QByteArray(1234567, 'm')));
        QCOMPARE(Text("lblSize"), u"1,206 KB"_s);
    }

    void aFileCanBeDropped() {
        Begin({0});
        Open();
        QVERIFY(Drop(wizard_->Page(), {Put(u"My map.map"_s)}));
        QCOMPARE(Text("lblFile"), u"My map.map"_s);
        QVERIFY(Button("cmdNext")->isEnabled());
    }

    void twoFilesAreNotTaken() {
        Begin({0});
        Open();
        QVERIFY(!Drop(wizard_->Page(), {Put(u"a.map"_s), Put(u"b.map"_s)}));
        QVERIFY(!Frame()->isVisible());
    }

    void cancelEscapeAndTheCrossEndTheWizard() {
        Begin({0});
        const QList<std::function<void()>> ways{[this] { Press("cmdCancel"); },
                                                [this] { QTest::keyClick(wizard_->Page(), Qt::Key_Escape); },
                                                [this] { wizard_->Page()->close(); }};
        for (const auto& way : ways) {
            Open();
            const QSignalSpy ended(wizard_.get(), &AddFilesWizard::Ended);
            way();
            QCOMPARE(ended.count(), 1);
            QCOMPARE(Shown(), QString());
        }
    }

    void overAnOwnerTheWizardIsModalAndBackWhenItIsClosed() {
        Begin({0});
        QWidget owner;
        owner.show();
        QString shown;
        QTimer::singleShot(0, &owner, [&] {
            QWidget* const page = QApplication::activeModalWidget();
            shown = QString::fromLatin1(page->metaObject()->className());
            QCOMPARE(page->parentWidget(), &owner);
            QTest::keyClick(page, Qt::Key_Escape);
        });
        AddFilesWizard::Run(&owner, {});
        QCOMPARE(shown, u"frmAddFiles1"_s);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void withoutAnOwnerTheWizardIsAWindowThatGoesByItself() {
        Begin({0});
        AddFilesWizard::Run(nullptr, {});
        QPointer<QWidget> page;
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (window->inherits("frmAddFiles1") && window->isVisible())
                page = window;
        QVERIFY(page != nullptr);
        QVERIFY(!page->isModal());
        page->close();
        QTRY_VERIFY(page == nullptr);
    }

    void theTabKeyWalksFromBrowseToTheGameAndTheButtons() {
        Begin({0, 1});
        Open();
        QCOMPARE(QApplication::focusWidget(), Button("cmdBrowse"));
        Browse(Put(u"a.map"_s));
        QCOMPARE(Walk(4), QStringList({u"cmdBrowse"_s, u"cbGame"_s, u"cmdNext"_s, u"cmdCancel"_s}));
    }

    void theKeyboardChoosesWithoutTheMouse() {
        Begin({0});
        Open();
        host_->FileNames.emplace_back(Put(u"a.map"_s));
        QTest::keyClick(wizard_->Page(), Qt::Key_B, Qt::AltModifier);
        QTRY_COMPARE(Text("lblFile"), u"a.map"_s);
    }

    void everyButtonHasALetterOfItsOwn_data() { AddEachLanguage(); }

    void everyButtonHasALetterOfItsOwn() {
        QFETCH(QString, language);
        Begin({0}, language);
        Open();
        QString letters;
        for (const char* const button : {"cmdNext", "cmdCancel", "cmdPrevious", "cmdBrowse"}) {
            const QString text = Button(button)->text();
            QVERIFY2(text.contains(u'&'), qPrintable(text));
            const QChar letter = text[text.indexOf(u'&') + 1].toLower();
            QVERIFY2(!letters.contains(letter), qPrintable(text));
            letters += letter;
        }
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        Begin({0, 1, 2, 3}, language);
        Open();
        QCoreApplication::processEvents();
        QVERIFY(AllTextsHaveRoom(*wizard_->Page()));
        Browse(PutZip(QString(120, u'w') + u".zip"_s, {{.Name = "a.map"}}));
        QCoreApplication::processEvents();
        QVERIFY(AllTextsHaveRoom(*wizard_->Page()));
        QCOMPARE(wizard_->Page()->size(), QSize(600, 440));
    }
};

WINDOW_TEST(tst_addfiles1)
#include "tst_addfiles1.moc"
