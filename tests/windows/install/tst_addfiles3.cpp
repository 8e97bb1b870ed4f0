// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/windows/install/AddFilesTest.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTreeView>

#include <algorithm>
#include <map>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

using namespace Qt::StringLiterals;

class tst_addfiles3 : public AddFilesTest {
    Q_OBJECT
private:
    /// Goes from the first page to the second one.
    void Analyse(const QString& file) {
        Open(file);
        Press("cmdNext");
        Activate();
    }

    /// Chooses a file, ticks all that is found, and installs it.
    void Install(const QString& file) {
        Analyse(file);
        TickAll();
        Press("cmdNext");
    }

    void TickAll() {
        QAbstractItemModel* const nodes = Part<QTreeView>("tvFiles")->model();
        for (int row = 0; row < nodes->rowCount(); ++row)
            nodes->setData(nodes->index(row, 0), Qt::Checked, Qt::CheckStateRole);
    }

    int Progress() { return Part<QProgressBar>("ProgressBar1")->value(); }

    QPlainTextEdit* Outcome() { return Part<QPlainTextEdit>("txtOutcome"); }

    static const GameEntry& Of(GameIndex game) { return Game.at(static_cast<std::size_t>(game)); }

    /// Three replays, of which the second one can't be unpacked.
    QString PutBroken() {
        return PutZip(u"a.zip"_s, {{.Name = "a.rep", .Content = "1"},
                                   {.Name = "b.rep", .Content = "2", .Crc = 0x1234},
                                   {.Name = "c.rep", .Content = "3"}});
    }

    /// Contra.big and Contra.ini, encrypted the traditional way by zip; the password is "secret".
    static QByteArray Encrypted() {
        return QByteArray::fromHex(
            "504b03040a00090000001a32765d31cfd04a0d000000010000000a000000436f6e7472612e62696728353aff1ac4ffba"
            "26ccde7a0d504b070831cfd04a0d00000001000000504b03040a00090000001a32765d89640ab222000000160000000a"
            "000000436f6e7472612e696e69a2ea9179875e94a944444657b96edbe89b1a9b60c9640019e06099dec8be60c7fad950"
            "4b070889640ab22200000016000000504b01021e030a00090000001a32765d31cfd04a0d000000010000000a00000000"
            "00000001000000a48100000000436f6e7472612e626967504b01021e030a00090000001a32765d89640ab22200000016"
            "0000000a0000000000000001000000a48145000000436f6e7472612e696e69504b05060000000002000200700000009f"
            "0000000000");
    }

private Q_SLOTS:

    void cleanup() { End(); }

    void aFinishedPageHasItsTextsAndOneWayOut() {
        Begin({0});
        Install(Put(u"Alpine.rep"_s));
        QCOMPARE(Shown(), u"frmAddFiles3"_s);
        QCOMPARE(wizard_->Page()->windowTitle(), u"Brindock 2005"_s);
        QCOMPARE(Text("Label5"), u"Brindock 2005 v3.5.4"_s);
        QCOMPARE(Text("Label6"), u"Brindock 2005 v3.5.4"_s);
        QCOMPARE(Text("lblText"), u"Installing the files..."_s);
        QCOMPARE(Text("lblProgress"), u"The installation is complete."_s);
        QCOMPARE(Button("cmdNext")->text().remove(u'&'), u"Close"_s);
        QVERIFY(Button("cmdNext")->isEnabled());
        QVERIFY(!Button("cmdCancel")->isEnabled() && !Button("cmdPrevious")->isEnabled());
        QCOMPARE(Progress(), 100);
        QVERIFY(!Outcome()->isVisible() && !Part<QLabel>("lblOutcome")->isVisible());
    }

    void theFilesGoIntoTheChosenGame() {
        Begin({0, 2});
        Open(Put(u"Alpine.rep"_s, "replay"));
        QTest::keyClick(Part<QWidget>("cbGame"), Qt::Key_Down);
        Press("cmdNext");
        Press("cmdNext");
        QCOMPARE(World::ReadFile(Of(2).ReplayPath + u"Alpine.rep"_s), QByteArray("replay"));
        QVERIFY(!Files::FileExists(Of(0).ReplayPath + u"Alpine.rep"_s));
    }

    void allBesideALooseMapTravelsWithIt() {
        Begin({0});
        Put(u"Alpine.tga"_s, "picture");
        Install(Put(u"Alpine.map"_s, "map"));
        QCOMPARE(World::ReadFile(Of(0).MapPath + u"Alpine\\Alpine.map"_s), QByteArray("map"));
        QCOMPARE(World::ReadFile(Of(0).MapPath + u"Alpine\\Alpine.tga"_s), QByteArray("picture"));
    }

    void allKindsGoInByTheCommandLine_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<qint32>("kind");
        QTest::newRow("map") << u"Alpine.map"_s << FileKind::Map;
        QTest::newRow("mod") << u"Contra.big"_s << FileKind::Mod;
        QTest::newRow("replay") << u"Last game.rep"_s << FileKind::Replay;
        QTest::newRow("shell map") << u"shellmap1.map"_s << FileKind::ShellMap;
    }

    void allKindsGoInByTheCommandLine() {
        QFETCH(const QString, name);
        QFETCH(const qint32, kind);
        for (const bool zipped : {false, true}) {
            Begin({0});
            const std::map<qint32, QString> folders{
                {FileKind::Map, Of(0).MapPath + u"Alpine\\"_s},
                {FileKind::Mod, Of(0).InstallPath},
                {FileKind::Replay, Of(0).ReplayPath},
                {FileKind::ShellMap, Of(0).InstallPath + u"Maps\\QvShellMap001\\"_s}};
            const QString path = zipped ? PutZip(u"a b.zip"_s, {{.Name = "in/" + name.toUtf8(), .Content = "bytes"}})
                                        : Put(name, "bytes");
            ScriptedNavigator navigator;
            mMain::Show(mMain::Prepare(u"/addfile "_s + path));
            QCOMPARE(navigator.Calls.last(), u"ShowAddFiles"_s);
            Install({});
            QCOMPARE(Shown(), u"frmAddFiles3"_s);
            QCOMPARE(World::ReadFile(folders.at(kind) + name), QByteArray("bytes"));
            Press("cmdNext");
            QCOMPARE(Shown(), QString());
            End();
        }
    }

    void aZipBeepsAndASingleFileDoesNot() {
        Begin({0});
        Install(Put(u"a.rep"_s));
        QCOMPARE(host_->Beeps, 0);
        Install(PutZip(u"a.zip"_s, {{.Name = "b.rep"}}));
        QCOMPARE(host_->Beeps, 1);
    }

    void nothingTickedEndsAsAllElse() {
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.rep", .Content = "r"}}));
        Press("cmdNext");
        QCOMPARE(Progress(), 100);
        QCOMPARE(Text("lblProgress"), u"The installation is complete."_s);
        QVERIFY(!Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
        QVERIFY(!Outcome()->isVisible());
    }

    void aPageAtWorkTellsTheFileAndTakesNoNext() {
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.rep", .Content = "1"}, {.Name = "b.rep", .Content = "2"}}));
        TickAll();
        QStringList texts;
        std::vector<int> values;
        host_->OnYield = [&] {
            QCOMPARE(Shown(), u"frmAddFiles3"_s);
            QVERIFY(wizard_->Page()->isVisible());
            QVERIFY(!Button("cmdNext")->isEnabled() && Button("cmdCancel")->isEnabled());
            if (!texts.contains(Text("lblProgress")))
                texts += Text("lblProgress");
            values.push_back(Progress());
        };
        Press("cmdNext");
        QCOMPARE(texts, QStringList({u"Current file: a.rep"_s, u"Current file: b.rep"_s}));
        QVERIFY(std::ranges::is_sorted(values));
        QVERIFY(std::ranges::find(values, 50) != values.end());
    }

    void aClickOnCancelWaitsUntilAllIsInstalled_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }

    void aClickOnCancelWaitsUntilAllIsInstalled() {
        QFETCH(bool, byKey);
        Begin({0});
        Analyse(PutZip(u"a.zip"_s, {{.Name = "a.rep", .Content = "1"}, {.Name = "b.rep", .Content = "2"}}));
        TickAll();
        const QSignalSpy ended(wizard_.get(), &AddFilesWizard::Ended);
        host_->OnYield = [&] {
            if (byKey)
                QTest::keyClick(wizard_->Page(), Qt::Key_Escape);
            else
                Press("cmdCancel");
            QVERIFY(wizard_->Page()->isVisible());
            QCOMPARE(ended.count(), 0);
        };
        Press("cmdNext");
        QCOMPARE(ended.count(), 1);
        QCOMPARE(Shown(), QString());
        QVERIFY(Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
        QVERIFY(Files::FileExists(Of(0).ReplayPath + u"b.rep"_s));
    }

    void aFailureIsListedBelowTheSuccess() {
        Begin({0});
        Install(PutBroken());
        QCOMPARE(Text("lblProgress"), u"The installation is complete."_s);
        QVERIFY(Outcome()->isVisible());
        QCOMPARE(Text("lblOutcome").remove(u'&'), u"What was done and what was not:"_s);
        const QStringList lines = Outcome()->toPlainText().split(u'\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines[0].contains(u"b.rep"_s), qPrintable(lines[0])); // failures come first
        QVERIFY2(lines[1].contains(u"a.rep"_s) && lines[2].contains(u"c.rep"_s), qPrintable(lines.join(u'|')));
    }

    void theListCanBeCopied() {
        Begin({0});
        Install(PutBroken());
        Activate();
        Outcome()->setFocus();
        QTest::keyClick(Outcome(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(Outcome(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), Outcome()->toPlainText());
        QTest::keyClick(Outcome(), Qt::Key_X); // nobody writes into it
        QCOMPARE(QApplication::clipboard()->text(), Outcome()->toPlainText());
    }

    void aFailureKeepsThePageThatWasToBeClosed() {
        Begin({0});
        Analyse(PutBroken());
        TickAll();
        host_->OnYield = [this] { Press("cmdCancel"); };
        Press("cmdNext");
        QCOMPARE(Shown(), u"frmAddFiles3"_s);
        QVERIFY(Outcome()->isVisible());
    }

    void nextEnterAndEscapeCloseAFinishedPage() {
        Begin({0});
        const QList<std::function<void()>> ways{
            [this] { Press("cmdNext"); }, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); },
            [this] { QTest::keyClick(wizard_->Page(), Qt::Key_Escape); }, [this] { wizard_->Page()->close(); }};
        for (const auto& way : ways) {
            Install(Put(u"a.rep"_s));
            Activate();
            const QSignalSpy ended(wizard_.get(), &AddFilesWizard::Ended);
            way();
            QCOMPARE(ended.count(), 1);
            QCOMPARE(Shown(), QString());
        }
    }

    // Nothing catches it, and the program ends with its message. This is meant.
    void aSingleModThatCantBeCopiedRaises() {
        Begin({0});
#ifdef __SANITIZE_ADDRESS__
        const __lsan::ScopedDisabler uncounted; // what the toolkit loses when an exception passes through it
#endif
        Analyse(Put(u"a.big"_s));
        Files::DeleteFolder(Of(0).InstallPath.chopped(1));
        world_->WriteFile(u"games\\Generals"_s, "a file in its place");
        QVERIFY_THROWS_EXCEPTION(RuntimeError, Press("cmdNext"));
    }

    void thePasswordThatTheAnalysisAskedForIsTriedBeforeAnotherQuestion() {
        Begin({0});
        host_->InputTexts = {u"secret"_s};
        Install(Put(u"a.zip"_s, Encrypted()));
        QVERIFY(!Outcome()->isVisible());
        QCOMPARE(World::ReadFile(Of(0).InstallPath + u"Contra.big"_s), QByteArray("B"));
        QCOMPARE(mMain::INI().ReadINI(u"Mod"_s, u"Name"_s, Of(0).InstallPath + u"Contra.ini"_s), u"Contra"_s);
    }

    void theLastPagesSizeIsThatOfAll() {
        Begin({0});
        Install(PutBroken());
        QCOMPARE(wizard_->Page()->size(), QSize(600, 440));
    }

    void textIsNeverCut_data() {
        AddEachLanguage();
    }

    void textIsNeverCut() {
        QFETCH(QString, language);
        Begin({0}, language);
        Install(PutBroken());
        QCoreApplication::processEvents();
        QVERIFY(AllTextsHaveRoom(*wizard_->Page()));
        QVERIFY(Outcome()->height() > 80);
    }

    void theTabKeyReachesTheList() {
        Begin({0});
        Install(PutBroken());
        Activate();
        QCOMPARE(QApplication::focusWidget(), Button("cmdNext"));
        QCOMPARE(Walk(3), QStringList({u"cmdNext"_s, u"txtOutcome"_s, u"cmdNext"_s}));
    }
};

WINDOW_TEST(tst_addfiles3)
#include "tst_addfiles3.moc"
