// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/document/PersonalFiles.h"

#include "core/Host.h"
#include "core/Navigator.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "personal/document/PersonalTree.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;

PersonalFiles::PersonalFiles(PersonalFilesView& view)
    : view_(view),
      picture_([this](const QByteArray& bitmap) {
          // What can't be loaded leaves the picture before it. This is meant.
          if (bitmap.isEmpty())
              return;
          state_.MapPicture = bitmap;
          view_.PictureChanged();
      }),
      notices_(view, [this](const LossNotices::Lost& lost) { CommentKept(lost); }) {}

PersonalFiles::~PersonalFiles() = default;

void PersonalFiles::UseDecoder(PictureDecoder* decoder) {
    picture_.Use(decoder);
}

GameList& PersonalFiles::List(PersonalKind kind) {
    switch (kind) {
    case PersonalKind::Map:
        return maps_;
    case PersonalKind::Replay:
        return replays_;
    case PersonalKind::ShellMap:
        return shellMaps_;
    case PersonalKind::Mod:
        break;
    }
    return mods_;
}

const GameList& PersonalFiles::List(PersonalKind kind) const {
    return const_cast<PersonalFiles*>(this)->List(kind);
}

bool PersonalFiles::MenuFollows() {
    return !mMain::CommandLine.contains(u"/tpfiles"_s);
}

void PersonalFiles::RebuildTree() {
    const Busy busy(view_);
    state_.Nodes.clear();
    state_.SelectedNode.clear();
    PersonalTree::AddNodes(state_.Nodes, [this](PersonalKind kind, GameIndex game) {
        qint32 counted = game;
        return List(kind).List(counted, true);
    });
    view_.TreeChanged();
    view_.StateChanged();
    notices_.TellOpenNumber();
}

// No click: the list stays as it is.
void PersonalFiles::SelectNode(const QString& key) {
    if (PersonalTree::Find(state_.Nodes, key) != nullptr)
        state_.SelectedNode = key;
    view_.StateChanged();
}

void PersonalFiles::NodeClicked(const QString& key) {
    const PersonalNode* const node = PersonalTree::Find(state_.Nodes, key);
    if (node == nullptr)
        return;
    state_.SelectedNode = key;
    if (node->Kind)
        ShowKind(*node->Kind, node->Game);
    else
        state_.ShownList.reset(); // The kind stays as it was. This is meant.
    HideDetails();
    state_.AddEnabled = true;
    ForgetRows();
    UpdateStatus();
    view_.StateChanged();
}

void PersonalFiles::ShowKind(PersonalKind kind, GameIndex game) {
    state_.Kind = kind;
    if (kind == PersonalKind::Map)
        picture_.Prepare();
    // The replays alone are shown before they are listed, and stay so when that fails. This is meant.
    if (kind == PersonalKind::Replay) {
        state_.ShownList = kind;
        view_.StateChanged();
    }
    Relist(kind, game);
    state_.ShownList = kind;
}

void PersonalFiles::Relist(PersonalKind kind, qint32 game) {
    const Busy busy(view_);
    checked_.Clear();
    view_.ListChanging(kind, RowChange::Reset, 0);
    const auto listed = [&] {
        view_.ListChanged(kind, RowChange::Reset, 0);
        UpdateStatus();
        if (kind == PersonalKind::Replay)
            notices_.TellOpenNumber();
    };
    try {
        List(kind).List(game, false);
    } catch (...) {
        listed();
        throw;
    }
    listed();
}

void PersonalFiles::ForgetRows() {
    state_.DeleteEnabled = false;
    state_.ExportEnabled = false;
    state_.UninstallEnabled = false;
}

void PersonalFiles::HideDetails() {
    state_.MapDetailsVisible = false;
    state_.ReplayDetailsVisible = false;
    state_.ModDetailsVisible = false;
}

void PersonalFiles::RebuildAround(const QString& node) {
    RebuildTree();
    SelectNode(node);
}

void PersonalFiles::Add() {
    if (state_.AddEnabled)
        AddFile({});
}

void PersonalFiles::AddFile(const QString& file) {
    const QString node = state_.SelectedNode;
    Navigator::Current().ShowAddFiles(view_.Owner(), file);
    RebuildAround(node);
    // Nobody asked for the list: what it raises is raised by the next click.
    Ignoring([this] { RelistShown(); });
}

void PersonalFiles::Delete() {
    if (!state_.DeleteEnabled)
        return;
    const Host::Answer answer = Host::Current().Message(GetText(u"ConfirmDelete"_s), Host::Icon::Question,
                                                        Host::Buttons::YesNo, u"Brindock 2005"_s, Host::Answer::No);
    if (answer != Host::Answer::Yes)
        return;
    const QString node = state_.SelectedNode;
    const PersonalKind kind = state_.Kind;
    bool done = false;
    List(kind).Delete(done);
    if (done)
        ForgetLost();
    Relist(kind, GameList::CurrentGame); // A row whose file could not be deleted comes back with it. This is meant.
    RebuildAround(node);
    HideDetails();
    ForgetRows();
    view_.StateChanged();
}

void PersonalFiles::Export() {
    if (state_.ExportEnabled)
        HandOver();
}

void PersonalFiles::ExportRow(int place) {
    if (!Has(place))
        return;
    CheckChanged(place, true);
    HandOver();
}

void PersonalFiles::HandOver() {
    List(*state_.ShownList).BuildExportList();
    const QString node = state_.SelectedNode;
    Navigator::Current().ShowExportFiles(view_.Owner());
    RebuildAround(node);
}

void PersonalFiles::Refresh() {
    const QString node = state_.SelectedNode;
    RebuildAround(node);
    RelistShown();
}

void PersonalFiles::RelistShown() {
    if (!state_.ShownList)
        return;
    const PersonalKind kind = *state_.ShownList;
    const RowList& rows = List(kind).Rows();
    std::set<QString> marked;
    for (const int place : rows.Checked())
        marked.insert(rows.Row(place).Key);
    const int selected = List(kind).Selected();
    const QString key = Has(selected) ? Row(selected).Key : QString();
    Relist(kind, GameList::CurrentGame);
    CheckLikeBefore(marked);
    HideDetails();
    ForgetRows();
    view_.StateChanged();
    if (const int place = rows.Find(key); place >= 0) {
        view_.SelectRow(kind, place);
        RowSelected(place);
    }
}

void PersonalFiles::CheckLikeBefore(const std::set<QString>& keys) {
    for (int place = 0; !keys.empty() && place < List(*state_.ShownList).Rows().Count(); ++place)
        if (keys.contains(Row(place).Key))
            CheckChanged(place, true);
}
