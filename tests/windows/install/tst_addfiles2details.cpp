// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The details of the second page: boxes, edits, the preview of a map.

#include "platform/Files.h"
#include "tests/windows/install/FilesPageTest.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;

class tst_addfiles2details : public FilesPageTest {
    Q_OBJECT
private Q_SLOTS:

    void cleanup() { End(); }

    void aFreshPageShowsNoDetails() {
        Begin({0});
        Analyse(PutAll());
        QVERIFY(!Part<QGroupBox>("Frame3")->isVisible());
        QVERIFY(!Image()->isVisible());
        QVERIFY(!Strip()->isVisible());
    }

    void aGroupsDetailsAreADash() {
        Begin({0});
        Analyse(PutAll());
        Select(u"ZIP:3"_s);
        Select(u"Maps"_s);
        QCOMPARE(Part<QLineEdit>("txtFileName")->text(), u"-"_s);
        QCOMPARE(Boxes(), QStringList());
        QVERIFY(!Image()->isVisible());
    }

    // The captions stay hidden. This is meant.
    void aModHasBoxesWithoutCaptions() {
        Begin({0});
        Analyse(PutAll());
        Select(u"ZIP:1"_s);
        QCOMPARE(Boxes(), QStringList({u"txtName"_s, u"txtComments"_s}));
        QCOMPARE(Name()->text(), u"Contra 009"_s);
        QCOMPARE(Comments()->Text(), u"Generals"_s);
        QVERIFY(Part<QLineEdit>("txtFileName")->text().endsWith(u"all.zip/Contra.big"_s));
        QCOMPARE(Name()->accessibleName(), u"Name:"_s); // for who does not see where it stands
    }

    void aShellMapHasAllFour() {
        Begin({0});
        Analyse(PutAll());
        Select(u"ZIP:3"_s);
        QCOMPARE(Boxes(), QStringList({u"lblName"_s, u"txtName"_s, u"lblComments"_s, u"txtComments"_s}));
        QCOMPARE(Name()->text(), u"Waves"_s);
        QCOMPARE(Comments()->Text(), u"At sea"_s);
    }

    void mapsAndReplaysHaveNone() {
        Begin({0});
        Analyse(PutAll());
        for (const QString& key : {u"ZIP:0"_s, u"ZIP:2"_s}) {
            Select(key);
            QCOMPARE(Boxes(), QStringList());
        }
    }

    void editsGoIntoTheRecord() {
        Begin({0});
        Analyse(PutAll());
        Select(u"ZIP:1"_s);
        Name()->selectAll();
        QTest::keyClicks(Name(), u"New"_s);
        Comments()->selectAll();
        QTest::keyClicks(Comments(), u"Two words"_s);
        Select(u"ZIP:3"_s); // filling the boxes changes nothing
        QCOMPARE(AddFiles::Source.InstallRecords[1].DisplayName, u"New"_s);
        QCOMPARE(AddFiles::Source.InstallRecords[1].Comments, u"Two words"_s);
        QCOMPARE(AddFiles::Source.InstallRecords[3].DisplayName, u"Waves"_s);
        Select(u"ZIP:1"_s);
        QCOMPARE(Name()->text(), u"New"_s);
        QCOMPARE(Comments()->Text(), u"Two words"_s);
        QVERIFY(!Strip()->isVisible());
    }

    void aSingleModShowsWhatStandsBesideIt() {
        Begin({0});
        Put(u"a.ini"_s, "[Mod]\r\nName=Rise\r\nComments=Beta\r\n");
        const QString mod = Put(u"a.big"_s);
        Analyse(mod);
        QCOMPARE(GroupTexts(), QStringList{u"Mods"_s});
        Select(u"Single"_s);
        QCOMPARE(Part<QLineEdit>("txtFileName")->text(), Paths::ToNative(mod));
        QCOMPARE(Boxes(), QStringList({u"txtName"_s, u"txtComments"_s}));
        QCOMPARE(Name()->text(), u"Rise"_s);
        QCOMPARE(Comments()->Text(), u"Beta"_s);
        QVERIFY(!Strip()->isVisible());
    }

    // The change raises 13, and nothing is kept. This is meant.
    void anEditOfASingleFileIsNotKeptAndTheStripSaysSo() {
        Begin({0});
        Put(u"a.ini"_s, "[Mod]\r\nName=Rise\r\nComments=Beta\r\n");
        Analyse(Put(u"a.big"_s));
        Select(u"Single"_s);
        QTest::keyClicks(Name(), u"!"_s);
        QCOMPARE(AddFiles::Source.SingleFile.DisplayName, u"Rise"_s);
        QVERIFY(Strip()->isVisible());
        QVERIFY(Strip()->Text().startsWith(u"What you type here is not kept"_s));
        Strip()->Close();
        QTest::keyClicks(Comments(), u"!"_s);
        QCOMPARE(AddFiles::Source.SingleFile.Comments, u"Beta"_s);
        QVERIFY(Strip()->isVisible());
        QCOMPARE(Shown(), u"frmAddFiles2"_s);
    }

    void theMapsPictureIsShownAndNoFileIsLeft() {
        Begin({0});
        Analyse(PutAll());
        Select(u"ZIP:0"_s);
        QTRY_VERIFY(Shows(Image(), Qt::red));
        QCOMPARE(Files::ListFolder(mMain::ScratchFolder() + u"\\*.*"_s), QStringList());
        Select(u"ZIP:3"_s);
        QVERIFY(!Image()->isVisible());
    }

    void theSingleMapsPictureStandsBesideIt() {
        Begin({0});
        const QString picture = Put(u"Alpine.tga"_s, Targa(Qt::blue));
        Analyse(Put(u"Alpine.map"_s));
        Select(u"Single"_s);
        QTRY_VERIFY(Shows(Image(), Qt::blue));
        QVERIFY(Files::FileExists(picture));
    }

    void aMapWithoutAPictureOrWithABrokenOneShowsNone() {
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.map"},
                                    {.Name = "b.map"},
                                    {.Name = "b.tga", .Content = "no picture"},
                                    {.Name = "c.map"},
                                    {.Name = "c.tga", .Content = Targa(Qt::green)}}));
        Select(u"ZIP:0"_s);
        QVERIFY(!Image()->isVisible());
        Select(u"ZIP:1"_s);
        QTRY_COMPARE(Files::ListFolder(mMain::ScratchFolder() + u"\\*.*"_s), QStringList());
        QVERIFY(!Image()->isVisible());
        Select(u"ZIP:2"_s);
        QTRY_VERIFY(Shows(Image(), Qt::green));
    }

    void aPictureThatHasNotComeNeverComes() {
        Begin({0});
        Analyse(PutAll());
        Select(u"ZIP:0"_s);
        Select(u"ZIP:2"_s);
        QTest::qWait(300);
        QVERIFY(!Image()->isVisible());
        QCOMPARE(Files::ListFolder(mMain::ScratchFolder() + u"\\*.*"_s), QStringList());
    }

    void theTabKeyWalksThroughTheDetails() {
        Begin({0});
        Analyse(PutAll());
        QCOMPARE(QApplication::focusWidget(), Tree());
        Select(u"ZIP:3"_s);
        QCOMPARE(Walk(7), QStringList({u"tvFiles"_s, u"txtFileName"_s, u"txtName"_s, u"txtComments"_s, u"cmdPrevious"_s,
                                       u"cmdNext"_s, u"cmdCancel"_s}));
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        Begin({0}, language);
        Analyse(PutAll());
        Tree()->expandAll();
        for (const QString& key : {u"Maps"_s, u"ZIP:0"_s, u"ZIP:1"_s, u"ZIP:3"_s, u"Over:0"_s, u"Over:1"_s}) {
            Select(key);
            QCoreApplication::processEvents();
            QVERIFY(AllTextsHaveRoom(*wizard_->Page()));
            QCOMPARE(wizard_->Page()->size(), QSize(600, 440));
        }
    }
};

WINDOW_TEST(tst_addfiles2details)
#include "tst_addfiles2details.moc"
