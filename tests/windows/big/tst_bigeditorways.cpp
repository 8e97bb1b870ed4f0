// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Every menu entry, link and key of the BIG Editor, and what a double click and Enter do on its rows.
#include "platform/Files.h"
#include "tests/windows/EveryWay.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_bigeditorways : public BigEditorWindow {
    Q_OBJECT
private:
    void Work() {
        archive_ = world_->WriteFile(u"b.big"_s, ArchiveOf({{u"notes.csf"_s, "notes"}, {u"data\\x"_s, "x"}}));
        OpenArchive();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        shown_ = false;
    }

    QString RootText() { return Tree()->model()->index(0, 0).data().toString(); }

    bool HasCall(const QString& call) { return navigator_->Calls.contains(call); }

    bool WasGivenAway() {
        return QTest::qWaitFor([this] { return !navigator_->Calls.filter(u"OpenCSFFile"_s).isEmpty(); }, 2000);
    }

    QString NewPath() { return world_->Root() + u"\\new.big"_s; }

    /// Answers a modal window with one of its buttons.
    void Answered(const QString& button) {
        AnswerDialog([this, button](QWidget* dialog) {
            shown_ = true;
            dialog->findChild<QPushButton*>(button)->click();
        });
    }

    void SelectFile() {
        ClickRow(1);
        QCOMPARE(Files()->SelectedRows(), std::vector<int>{1});
    }

    void WillAdd() { host_->FileNames = {world_->WriteFile(u"added.txt"_s, "added")}; }

    CommandWays View(const char* action, ViewMode mode) {
        // Another one before.
        return {action, -1, [this, mode] { ViewItem(mode == ViewMode::List ? 0 : 3)->trigger(); },
                [this, mode] { return Files()->Mode() == mode; }};
    }

    CommandWays Call(const char* action, const QString& call) {
        return {action, -1, [] {}, [this, call] { return HasCall(call); }};
    }

    std::vector<CommandWays> FileCommands() {
        return {
            {"mnuNew", 3, [this] { host_->FileNames = {NewPath()}, Answered(u"cmdOK"_s); },
             [this] { return shown_ && RootText() == "new.big"_L1; }},
            {"mnuOpen", 4,
             [this] {
                 host_->FileNames = {world_->WriteFile(u"other.big"_s, ArchiveOf({{u"a"_s, "1"}, {u"b"_s, "2"}}))};
             },
             [this] {
                 return Rows() == QStringList({u"a"_s, u"b"_s});
             }},
            {"mnuSave", 5, [this] { WillAdd(), Part<QAction>("mnuAdd")->trigger(); },
             [this] {
                 return !window_->isWindowModified() && mBIG::BigEntries.size() == 3 && !mBIG::BigEntries[2].IsNew;
             }},
            {"mnuSaveAs", -1, [this] { host_->FileNames = {NewPath()}; },
             [this] { return Files::FileExists(NewPath()) && RootText() == "new.big"_L1; }},
            {"mnuFileVersion", 7, [this] { Answered(u"cmdDefault"_s); }, [this] { return shown_; }},
            {"mnuExit", -1, [] {}, [this] { return !window_->isVisible() && HasCall(u"ShowToolsMenu"_s); }},
        };
    }

    std::vector<CommandWays> EditCommands() {
        return {
            {"mnuModify", -1, [this] { SelectFile(), host_->Answers = {Answer::No}; },
             [this] { return WasGivenAway(); }},
            {"mnuExtract", 0, [this] { Answered(u"cmdCancel"_s); }, [this] { return shown_; }},
            {"mnuAdd", 1, [this] { WillAdd(); }, [this] { return Rows().contains(u"added.txt"_s); }},
            {"mnuDelete", 2, [this] { SelectFile(), host_->Answers = {Answer::Yes}; },
             [this] { return Rows() == QStringList{u"data"_s}; }},
            {"mnuNewFolder", 6, [] {}, [this] { return Tree()->currentIndex().data() == u"New Folder1"_s; }},
            {"mnuRename", -1, [this] { SelectFile(); },
             [this] { return Files()->Current()->viewport()->findChild<QLineEdit*>() != nullptr; }},
            {"mnuUp", -1, [this] { Select(u"data\\"_s); },
             [this] { return Tree()->currentIndex().data() == u"b.big"_s; }},
            {"mnuText", -1, [] {}, [this] { return Part<QWidget>("txtText")->isVisible(); }},
            {"mnuFind", -1, [] {}, [this] { return window_->findChild<QWidget*>(u"frmSearch"_s)->isVisible(); }},
            View("mnuLvView_0", ViewMode::LargeIcons),
            View("mnuLvView_1", ViewMode::Details),
            View("mnuLvView_2", ViewMode::SmallIcons),
            View("mnuLvView_3", ViewMode::List),
            Call("mnuOptions", u"ShowOptions"_s),
            Call("mnuCheckForUpdates", u"CheckForUpdates manual"_s),
            Call("mnuAbout", u"ShowAbout"_s),
            {"mnuManual", -1, [] {}, [this] { return host_->Messages.size() == 1; }}, // there is none in this world
        };
    }

    std::vector<CommandWays> All() {
        std::vector<CommandWays> all = FileCommands();
        for (const CommandWays& command : EditCommands())
            all.push_back(command);
        return all;
    }

    bool shown_ = false;

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void everyWayIsTried() {
        Work();
        QCOMPARE(EveryWay::Unlisted(*window_, All()), QStringList());
    }

    void everyWayRunsItsCommand_data() { EveryWay::AddRows(All()); }

    void everyWayRunsItsCommand() {
        QFETCH(int, command);
        QFETCH(int, way);
        const CommandWays used = All()[static_cast<std::size_t>(command)];
        Work();
        used.Prepare();
        EveryWay::Use(*window_, used, way);
        QVERIFY(used.Done());
        QVERIFY(host_->Answers.empty());
        QVERIFY(host_->FileNames.empty());
    }

    void aRowIsOpenedByDoubleClickAndEnter_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("byKey");
        for (const int mode : {0, 1, 2, 3}) {
            QTest::addRow("mode %d, double click", mode) << mode << false;
            QTest::addRow("mode %d, Enter", mode) << mode << true;
        }
    }

    void aRowIsOpenedByDoubleClickAndEnter() {
        QFETCH(int, mode);
        QFETCH(bool, byKey);
        Work();
        ViewItem(mode)->trigger();
        const auto open = [&](int row) {
            ClickRow(row);
            QAbstractItemView* const list = Files()->Current();
            if (byKey)
                QTest::keyClick(list, Qt::Key_Return);
            else
                QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                                   list->visualRect(list->model()->index(row, 0)).center());
        };
        open(1);
        QVERIFY(WasGivenAway());
        open(0);
        QTRY_COMPARE(Tree()->currentIndex().data().toString(), u"data"_s);
        QCOMPARE(Rows(), QStringList{u"x"_s});
    }
};

WINDOW_TEST(tst_bigeditorways)

#include "tst_bigeditorways.moc"
