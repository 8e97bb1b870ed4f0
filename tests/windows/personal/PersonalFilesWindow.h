// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the Personal Files window share: a window in a world with two games and the program's own texts,
/// files of all kinds, and ways to reach its parts.
#pragma once

#include "Places.h"
#include "core/Game.h"
#include "core/mMain.h"
#include "personal/lists/ExportRecords.h"
#include "personal/window/KeyedTreeModel.h"
#include "personal/window/frmPersonalFiles.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/list/RowListModel.h"
#include "ui/list/RowListView.h"
#include "ui/look/Hint.h"
#include "ui/text/CommentBox.h"
#include "ui/window/SideMenu.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTreeView>

#include <functional>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

class PersonalFilesWindow : public EditorTest<frmPersonalFiles> {
protected:
    static constexpr auto TwoPlayers = "HAlice,0,0,TT,1,2,1,0,1:CM,-1,3,-1,1:O:X:X:X:X:X:";

    /// Generals and Zero Hour are installed.
    void Begin(const QString& language = QStringLiteral("English")) {
        BeginInLanguage(language);
        world_->WriteFile(QStringLiteral("program\\gdatas.cfg"), Data(QStringLiteral("gdatas.cfg")));
        world_->InstallGame(0);
        world_->InstallGame(1);
        world_->Start();
        mMain::MakeUserFolders();
        ExportRecords.clear();
    }

    void Open() {
        window_ = std::make_unique<frmPersonalFiles>();
        window_->show();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    static QByteArray Data(const QString& file) {
        QFile data(QString::fromUtf8(Places::Sources) + QStringLiteral("/data/") + file);
        if (!data.open(QIODevice::ReadOnly))
            qFatal("%s is missing", qPrintable(data.fileName()));
        return data.readAll();
    }

    /// Makes a file; its full inside path.
    QString Write(const QString& path, const QByteArray& bytes) {
        return world_->WriteFile(path.sliced(world_->Root().size() + 1), bytes);
    }

    /// The toolkit's own routines lose memory when an exception passes through them. The program ends there; a test
    /// goes on, and what it makes from here on is not counted.
    struct LostMemory {
#ifdef __SANITIZE_ADDRESS__
        __lsan::ScopedDisabler Uncounted;
#endif
    };

    /// Whether a user's step ends in a run-time error, which nothing in the window catches.
    static bool Fails(const std::function<void()>& step) {
        try {
            step();
        } catch (const RuntimeError&) {
            return true;
        }
        return false;
    }

    static QByteArray Wide(const QString& text) {
        return {reinterpret_cast<const char*>(text.utf16()), 2 * (text.size() + 1)};
    }

    static QByteArray ReplayBytes(const QByteArray& slots, const QByteArray& map) {
        QByteArray bytes = "GENREP" + QByteArray(22, '\x01') + Wide(QStringLiteral("Last Replay")) +
                           QByteArray(16, '\0') + Wide(QStringLiteral("Version 1.04")) +
                           Wide(QStringLiteral("Aug 30 2003 20:55:29")) + QByteArray(12, '\0');
        return bytes + "US=1;M=03maps/" + map + ";MC=DEA9E8E4;MS=275491;SD=23770218;C=100;SR=0;SC=5000;O=N;S=" + slots +
               ";" + QByteArray(4000, '\0');
    }

    QString AddReplay(const QString& name, GameIndex game = 0, const QByteArray& slots = TwoPlayers,
                      const QByteArray& map = "alpine assault") {
        return Write(Of(game).ReplayPath + name + QStringLiteral(".rep"), ReplayBytes(slots, map));
    }

    QString AddMap(const QString& name, GameIndex game = 0) {
        QString folder = Of(game).MapPath + name;
        Write(folder + QStringLiteral("\\") + name + QStringLiteral(".map"), QByteArray(5000, 'm'));
        return folder;
    }

    /// A picture file of one colour, 24 bits, 16 x 16.
    static QByteArray Targa(const QColor& colour) {
        QByteArray bytes("\0\0\2\0\0\0\0\0\0\0\0\0\x10\0\x10\0\x18\0", 18);
        for (int pixel = 0; pixel < 16 * 16; ++pixel)
            for (const int part : {colour.blue(), colour.green(), colour.red()})
                bytes += static_cast<char>(part);
        return bytes;
    }

    QString AddMod(const QString& file, const QByteArray& ini = {}) {
        const QString path = Of(0).InstallPath + file;
        if (!ini.isEmpty())
            Write(path.chopped(4) + QStringLiteral(".ini"), ini);
        return Write(path, QByteArray(3000, 'b'));
    }

    QString AddShellMap(const QString& number, const QByteArray& ini) {
        QString folder = Of(0).InstallPath + QStringLiteral("Maps\\QvShellMap") + number;
        Write(folder + QStringLiteral("\\shellmap1.map"), QByteArray(2048, 's'));
        Write(folder + QStringLiteral("\\QvInfos.ini"), ini);
        return folder;
    }

    static const GameEntry& Of(GameIndex game) {
        return Game.at(static_cast<std::size_t>(game));
    }

    QTreeView* Tree() {
        return Part<QTreeView>("tvFiles");
    }

    KeyedTreeModel* Nodes() {
        return static_cast<KeyedTreeModel*>(Tree()->model());
    }

    QString NodeText(const QString& key) {
        return Nodes()->IndexOf(key).data().toString();
    }

    QString SelectedNode() {
        const QModelIndexList selected = Tree()->selectionModel()->selectedRows();
        return selected.isEmpty() ? QString() : Nodes()->KeyOf(selected.first());
    }

    void ClickNode(const QString& key) {
        const QModelIndex node = Nodes()->IndexOf(key);
        QVERIFY2(node.isValid(), qPrintable(key));
        Tree()->scrollTo(node);
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, Tree()->visualRect(node).center());
    }

    RowListView* List(const char* name) {
        return Part<RowListView>(name);
    }

    static QString Cell(const QAbstractItemView& list, int row, int column) {
        return list.model()->index(row, column).data().toString();
    }

    static QStringList Names(const QAbstractItemView& list) {
        QStringList names;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            names += Cell(list, row, 0);
        return names;
    }

    static void ClickMark(QAbstractItemView& list, int row) {
        const QRect cell = list.visualRect(list.model()->index(row, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
    }

    static bool IsMarked(const QAbstractItemView& list, int row) {
        return list.model()->index(row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }

    RowListView& ShowTwoReplays() {
        AddReplay(QStringLiteral("a"));
        AddReplay(QStringLiteral("b"));
        Open();
        ClickNode(QStringLiteral("GenReplays"));
        return *List("lstReplays");
    }

    SideLink* Link(int index) {
        return window_->findChild<SideLink*>(QStringLiteral("Label2_%1").arg(index));
    }

    void ClickLink(int index) {
        QTest::mouseClick(Link(index), Qt::LeftButton);
    }

    /// Which of Add, Delete and Export are enabled, in letters.
    QString Enabled() {
        QString letters;
        for (int index = 0; index < 3; ++index)
            letters += Link(index)->isEnabled() ? QStringLiteral("ADE")[index] : QChar(u'-');
        return letters;
    }

    /// The names of the visible controls among these.
    QStringList Visible(const QStringList& names) {
        QStringList visible;
        for (const QString& name : names)
            if (window_->findChild<QWidget*>(name)->isVisible())
                visible += name;
        return visible;
    }

    QStringList VisibleLists() {
        return Visible({QStringLiteral("ReplayList"), QStringLiteral("MapList"), QStringLiteral("ModList"),
                        QStringLiteral("ShellMapList")});
    }

    QStringList VisibleDetails() {
        return Visible(
            {QStringLiteral("mnuDetailsMaps"), QStringLiteral("mnuDetailsReplays"), QStringLiteral("mnuDetailsMods")});
    }

    QString Text(const char* label) {
        return Part<QLabel>(label)->text();
    }

    QLineEdit* NameBox() {
        return Part<QLineEdit>("txtMName");
    }

    CommentBox* Comments() {
        return Part<CommentBox>("txtMComments");
    }

    QString Status() {
        return Part<QLabel>("lblStatus")->text();
    }

    static QString Ini(const QString& section, const QString& key, const QString& file) {
        return mMain::INI().ReadINI(section, key, file);
    }
};
