// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/FilesTreeModel.h"
#include "media/PictureView.h"
#include "platform/Files.h"
#include "tests/windows/install/AddFilesTest.h"
#include "ui/text/CommentBox.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractItemModelTester>
#include <QGroupBox>
#include <QLineEdit>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

class tst_addfiles2 : public AddFilesTest {
    Q_OBJECT
private:
    QTreeView* Tree() { return Part<QTreeView>("tvFiles"); }

    FilesTreeModel* Nodes() { return static_cast<FilesTreeModel*>(Tree()->model()); }

    QModelIndex Node(const QString& key) { return Nodes()->IndexOf(key); }

    QStringList GroupTexts() {
        QStringList texts;
        for (int row = 0; row < Nodes()->rowCount(); ++row)
            texts += Nodes()->index(row, 0).data().toString();
        return texts;
    }

    bool IsGrey(const QModelIndex& node) {
        return node.data(Qt::ForegroundRole).value<QBrush>().color() ==
               QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    }

    static bool IsTicked(const QModelIndex& node) {
        return node.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }

    /// Chooses a file on the first page and goes on.
    void Analyse(const QString& file) {
        Open(file);
        Press("cmdNext");
        if (wizard_->Page() != nullptr)
            Activate();
    }

    void Select(const QString& key) {
        QVERIFY2(Node(key).isValid(), qPrintable(key));
        Tree()->scrollTo(Node(key));
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, Tree()->visualRect(Node(key)).center());
    }

    void Tick(const QString& key) {
        Tree()->setCurrentIndex(Node(key));
        QTest::keyClick(Tree(), Qt::Key_Space);
    }

    /// Which of the name's and comments' captions and boxes are shown.
    QStringList Boxes() {
        QStringList names;
        for (const char* const name : {"lblName", "txtName", "lblComments", "txtComments"})
            if (Part<QWidget>(name)->isVisible())
                names += QString::fromLatin1(name);
        return names;
    }

    QLineEdit* Name() { return Part<QLineEdit>("txtName"); }

    CommentBox* Comments() { return Part<CommentBox>("txtComments"); }

    PictureView* Image() { return Part<PictureView>("Image1"); }

    NoticeStrip* Strip() { return Part<NoticeStrip>("picNotice"); }

    /// A picture file of 24 bits, 16 x 16.
    static QByteArray Targa(const QColor& colour) {
        QByteArray bytes("\0\0\2\0\0\0\0\0\0\0\0\0\x10\0\x10\0\x18\0", 18);
        for (int pixel = 0; pixel < 16 * 16; ++pixel)
            for (const int part : {colour.blue(), colour.green(), colour.red()})
                bytes += static_cast<char>(part);
        return bytes;
    }

    static bool Shows(QWidget* control, const QColor& colour) {
        return control->isVisible() && control->grab().toImage().pixelColor(4, 4) == colour;
    }

    /// One of each kind: 0 a map with a picture, 1 a mod, 2 a replay, 3 a shell map, and what is passed over.
    QString PutAll() {
        return PutZip(u"all.zip"_s,
                      {{.Name = "Alpine/"},
                       {.Name = "Alpine/Alpine.MAP", .Content = "m"},
                       {.Name = "Alpine/Alpine.tga", .Content = Targa(Qt::red)},
                       {.Name = "Contra.big", .Content = "BIGF"},
                       {.Name = "Contra.ini", .Content = "[Infos]\r\nName=Contra 009\r\nComments=Generals\r\n"},
                       {.Name = "a.rep", .Content = "r"},
                       {.Name = "Shell/shellmap1.map", .Content = "s"},
                       {.Name = "Shell/QvInfos.ini", .Content = "[Infos]\r\nName=Waves\r\nComments=At sea\r\n"},
                       {.Name = "Thumbs.db", .Content = "t"},
                       {.Name = "inner.zip", .Content = "z"}});
    }

private Q_SLOTS:

    void cleanup() { End(); }

    void thePageHasItsTexts() {
        Begin({0});
        Analyse(PutAll());
        QCOMPARE(Shown(), u"frmAddFiles2"_s);
        QCOMPARE(wizard_->Page()->windowTitle(), u"Brindock 2005"_s);
        QCOMPARE(Text("Label5"), u"Brindock 2005 v3.5.4"_s);
        QCOMPARE(Text("Label6"), u"Brindock 2005 v3.5.4"_s);
        QCOMPARE(Part<QGroupBox>("Frame3")->title(), u"Details"_s);
        QCOMPARE(Text("Label2").remove(u'&'), u"File:"_s);
        QCOMPARE(Text("lblName").remove(u'&'), u"Name:"_s);
        QCOMPARE(Text("lblComments").remove(u'&'), u"Comments:"_s);
        QVERIFY(Button("cmdPrevious")->isEnabled() && Button("cmdNext")->isEnabled());
        QVERIFY(Button("cmdCancel")->isEnabled());
    }

    void aFreshPageShowsNoDetails() {
        Begin({0});
        Analyse(PutAll());
        QVERIFY(!Part<QGroupBox>("Frame3")->isVisible());
        QVERIFY(!Image()->isVisible());
        QVERIFY(!Strip()->isVisible());
    }

    void theGroupsOfAZipStandOpenWithTheirCounts() {
        Begin({0});
        Analyse(PutAll());
        QCOMPARE(GroupTexts(), QStringList({u"Maps (1)"_s, u"Mods (1)"_s, u"Replays (1)"_s, u"Shell maps (1)"_s,
                                            u"Passed over (3)"_s}));
        for (const QString& key : {u"Maps"_s, u"Mods"_s, u"Replays"_s, u"Shellmaps"_s}) {
            QVERIFY(Tree()->isExpanded(Node(key)));
            QVERIFY(!IsGrey(Node(key)));
        }
        QCOMPARE(Node(u"ZIP:0"_s).data().toString(), u"Alpine.MAP"_s);
        QCOMPARE(Node(u"ZIP:3"_s).parent(), Node(u"Shellmaps"_s));
    }

    void anEmptyGroupStandsGrey() {
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.map"}}));
        QCOMPARE(GroupTexts(), QStringList({u"Maps (1)"_s, u"Mods (0)"_s, u"Replays (0)"_s, u"Shell maps (0)"_s}));
        QVERIFY(IsGrey(Node(u"Mods"_s)) && !IsGrey(Node(u"Maps"_s)));
    }

    void whatIsPassedOverStandsGreyAndClosedWithItsReason() {
        Begin({0});
        Analyse(PutAll());
        const QModelIndex group = Node(u"PassedOver"_s);
        QVERIFY(!Tree()->isExpanded(group));
        QVERIFY(IsGrey(group) && IsGrey(group.model()->index(0, 0, group)));
        QVERIFY(!group.data(Qt::CheckStateRole).isValid());
        Tree()->expand(group);
        Select(u"Over:1"_s);
        QVERIFY(Part<QLabel>("lblReason")->isVisible());
        QVERIFY(!Text("lblReason").isEmpty());
        QVERIFY(Part<QLineEdit>("txtFileName")->text().endsWith(u"all.zip/Thumbs.db"_s));
        Select(u"ZIP:0"_s);
        QVERIFY(!Part<QLabel>("lblReason")->isVisible());
    }

    void theModelIsSound() {
        Begin({0});
        Analyse(PutAll());
        const QAbstractItemModelTester tester(Nodes(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        Tick(u"Maps"_s);
        Tick(u"ZIP:1"_s);
        Tree()->collapse(Node(u"Mods"_s));
    }

    void aGroupsPictureShowsWhetherItIsOpen() {
        Begin({0});
        Analyse(PutAll());
        const auto picture = [this] {
            return Node(u"Maps"_s).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
        };
        const QImage open = picture();
        Tree()->collapse(Node(u"Maps"_s));
        const QImage closed = picture();
        QVERIFY(open != closed);
        QVERIFY(Node(u"ZIP:0"_s).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage() != closed);
        Tree()->expand(Node(u"Maps"_s));
        QCOMPARE(picture(), open);
    }

    // This is meant.
    void theGroupOfASingleModHasOnePictureOnly() {
        Begin({0});
        Analyse(Put(u"a.big"_s));
        const QModelIndex group = Node(u"Mods"_s);
        QVERIFY(Tree()->isExpanded(group));
        const QImage open = group.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
        Tree()->collapse(group);
        QCOMPARE(group.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage(), open);
    }

    void allStartsUntickedAndAFilesTickIsItsRecords() {
        Begin({0});
        Analyse(PutAll());
        for (const InstallRecord& record : AddFiles::Source.InstallRecords)
            QVERIFY(!record.Selected);
        Tick(u"ZIP:1"_s);
        QVERIFY(IsTicked(Node(u"ZIP:1"_s)) && AddFiles::Source.InstallRecords[1].Selected);
        QVERIFY(!AddFiles::Source.InstallRecords[0].Selected);
        Tick(u"ZIP:1"_s);
        QVERIFY(!AddFiles::Source.InstallRecords[1].Selected);
    }

    void aGroupsTickGoesToItsFiles() {
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.rep"}, {.Name = "b.rep"}, {.Name = "c.map"}}));
        Tick(u"Replays"_s);
        QVERIFY(IsTicked(Node(u"ZIP:0"_s)) && IsTicked(Node(u"ZIP:1"_s)) && !IsTicked(Node(u"ZIP:2"_s)));
        QVERIFY(AddFiles::Source.InstallRecords[0].Selected && AddFiles::Source.InstallRecords[1].Selected);
        Tick(u"ZIP:0"_s);
        QVERIFY(IsTicked(Node(u"Replays"_s))); // a file's tick leaves its group's
        Tick(u"Replays"_s);
        QVERIFY(!AddFiles::Source.InstallRecords[1].Selected);
    }

    void anEmptyGroupKeepsItsTick() {
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.map"}}));
        Tick(u"Mods"_s);
        QVERIFY(IsTicked(Node(u"Mods"_s)));
        QVERIFY(!AddFiles::Source.InstallRecords[0].Selected);
    }

    void aClickOnTheBoxTicks() {
        Begin({0});
        Analyse(PutAll());
        const QRect row = Tree()->visualRect(Node(u"ZIP:1"_s));
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, {row.left() + 8, row.center().y()});
        QVERIFY(AddFiles::Source.InstallRecords[1].Selected);
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

    // The tick that nobody reads. This is meant.
    void theTickOfASingleFileIsStoredByItsGroupAlone() {
        Begin({0});
        Analyse(Put(u"a.rep"_s));
        Tick(u"Single"_s);
        QVERIFY(!AddFiles::Source.SingleFile.Selected);
        Tick(u"Replays"_s);
        QVERIFY(AddFiles::Source.SingleFile.Selected);
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

    void anArchiveWithNothingToInstallEndsTheWizard() {
        Begin({0});
        Open(PutZip(u"a.zip"_s, {{.Name = "readme.txt"}}));
        const QSignalSpy ended(wizard_.get(), &AddFilesWizard::Ended);
        Press("cmdNext");
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(host_->Messages[0].Text, u"Nothing that can be installed was found in this file."_s);
        QCOMPARE(host_->Messages[0].Title, u"Brindock 2005"_s);
        QCOMPARE(host_->Messages[0].Sign, Host::Icon::Critical);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(Shown(), QString());
    }

    void anArchiveThatCantBeReadEndsTheWizardToo() {
        Begin({0});
        Analyse(Put(u"a.zip"_s, "no archive"));
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(Shown(), QString());
    }

    void whatTheAnalysisRaisesIsToldAndTheFirstPageStays() {
        Begin({0});
        Open(PutZip(u"a.zip"_s, {{.Name = "a.big"},
                                 {.Name = "a.ini", .Content = "[Infos]\r\n", .Crc = 0x1234}}));
        Press("cmdNext");
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(host_->Messages[0].Sign, Host::Icon::Critical);
        QVERIFY(host_->Messages[0].Text.contains(u"53"_s));
        QCOMPARE(Shown(), u"frmAddFiles1"_s);
        QVERIFY(wizard_->Page()->isEnabled());
    }

    void previousBeginsAnew() {
        Begin({0});
        Analyse(PutAll());
        Press("cmdPrevious");
        QCOMPARE(Shown(), u"frmAddFiles1"_s);
        QCOMPARE(Text("lblFile"), QString());
        QCOMPARE(AddFiles::Source.InstallRecords, std::vector<InstallRecord>(1));
    }

    void previousTakesTheCommandLinesFileAgain() {
        Begin({0});
        mMain::AddFileRequested = true;
        mMain::CommandFileArgument = PutAll();
        Open();
        Press("cmdNext");
        Press("cmdPrevious");
        QCOMPARE(Text("lblFile"), u"all.zip"_s);
    }

    void thePageStandsWhereTheOneBeforeStood() {
        Begin({0});
        Open(PutAll());
        wizard_->Page()->move(40, 60);
        const QPoint place = wizard_->Page()->pos();
        Press("cmdNext");
        QCOMPARE(wizard_->Page()->pos(), place);
        QCOMPARE(wizard_->Page()->size(), QSize(600, 440));
    }

    void cancelAndEscapeEndTheWizard() {
        Begin({0});
        for (const bool byKey : {false, true}) {
            Analyse(PutAll());
            if (byKey)
                QTest::keyClick(Tree(), Qt::Key_Escape);
            else
                Press("cmdCancel");
            QCOMPARE(Shown(), QString());
        }
    }

    void theProgramEndsWithTheLastPageAndNotBetweenTwo() {
        Begin({0});
        mMain::AddFileRequested = true;
        mMain::CommandFileArgument = PutAll();
        AddFilesWizard::Run(nullptr, {});
        QStringList pages;
        const auto step = [&pages](const char* button) {
            for (QWidget* const window : QApplication::topLevelWidgets()) {
                if (!window->isVisible() || qobject_cast<WizardPage*>(window) == nullptr)
                    continue;
                pages += QString::fromLatin1(window->metaObject()->className());
                QTest::mouseClick(window->findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
                return;
            }
        };
        QTimer::singleShot(0, qApp, [&] { step("cmdNext"); });
        QTimer::singleShot(300, qApp, [&] { step("cmdCancel"); });
        QVERIFY(RunsToItsEnd());
        QCOMPARE(pages, QStringList({u"frmAddFiles1"_s, u"frmAddFiles2"_s}));
    }

    void theMessageOfAnEmptyArchiveIsSeenBeforeTheProgramEnds() {
        Begin({0});
        mMain::AddFileRequested = true;
        mMain::CommandFileArgument = PutZip(u"a.zip"_s, {{.Name = "readme.txt"}});
        AddFilesWizard::Run(nullptr, {});
        QTimer::singleShot(0, qApp, [] {
            for (QWidget* const window : QApplication::topLevelWidgets())
                if (window->isVisible() && window->inherits("frmAddFiles1"))
                    QTest::mouseClick(window->findChild<QPushButton*>(u"cmdNext"_s), Qt::LeftButton);
        });
        QVERIFY(RunsToItsEnd());
        QCOMPARE(host_->Messages.size(), 1U);
    }

    void theTabKeyWalksThroughTheDetails() {
        Begin({0});
        Analyse(PutAll());
        QCOMPARE(QApplication::focusWidget(), Tree());
        Select(u"ZIP:3"_s);
        QCOMPARE(Walk(7), QStringList({u"tvFiles"_s, u"txtFileName"_s, u"txtName"_s, u"txtComments"_s,
                                       u"cmdPrevious"_s, u"cmdNext"_s, u"cmdCancel"_s}));
    }

    void textIsNeverCut_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << u"English"_s;
        QTest::newRow("French") << u"French"_s;
    }

    void textIsNeverCut() {
        QFETCH(QString, language);
        Begin({0}, language);
        Analyse(PutAll());
        Tree()->expandAll();
        for (const QString& key : {u"Maps"_s, u"ZIP:0"_s, u"ZIP:1"_s, u"ZIP:3"_s, u"Over:0"_s, u"Over:1"_s}) {
            Select(key);
            QCoreApplication::processEvents();
            QCOMPARE(CutText(), QString());
            QCOMPARE(wizard_->Page()->size(), QSize(600, 440));
        }
    }

    void tenThousandEntriesAreOneModel() {
        Begin({0});
        std::vector<ZipBytes::Part> parts;
        for (int number = 0; number < 10000; ++number)
            parts.push_back({.Name = "r/" + QByteArray::number(number) + ".rep"});
        Analyse(PutZip(u"a.zip"_s, parts));
        QCOMPARE(Nodes()->rowCount(Node(u"Replays"_s)), 10000);
        QVERIFY(Tree()->findChildren<QWidget*>().size() < 20);
        Tick(u"Replays"_s);
        QVERIFY(AddFiles::Source.InstallRecords.back().Selected);
    }
};

WINDOW_TEST(tst_addfiles2)
#include "tst_addfiles2.moc"
