// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The document of the personal files in a world of four games, with a view that records. Texts are their keys.
#pragma once

#include "core/mMain.h"
#include "personal/document/PersonalFiles.h"
#include "platform/Files.h"
#include "tests/personal/replay_bytes.h"
#include "tests/support/ScriptedDecoder.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"

#include <QLocale>

#include <ostream>

inline void PrintTo(PersonalKind kind, std::ostream* out) {
    *out << "kind " << static_cast<int>(kind);
}

class RecordingPersonalView : public PersonalFilesView {
public:
    QStringList Log; ///< every call that changes what is seen, in order
    int Busy = 0;
    int MostBusy = 0;
    int StatusChanges = 0;
    int BoxChanges = 0;
    int PlayerChanges = 0;
    int PictureChanges = 0;
    std::vector<int> Rows; ///< places of RowChanged
    std::vector<int> Selected;
    std::vector<Notice> Notices;
    QString Copied;
    QString Opened;
    QObject Window;
    std::function<void()> OnStateChanged;

    [[nodiscard]] Notice Told() const { return Notices.empty() ? Notice{} : Notices.back(); }

    void ShowWindow() override { Log += QStringLiteral("ShowWindow"); }

    void StateChanged() override {
        Log += QStringLiteral("State");
        if (OnStateChanged)
            OnStateChanged();
    }

    void ShowBusy(bool busy) override {
        Busy += busy ? 1 : -1;
        MostBusy = std::max(MostBusy, Busy);
    }

    void ShowNotice(const Notice& notice) override {
        Log += QStringLiteral("Notice");
        Notices.push_back(notice);
    }

    void TreeChanged() override { Log += QStringLiteral("Tree"); }

    void ListChanging(PersonalKind list, RowChange change, int /*place*/) override {
        Log += QStringLiteral("Changing ") + NameOf(list) +
               (change == RowChange::Sort ? QStringLiteral(" Sort") : QString());
        ++open_;
    }

    void ListChanged(PersonalKind list, RowChange change, int /*place*/) override {
        EXPECT_EQ(open_--, 1) << "changes come in pairs";
        Log += QStringLiteral("Changed ") + NameOf(list) +
               (change == RowChange::Sort ? QStringLiteral(" Sort") : QString());
    }

    void RowChanged(PersonalKind /*list*/, int place) override { Rows.push_back(place); }

    void SelectRow(PersonalKind /*list*/, int place) override { Selected.push_back(place); }

    void PlayersChanged() override { ++PlayerChanges; }

    void PictureChanged() override { ++PictureChanges; }

    void BoxesChanged() override { ++BoxChanges; }

    void StatusChanged() override { ++StatusChanges; }

    void CopyText(const QString& text) override { Copied = text; }

    void OpenFolder(const QString& folder) override { Opened = folder; }

    [[nodiscard]] QObject* Owner() override { return &Window; }

    static QString NameOf(PersonalKind kind) {
        const QStringList names{QStringLiteral("Map"), QStringLiteral("Replay"), QStringLiteral("ShellMap"),
                                QStringLiteral("Mod")};
        return names.at(static_cast<int>(kind));
    }

private:
    int open_ = 0;
};

class PersonalDocument : public testing::Test {
protected:
    PersonalDocument() {
        QLocale::setDefault(QLocale(QLocale::English));
        for (GameIndex game = 0; game < GameCount; ++game)
            Place.InstallGame(game);
        Place.Start();
        mMain::MakeUserFolders();
    }

    ~PersonalDocument() override {
        Personal.UseDecoder(nullptr);
        mMain::CommandLine.clear();
        QLocale::setDefault(locale_);
    }

    [[nodiscard]] const PersonalFilesState& State() const { return Personal.State(); }

    [[nodiscard]] static const GameEntry& Of(GameIndex game) { return Game.at(static_cast<std::size_t>(game)); }

    /// Writes a file by its full path.
    QString Put(const QString& path, const QByteArray& bytes) const {
        return Place.WriteFile(path.sliced(Place.Root().size() + 1), bytes);
    }

    QString PutReplay(const QString& name, const QByteArray& bytes = SampleReplay(), GameIndex game = 0) const {
        return Put(Of(game).ReplayPath + name, bytes);
    }

    /// Returns the map's folder.
    QString PutMap(const QString& name, qsizetype size = 1, GameIndex game = 0) const {
        Put(Of(game).MapPath + name + u'\\' + name + QStringLiteral(".map"), QByteArray(size, 'm'));
        return Of(game).MapPath + name;
    }

    /// Returns the archive's path; without a text there is no INI file.
    QString PutMod(const QString& name, const QByteArray& ini = {}, GameIndex game = 0) const {
        if (!ini.isEmpty())
            Put(Of(game).InstallPath + name + QStringLiteral(".ini"), ini);
        return Put(Of(game).InstallPath + name + QStringLiteral(".big"), "archive");
    }

    /// Returns the shell map's folder.
    QString PutShellMap(int number, const QByteArray& ini, qsizetype size = 2048, GameIndex game = 0) const {
        QString folder = GameFiles::ShellMapFolder(game, GameFiles::ShellMapName(QString::number(number)));
        Put(folder + QStringLiteral("\\shellmap1.map"), QByteArray(size, 's'));
        Put(folder + QStringLiteral("\\QvInfos.ini"), ini);
        return folder;
    }

    /// Makes the tree, clicks a node and selects a row.
    void Open(const QString& node, int row = GameList::None) {
        Personal.RebuildTree();
        Personal.NodeClicked(node);
        if (row != GameList::None)
            Personal.RowSelected(row);
    }

    [[nodiscard]] QStringList NodeTexts() const {
        QStringList texts;
        for (const PersonalNode& node : State().Nodes)
            texts += node.Text;
        return texts;
    }

    [[nodiscard]] QString NodeText(const QString& key) const {
        for (const PersonalNode& node : State().Nodes)
            if (node.Key == key)
                return node.Text;
        return {};
    }

    [[nodiscard]] const RowList& Rows(PersonalKind kind) { return Personal.List(kind).Rows(); }

    [[nodiscard]] QStringList Names(PersonalKind kind) {
        QStringList names;
        for (int place = 0; place < Rows(kind).Count(); ++place)
            names += Rows(kind).Row(place).Text;
        return names;
    }

    /// Which of the three panes are shown, as "map replay mod".
    [[nodiscard]] QString Panes() const {
        QStringList panes;
        if (State().MapDetailsVisible)
            panes += QStringLiteral("map");
        if (State().ReplayDetailsVisible)
            panes += QStringLiteral("replay");
        if (State().ModDetailsVisible)
            panes += QStringLiteral("mod");
        return panes.join(u' ');
    }

    /// Label2_0 to Label2_2 as "yes no no".
    [[nodiscard]] QString Actions() const {
        const auto word = [](bool enabled) { return enabled ? QStringLiteral("yes") : QStringLiteral("no"); };
        return word(State().AddEnabled) + u' ' + word(State().DeleteEnabled) + u' ' + word(State().ExportEnabled);
    }

    [[nodiscard]] static QString Ini(const QString& section, const QString& key, const QString& file) {
        return mMain::INI().ReadINI(section, key, file);
    }

    /// Clicks the last notice's link of that text.
    void ClickLink(const QString& text) {
        for (const NoticeLink& link : View.Told().Links) {
            if (link.Text == text)
                return link.Run();
        }
        FAIL() << "no link " << text.toStdString();
    }

    World Place;
    ScriptedHost Speaker;
    ScriptedNavigator Way;
    ScriptedDecoder Decoder;
    RecordingPersonalView View;
    PersonalFiles Personal{View};

private:
    QLocale locale_; ///< the one in use before
};
