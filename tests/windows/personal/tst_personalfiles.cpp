// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window shows: the tree, the lists, the details of the selected row.

#include "media/PictureView.h"
#include "tests/windows/personal/PersonalFilesWindow.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>

using namespace Qt::StringLiterals;

class tst_personalfiles : public PersonalFilesWindow {
    Q_OBJECT
private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void theTreeNamesEachGameAndKindWithItsCount() {
        AddReplay(u"a"_s);
        AddReplay(u"b"_s);
        AddMap(u"Alpine"_s, 1);
        Open();
        const QAbstractItemModel& tree = *Nodes();
        QCOMPARE(tree.rowCount(), 2);
        QCOMPARE(tree.index(0, 0).data().toString(), u"Generals"_s);
        QCOMPARE(tree.index(1, 0).data().toString(), u"Zero Hour"_s);
        QStringList kinds;
        for (int row = 0; row < tree.rowCount(tree.index(0, 0)); ++row)
            kinds += tree.index(row, 0, tree.index(0, 0)).data().toString();
        QCOMPARE(kinds, QStringList({u"Replays (2)"_s, u"Maps (0)"_s, u"Mods (0)"_s, u"Shell maps (0)"_s}));
        QCOMPARE(NodeText(u"ZHMaps"_s), u"Maps (1)"_s);
        QVERIFY(Tree()->isExpanded(tree.index(0, 0)) && Tree()->isExpanded(tree.index(1, 0)));
        QVERIFY(!tree.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY(!Nodes()->IndexOf(u"ZHMaps"_s).data(Qt::DecorationRole).value<QIcon>().isNull());
    }

    void atFirstNothingIsChosen() {
        AddReplay(u"a"_s);
        Open();
        QVERIFY(Tree()->hasFocus());
        QCOMPARE(SelectedNode(), QString());
        QCOMPARE(VisibleLists(), QStringList());
        QCOMPARE(VisibleDetails(), QStringList());
        QCOMPARE(Enabled(), u"---"_s);
        QCOMPARE(window_->windowTitle(), u"Personal files"_s);
        QVERIFY(Part<HintPane>("picHint")->Shown().Text.contains(u"in the tree"_s));
    }

    void withoutAGameTheTreeIsEmptyAndTheActionsStayDisabled() {
        Game = {};
        Open();
        QCOMPARE(Nodes()->rowCount(), 0);
        QCOMPARE(Enabled(), u"---"_s);
        QVERIFY(Part<HintPane>("picHint")->Shown().Text.startsWith(u"None of Generals"_s));
    }

    void aClickOnAKindShowsItsListAlone_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("row");
        QTest::newRow("replays") << u"GenReplays"_s << u"ReplayList"_s << u"a replay"_s;
        QTest::newRow("maps") << u"GenMaps"_s << u"MapList"_s << u"Alpine"_s;
        QTest::newRow("mods") << u"GenMods"_s << u"ModList"_s << u"Mod.big"_s;
        QTest::newRow("shell maps") << u"GenShellMaps"_s << u"ShellMapList"_s << u"Waves"_s;
    }

    void aClickOnAKindShowsItsListAlone() {
        QFETCH(QString, key);
        QFETCH(QString, control);
        QFETCH(QString, row);
        AddReplay(u"a replay"_s);
        AddMap(u"Alpine"_s);
        AddMod(u"Mod.big"_s);
        AddShellMap(u"001"_s, "[Infos]\r\nName=Waves\r\n");
        Open();
        ClickNode(u"ZHMaps"_s);
        ClickNode(key);
        QCOMPARE(VisibleLists(), QStringList{control});
        QCOMPARE(VisibleDetails(), QStringList());
        QCOMPARE(Enabled(), u"A--"_s);
        const auto* const list = window_->findChild<QWidget*>(control)->findChild<RowListView*>();
        QCOMPARE(Names(*list), QStringList{row});
        QVERIFY(!list->model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY(!Part<QWidget>("picHint")->isVisible());
        QCOMPARE(SelectedNode(), key);
    }

    void aClickOnAGameHidesListsAndDetails() {
        AddMap(u"Alpine"_s);
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        ClickNode(u"ZH"_s);
        QCOMPARE(VisibleLists(), QStringList());
        QCOMPARE(VisibleDetails(), QStringList());
        QCOMPARE(Enabled(), u"A--"_s);
        QVERIFY(Part<QWidget>("picHint")->isVisible());
    }

    void theTreeIsWalkedByKeys() {
        AddReplay(u"a"_s);
        Open();
        QTest::keyClick(Tree(), Qt::Key_Down);
        QCOMPARE(SelectedNode(), u"GenReplays"_s);
        QCOMPARE(VisibleLists(), QStringList{u"ReplayList"_s});
        QTest::keyClicks(Tree(), u"Ma"_s);
        QCOMPARE(VisibleLists(), QStringList{u"MapList"_s});
    }

    void aFurtherClickOnANodeListsItAnew() {
        AddReplay(u"a"_s);
        Open();
        ClickNode(u"GenReplays"_s);
        AddReplay(u"b"_s);
        ClickNode(u"GenReplays"_s);
        QCOMPARE(Names(*List("lstReplays")), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(NodeText(u"GenReplays"_s), u"Replays (1)"_s); // the tree is not watched
    }

    void anEmptyListSaysWhatWouldStandThere() {
        Open();
        ClickNode(u"GenMods"_s);
        QVERIFY(List("lstMods")->accessibleDescription().startsWith(u"No mods"_s));
        AddMod(u"Mod.big"_s);
        ClickNode(u"GenMods"_s);
        QCOMPARE(List("lstMods")->accessibleDescription(), QString());
    }

    void aReplaysColumnsAndDetails() {
        AddReplay(u"final"_s);
        Open();
        ClickNode(u"GenReplays"_s);
        const RowListView& list = *List("lstReplays");
        QCOMPARE(list.model()->columnCount(), 5);
        QCOMPARE(Cell(list, 0, 2), u"1.04"_s);
        QCOMPARE(Cell(list, 0, 3), u"3"_s);
        QCOMPARE(Cell(list, 0, 4), u"Alpine assault"_s);
        Click(*List("lstReplays"), 0);
        QCOMPARE(VisibleDetails(), QStringList{u"mnuDetailsReplays"_s});
        QCOMPARE(Enabled(), u"ADE"_s);
        QCOMPARE(Text("lblRFileName"), u"final"_s);
        QCOMPARE(Text("lblRSize"), u"4 KB"_s);
        QCOMPARE(Text("lblRVersion"), u"1.04"_s);
        QCOMPARE(Text("lblRMap"), u"Alpine assault"_s);
    }

    void aReplaysPlayersStandInTheirTeamsWithPictures() {
        AddReplay(u"final"_s);
        Open();
        ClickNode(u"GenReplays"_s);
        Click(*List("lstReplays"), 0);
        const QTreeView& players = *Part<QTreeView>("tvPlayers");
        const QAbstractItemModel& model = *players.model();
        QStringList shown;
        for (int branch = 0; branch < model.rowCount(); ++branch) {
            const QModelIndex node = model.index(branch, 0);
            QVERIFY(players.isExpanded(node));
            QVERIFY(!node.data(Qt::DecorationRole).value<QIcon>().isNull());
            shown += node.data().toString();
            for (int player = 0; player < model.rowCount(node); ++player) {
                shown += u"- "_s + model.index(player, 0, node).data().toString();
                QVERIFY(!model.index(player, 0, node).data(Qt::DecorationRole).value<QIcon>().isNull());
            }
        }
        QCOMPARE(shown, QStringList({u"Observers"_s, u"- Observer 1"_s, u"Team 1"_s, u"- Alice (USA)"_s, u"Team 2"_s,
                                     u"- Medium AI (China)"_s}));
    }

    void aMapsDetailsAndPicture() {
        const QString folder = AddMap(u"Alpine"_s);
        Write(folder + u"\\Alpine.tga"_s, Targa(Qt::red));
        Write(folder + u"\\Alpine_pic.tga"_s, Targa(Qt::blue));
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        QCOMPARE(VisibleDetails(), QStringList{u"mnuDetailsMaps"_s});
        QCOMPARE(Text("lblDFileName"), u"Alpine"_s);
        QCOMPARE(Text("lblDSize"), u"4 KB"_s);
        auto* const picture = Part<PictureView>("Image2");
        QTRY_VERIFY(!picture->IsEmpty());
        QVERIFY(picture->isVisible());
        QCOMPARE(picture->width(), picture->height()); // in its own shape
        QVERIFY(picture->height() > 100);
        QCOMPARE(picture->grab().toImage().pixelColor(20, 20), QColor(Qt::red));
        QTRY_COMPARE(Part<QWidget>("mnuDetailsMaps")->height(), 237);
    }

    void aMapWithoutAPictureHasAShorterPane() {
        AddMap(u"Alpine"_s);
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        QTRY_COMPARE(Part<QWidget>("mnuDetailsMaps")->height(), 85);
        QVERIFY(!Part<QWidget>("Image2")->isVisible());
    }

    void aPictureThatCantBeReadLeavesTheOneBefore() {
        Write(AddMap(u"a"_s) + u"\\a.tga"_s, Targa(Qt::red));
        Write(AddMap(u"b"_s) + u"\\b.tga"_s, "no picture");
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        auto* const picture = Part<PictureView>("Image2");
        QTRY_VERIFY(!picture->IsEmpty());
        Click(*List("lstMaps"), 1);
        QCOMPARE(Text("lblDFileName"), u"b"_s);
        QTest::qWait(200);
        QCOMPARE(picture->grab().toImage().pixelColor(20, 20), QColor(Qt::red));
        QVERIFY(host_->Messages.empty());
    }

    void aModsDetailsFillTheBoxes() {
        AddMod(u"Contra.big"_s, "[Mod]\r\nName=Contra\r\nComments=New generals\r\n");
        Open();
        ClickNode(u"GenMods"_s);
        QCOMPARE(Cell(*List("lstMods"), 0, 1), u"Contra"_s);
        QCOMPARE(Cell(*List("lstMods"), 0, 2), u"New generals"_s);
        Click(*List("lstMods"), 0);
        QCOMPARE(VisibleDetails(), QStringList{u"mnuDetailsMods"_s});
        QCOMPARE(Text("lblMFileName"), u"Contra.big"_s);
        QCOMPARE(Text("lblMSize"), u"2 KB"_s);
        QCOMPARE(NameBox()->text(), u"Contra"_s);
        QCOMPARE(Comments()->Text(), u"New generals"_s);
    }

    void aSelectionWritesAModsCommentUnderTheOddKey() {
        const QString ini = AddMod(u"Contra.big"_s, "[Mod]\r\nComments=New generals\r\n").chopped(4) + u".ini"_s;
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        QCOMPARE(Ini(u"Mod"_s, u"Commentse"_s, ini), u"New generals"_s); // This is meant.
        QCOMPARE(Ini(u"Mod"_s, u"Comments"_s, ini), u"New generals"_s);
    }

    void aModWithoutIniThatFollowsAnotherEmptiesTheBoxesAndGetsOne() {
        AddMod(u"a.big"_s, "[Mod]\r\nName=A\r\nComments=B\r\n");
        const QString ini = AddMod(u"b.big"_s).chopped(4) + u".ini"_s;
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        QVERIFY(!Files::FileExists(ini));
        Click(*List("lstMods"), 1);
        QCOMPARE(NameBox()->text(), QString());
        QCOMPARE(Comments()->Text(), QString());
        QVERIFY(Files::FileExists(ini)); // This is meant.
    }

    void typingAModsNameWritesItAndChangesTheRow() {
        const QString ini = AddMod(u"a.big"_s).chopped(4) + u".ini"_s;
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        NameBox()->setFocus();
        QTest::keyClicks(NameBox(), u"Neu"_s);
        QCOMPARE(Ini(u"Mod"_s, u"Name"_s, ini), u"Neu"_s);
        QCOMPARE(Cell(*List("lstMods"), 0, 1), u"Neu"_s);
        Comments()->setFocus();
        QTest::keyClicks(Comments(), u"gut"_s);
        QCOMPARE(Ini(u"Mod"_s, u"Commentse"_s, ini), u"gut"_s); // This is meant.
        QCOMPARE(Ini(u"Mod"_s, u"Comments"_s, ini), QString());
        QCOMPARE(Cell(*List("lstMods"), 0, 2), QString()); // the row's comments stay. This is meant.
    }

    void typingAShellMapsNameAndCommentsWritesThem() {
        const QString ini = AddShellMap(u"001"_s, "[Infos]\r\nName=Waves\r\nComments=Sea\r\n") + u"\\QvInfos.ini"_s;
        Open();
        ClickNode(u"GenShellMaps"_s);
        Click(*List("lstShellMaps"), 0);
        QCOMPARE(VisibleDetails(), QStringList{u"mnuDetailsMods"_s});
        QCOMPARE(Text("lblMFileName"), u"Waves"_s);
        QCOMPARE(Text("lblMSize"), u"2 KB"_s);
        NameBox()->setFocus();
        NameBox()->selectAll();
        QTest::keyClicks(NameBox(), u"Storm"_s);
        QCOMPARE(Ini(u"Infos"_s, u"Name"_s, ini), u"Storm"_s);
        QCOMPARE(Cell(*List("lstShellMaps"), 0, 0), u"Storm"_s);
        Comments()->setFocus();
        Comments()->selectAll();
        QTest::keyClicks(Comments(), u"Wind"_s);
        QTest::keyClick(Comments(), Qt::Key_Return);
        QCOMPARE(Ini(u"Infos"_s, u"Comments"_s, ini), u"Wind"_s);
    }

    void whatAReplayWithAWrongMarkLeavesOpenIsToldAndLetGoOf() {
        [[maybe_unused]] const LostMemory lost;
        Write(Of(0).ReplayPath + u"b.rep"_s, "no replay");
        AddReplay(u"a"_s);
        Open();
        ClickNode(u"GenReplays"_s);
        QCOMPARE(Names(*List("lstReplays")), QStringList{u"a"_s});
        QAbstractButton* link = nullptr;
        for (QAbstractButton* const button : window_->findChildren<QAbstractButton*>())
            if (button->text() == u"Let go of it"_s && button->isVisible())
                link = button;
        QVERIFY(link != nullptr);
        ClickNode(u"GenMaps"_s);
        QVERIFY(Fails([this] { ClickNode(u"GenReplays"_s); })); // the number is taken. This is meant.
        QTest::mouseClick(link, Qt::LeftButton);
        ClickNode(u"GenMaps"_s);
        ClickNode(u"GenReplays"_s);
        QCOMPARE(Names(*List("lstReplays")), QStringList{u"a"_s});
    }

    void modelsKeepTheRules() {
        for (int number = 0; number < 5; ++number)
            AddReplay(u"r%1"_s.arg(number));
        Open();
        std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
        for (QAbstractItemModel* const model :
             {Tree()->model(), Part<QTreeView>("tvPlayers")->model(), List("lstReplays")->model(),
              List("lstMaps")->model(), List("lstMods")->model(), List("lstShellMaps")->model()})
            testers.push_back(std::make_unique<QAbstractItemModelTester>(
                model, QAbstractItemModelTester::FailureReportingMode::QtTest));
        for (const QString& key : {u"GenReplays"_s, u"GenMaps"_s, u"GenMods"_s, u"GenShellMaps"_s, u"GenReplays"_s})
            ClickNode(key);
        Click(*List("lstReplays"), 1);
        QTest::mouseClick(List("lstReplays")->header()->viewport(), Qt::LeftButton, {}, {20, 8});
        QTest::mouseClick(List("lstReplays")->header()->viewport(), Qt::LeftButton, {}, {20, 8});
        QTest::keyClick(window_.get(), Qt::Key_F5);
        QCOMPARE(List("lstReplays")->model()->rowCount(), 5);
    }

    void aPlayersNameThatLooksLikeMarkupIsShownAsItIs() {
        AddReplay(u"a"_s, 0, "H<b>Bob,0,0,TT,1,2,1,0,1:X:X:X:X:X:X:X:");
        Open();
        ClickNode(u"GenReplays"_s);
        Click(*List("lstReplays"), 0);
        const QAbstractItemModel& players = *Part<QTreeView>("tvPlayers")->model();
        QCOMPARE(players.index(0, 0, players.index(0, 0)).data().toString(), u"<b>Bob (USA)"_s);
    }
};

WINDOW_TEST(tst_personalfiles)

#include "tst_personalfiles.moc"
