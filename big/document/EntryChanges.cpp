// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/EntryChanges.h"

#include "big/document/KeptRows.h"
#include "big/format/ArchiveEdits.h"
#include "core/Host.h"
#include "core/LostLetters.h"
#include "core/mTraduction.h"

#include <limits>
#include <set>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

void AddEntriesOf(const QString& key, std::set<int>& entries) {
    for (std::size_t index = 0; index < mBIG::BigEntries.size(); ++index)
        if (!mBIG::BigEntries[index].Deleted && mBIG::BigEntries[index].Name.contains(key))
            entries.insert(static_cast<int>(index));
}

} // namespace

// The rows and folders as they are now. A table of one record keeps its folders' entry.
EntryChanges::Leaving EntryChanges::WhatGoes() const {
    const EditorState& state = panes_.State;
    std::set<int> entries;
    const auto add = [&](int node) {
        if (mBIG::HighestIndex() >= 1 && node != FolderTree::Root && panes_.Tree.Has(node))
            AddEntriesOf(panes_.Tree.Node(node).Key, entries);
    };
    int of = panes_.Tree.Has(state.SelectedNode) ? state.SelectedNode : static_cast<int>(FolderTree::Root);
    if (state.FocusPane != FocusedPane::List) {
        add(of);
    } else {
        const std::vector<int> places = panes_.View.SelectedRows();
        for (const int place : places) {
            if (place < 0 || place >= panes_.List.Count())
                continue;
            const FileRow& row = panes_.List.Row(place);
            if (places.size() == 1 && !row.IsFolder)
                return {panes_.List.Text(place), 1};
            if (places.size() == 1)
                of = row.Index;
            if (row.IsFolder)
                add(row.Index);
            else
                entries.insert(row.Index);
        }
    }
    const QString folder = panes_.Tree.Has(of) ? panes_.Tree.Node(of).Text : QString();
    // The folder's name comes last, as it may hold any letters.
    QString text = GetText(u"DeletesOfFolder"_s).replace("%2"_L1, QString::number(entries.size()));
    return {text.replace("%1"_L1, folder), entries.size()};
}

void EntryChanges::Delete() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    const Leaving leaving = WhatGoes();
    const QString question = GetText(u"ConfirmDelete"_s) + u"\r\n\r\n"_s + leaving.Text;
    // Much is not lost by one key.
    const Host::Answer usual = leaving.Count > 1 ? Host::Answer::No : Host::Answer::Yes;
    if (Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo, u"Brindock 2005"_s, usual) !=
        Host::Answer::Yes)
        return;
    EditorState& state = panes_.State;
    KeptRows kept(panes_);
    if (state.FocusPane == FocusedPane::List) {
        DeleteRows();
    } else {
        const int node = state.SelectedNode;
        // The root is kept only when there is more than one record. This is meant.
        if (!panes_.Tree.Has(node) || (node == FolderTree::Root && mBIG::HighestIndex() >= 1))
            return;
        state.SelectedNode = panes_.Tree.Node(node).Parent;
        DeleteFolder(node);
    }
    state.Modified = true;
    panes_.View.TreeChanged();
    panes_.ShowFolder(panes_.SelectedKey());
    kept.PutBack();
}

void EntryChanges::DeleteFolder(int node) {
    if (!panes_.Tree.Has(node))
        return;
    // A table of one record keeps it, and the compare is exact while keys are lower-cased, so that entries with
    // capitals in their folder stay and bring it back with the next tree. This is meant.
    if (mBIG::HighestIndex() >= 1)
        ArchiveEdits::DeleteFolder(mBIG::Open(), panes_.Tree.Node(node).Key);
    panes_.Tree.Remove(node);
}

void EntryChanges::DeleteRows() {
    std::vector<int> places = panes_.View.SelectedRows();
    if (mBIG::HighestIndex() < 1 && places.size() > 1)
        places.erase(places.begin() + 1, places.end());
    for (const int place : places) {
        if (place < 0 || place >= panes_.List.Count())
            continue;
        const FileRow& row = panes_.List.Row(place);
        // A folder that went before has moved the nodes behind it; the rows' indices are taken as they are.
        // This is meant.
        if (row.IsFolder)
            DeleteFolder(row.Index);
        else if (static_cast<std::size_t>(row.Index) < mBIG::BigEntries.size())
            ArchiveEdits::DeleteEntry(mBIG::Open(), row.Index);
    }
}

void EntryChanges::NewFolder() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    FolderTree& tree = panes_.Tree;
    EditorState& state = panes_.State;
    if (!tree.Has(state.SelectedNode))
        return;
    constexpr qint16 lastNumber = std::numeric_limits<qint16>::max();
    const auto textOf = [](qint16 number) { return u"New Folder"_s + QString::number(number); };
    const auto keyOf = [&](qint16 number) { return (panes_.SelectedKey() + textOf(number)).toLower() + u'\\'; };
    qint16& number = state.NewFolderNumber;
    // An archive may have a folder of that name from another day; its files are not the new one's.
    while (number < lastNumber && tree.Find(keyOf(number)) != FolderTree::None)
        ++number;
    const QString key = keyOf(number);
    if (tree.Find(key) != FolderTree::None)
        return;
    const int node = tree.Add(state.SelectedNode, key, textOf(number));
    if (number < lastNumber)
        ++number;
    state.SelectedNode = node;
    panes_.View.TreeChanged();
    panes_.ShowFolder(key);
    panes_.View.EditNode(node);
}

bool EntryChanges::MayRenameNode(int node) const {
    return node != FolderTree::Root && panes_.Tree.Has(node);
}

// A rename in the tree is no unsaved change, and a backslash is not looked for. This is meant.
bool EntryChanges::RenameNode(int node, const QString& text) {
    if (EditorPanes::Locked() || text.isEmpty() || !MayRenameNode(node))
        return false;
    RenameFolder(node, text);
    panes_.TellNames();
    panes_.View.StateChanged();
    return true;
}

bool EntryChanges::RenameRow(int place, const QString& text) {
    FileList& list = panes_.List;
    if (EditorPanes::Locked() || text.isEmpty() || text.contains(u'\\') || place < 0 || place >= list.Count())
        return false;
    const FileRow& row = list.Row(place);
    if (row.IsFolder ? !MayRenameNode(row.Index) : static_cast<std::size_t>(row.Index) >= mBIG::BigEntries.size())
        return false;
    panes_.State.Modified = true;
    const QString stored = LostLetters::AsStored(text);
    // A folder part with the same text changes too. This is meant.
    if (row.IsFolder) {
        RenameFolder(row.Index, text);
    } else {
        ArchiveEdits::RenameEntry(mBIG::Open(), row.Index, list.Text(place), stored);
        if (stored != text)
            panes_.Names.Typed(text, mBIG::BigEntries[static_cast<std::size_t>(row.Index)].Name);
    }
    list.SetText(place, stored);
    panes_.TellNames();
    panes_.View.StateChanged();
    return true;
}

void EntryChanges::RenameFolder(int node, const QString& text) {
    const QString oldKey = panes_.Tree.Node(node).Key;
    const QString stored = LostLetters::AsStored(text);
    const QString newKey = ArchiveEdits::RenamedKey(oldKey, stored);
    panes_.Tree.Rename(node, newKey, stored);
    if (stored != text)
        panes_.Names.Typed(text, newKey);
    // A folder that no entry lies in is in no file either, whatever its name.
    if (ArchiveEdits::RenameFolder(mBIG::Open(), oldKey, newKey) > 0 && newKey != oldKey)
        panes_.TellUnmarked();
    panes_.View.TreeChanged();
}
