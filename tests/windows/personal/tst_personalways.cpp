// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Every menu entry, link and key of the Personal Files window.
#include "core/Uninstaller.h"
#include "tests/windows/EveryWay.h"
#include "tests/windows/personal/PersonalFilesWindow.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_personalways : public PersonalFilesWindow {
    Q_OBJECT
public Q_SLOTS:

    void takeUrl(const QUrl& url) { openedUrls_ += url; }

private:
    RowListView& Replays() { return *List("lstReplays"); }

    CommandWays Call(const char* action, const QString& call, int link = -1) {
        return {action, link, [] {}, [this, call] { return !navigator_->Calls.filter(call).isEmpty(); }};
    }

    bool IsExported() { return ExportRecords.size() == 1 && navigator_->Calls.contains(u"ShowExportFiles"_s); }

    std::vector<CommandWays> All() {
        return {
            Call("mnuAdd", u"ShowAddFiles"_s, 0),
            {"mnuDelete", 1, [this] { host_->Answers = {Answer::Yes}; },
             [this] { return Names(Replays()) == QStringList{u"b"_s}; }},
            {"mnuExport", 2, [this] { ClickMark(Replays(), 1); }, [this] { return IsExported(); }, {EveryWay::ByMenu}},
            {"mnuExportRow", -1, [] {}, [this] { return IsExported(); }, {EveryWay::ByKey}},
            {"mnuRename", -1, [] {}, [this] { return Replays().viewport()->findChild<QLineEdit*>() != nullptr; }},
            {"mnuCheckAll", -1, [] {}, [this] { return IsMarked(Replays(), 0) && IsMarked(Replays(), 1); }},
            {"mnuCheckNone", -1, [this] { ClickMark(Replays(), 1); }, [this] { return !IsMarked(Replays(), 1); }},
            {"mnuOpenFolder", -1, [] {}, [this] { return openedUrls_.size() == 1; }},
            {"mnuCopyPath", -1, [] { QApplication::clipboard()->clear(); },
             [] { return QApplication::clipboard()->text().endsWith(u"a.rep"_s); }},
            {"mnuRefresh", -1, [this] { AddReplay(u"c"_s); }, [this] { return Names(Replays()).size() == 3; }},
            Call("mnuOptions", u"ShowOptions"_s),
            Call("mnuCheckForUpdates", u"CheckForUpdates manual"_s),
            Call("mnuAbout", u"ShowAbout"_s),
            {"mnuManual", -1, [] {}, [this] { return host_->Messages.size() == 1; }}, // there is none in this world
            {"mnuExit", -1, [] {}, [this] { return !window_->isVisible(); }},
        };
    }

    QList<QUrl> openedUrls_;

private Q_SLOTS:

    void init() {
        Begin();
        QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
    }

    void cleanup() {
        QDesktopServices::unsetUrlHandler(u"file"_s);
        End();
        openedUrls_.clear();
    }

    // What came by an install has a test of its own.
    void everyWayIsTried() {
        ShowTwoReplays();
        QCOMPARE(EveryWay::Unlisted(*window_, All()), QStringList{u"mnuUninstall"_s});
    }

    void everyWayRunsItsCommand_data() { EveryWay::AddRows(All()); }

    void everyWayRunsItsCommand() {
        QFETCH(int, command);
        QFETCH(int, way);
        const CommandWays used = All()[static_cast<std::size_t>(command)];
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        list.setFocus();
        used.Prepare();
        EveryWay::Use(*window_, used, way);
        QVERIFY(used.Done());
        QVERIFY(host_->Answers.empty());
    }
};

WINDOW_TEST(tst_personalways)

#include "tst_personalways.moc"
