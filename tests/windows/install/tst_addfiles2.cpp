// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tree of the second page, its check marks, and the ways from the page.

#include "tests/windows/install/FilesPageTest.h"

#include <QAbstractItemModelTester>
#include <QGroupBox>

using namespace Qt::StringLiterals;

class tst_addfiles2 : public FilesPageTest {
    Q_OBJECT
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

    // The tick that nobody reads. This is meant.
    void theTickOfASingleFileIsStoredByItsGroupAlone() {
        Begin({0});
        Analyse(Put(u"a.rep"_s));
        Tick(u"Single"_s);
        QVERIFY(!AddFiles::Source.SingleFile.Selected);
        Tick(u"Replays"_s);
        QVERIFY(AddFiles::Source.SingleFile.Selected);
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
        Open(PutZip(u"a.zip"_s, {{.Name = "a.big"}, {.Name = "a.ini", .Content = "[Infos]\r\n", .Crc = 0x1234}}));
        Press("cmdNext");
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(host_->Messages[0].Sign, Host::Icon::Critical);
        QVERIFY(host_->Messages[0].Text.contains(u"53"_s));
        QCOMPARE(Shown(), u"frmAddFiles1"_s);
        QVERIFY(wizard_->Page()->isEnabled());
        QCOMPARE(QApplication::focusWidget(), Button("cmdNext"));
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

    void tenThousandEntriesAreOneModel() {
        Begin({0});
        constexpr int count = 10000;
        std::vector<ZipBytes::Part> parts;
        parts.reserve(count);
        for (int number = 0; number < count; ++number)
            parts.push_back({.Name = "r/" + QByteArray::number(number) + ".rep"});
        Analyse(PutZip(u"a.zip"_s, parts));
        QCOMPARE(Nodes()->rowCount(Node(u"Replays"_s)), count);
        QVERIFY(Tree()->findChildren<QWidget*>().size() < 20);
        Tick(u"Replays"_s);
        QVERIFY(AddFiles::Source.InstallRecords.back().Selected);
    }
};

WINDOW_TEST(tst_addfiles2)
#include "tst_addfiles2.moc"
