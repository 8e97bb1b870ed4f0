// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "core/Host.h"
#include "core/mTraduction.h"

#include <limits>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// A folder's key with another last part.
QString RenamedKey(const QString& key, const QString& text) {
    const qsizetype parent = key.size() < 2 ? 0 : key.lastIndexOf(u'\\', -2) + 1;
    return key.first(parent) + text + u'\\';
}

} // namespace

void BigEditor::Delete() {
    if (Locked())
        return;
    const QString question = GetText(u"ConfirmDelete"_s);
    if (Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo) != Host::Answer::Yes)
        return;
    if (state_.FocusPane == FocusedPane::List) {
        DeleteRows();
    } else {
        const int node = state_.SelectedNode;
        // Meant so: the root is kept only when there is more than one record.
        if (!tree_.Has(node) || (node == FolderTree::Root && mBIG::HighestIndex() >= 1))
            return;
        state_.SelectedNode = tree_.Node(node).Parent;
        DeleteFolder(node);
    }
    state_.Modified = true;
    view_.TreeChanged();
    ShowFolder(SelectedKey());
}

void BigEditor::DeleteFolder(int node) {
    if (!tree_.Has(node))
        return;
    const QString key = tree_.Node(node).Key;
    // Meant so: a table of one record keeps it, and the compare is exact while keys are lower-cased, so that entries
    // with capitals in their folder stay and bring it back with the next tree.
    if (mBIG::HighestIndex() >= 1)
        for (BigEntry& entry : mBIG::BigEntries)
            entry.Deleted = entry.Deleted || entry.Name.contains(key);
    tree_.Remove(node);
}

void BigEditor::DeleteRows() {
    std::vector<int> places = view_.SelectedRows();
    if (mBIG::HighestIndex() < 1 && places.size() > 1)
        places.erase(places.begin() + 1, places.end());
    for (const int place : places) {
        if (place < 0 || place >= list_.Count())
            continue;
        const FileRow& row = list_.Row(place);
        const auto index = static_cast<std::size_t>(row.Index);
        // Meant so: a folder that went before has moved the nodes behind it, and the rows' indices are taken as they
        // are.
        if (row.IsFolder)
            DeleteFolder(row.Index);
        else if (index < mBIG::BigEntries.size())
            mBIG::BigEntries[index].Deleted = true;
    }
}

void BigEditor::NewFolder() {
    if (Locked() || !tree_.Has(state_.SelectedNode))
        return;
    constexpr qint16 lastNumber = std::numeric_limits<qint16>::max();
    const auto textOf = [](qint16 number) { return u"New Folder"_s + QString::number(number); };
    const auto keyOf = [&](qint16 number) { return (SelectedKey() + textOf(number)).toLower() + u'\\'; };
    qint16& number = state_.NewFolderNumber;
    // An archive may have a folder of that name from another day; its files are not the new one's.
    while (number < lastNumber && tree_.Find(keyOf(number)) != FolderTree::None)
        ++number;
    const QString key = keyOf(number);
    if (tree_.Find(key) != FolderTree::None)
        return;
    const int node = tree_.Add(state_.SelectedNode, key, textOf(number));
    if (number < lastNumber)
        ++number;
    state_.SelectedNode = node;
    view_.TreeChanged();
    ShowFolder(key);
    view_.EditNode(node);
}

bool BigEditor::MayRenameNode(int node) const {
    return node != FolderTree::Root && tree_.Has(node);
}

// Meant so: a rename in the tree is no unsaved change, and a backslash is not looked for.
bool BigEditor::RenameNode(int node, const QString& text) {
    if (Locked() || text.isEmpty() || !MayRenameNode(node))
        return false;
    RenameFolder(node, text);
    view_.StateChanged();
    return true;
}

bool BigEditor::RenameRow(int place, const QString& text) {
    if (Locked() || text.isEmpty() || text.contains(u'\\') || place < 0 || place >= list_.Count())
        return false;
    const FileRow& row = list_.Row(place);
    if (row.IsFolder ? !MayRenameNode(row.Index) : static_cast<std::size_t>(row.Index) >= mBIG::BigEntries.size())
        return false;
    if (row.IsFolder)
        RenameFolder(row.Index, text);
    else
        RenameFile(place, text);
    list_.SetText(place, text);
    state_.Modified = true;
    view_.StateChanged();
    return true;
}

void BigEditor::RenameFolder(int node, const QString& text) {
    const QString oldKey = tree_.Node(node).Key;
    const QString newKey = RenamedKey(oldKey, text);
    tree_.Rename(node, newKey, text);
    // Meant so: compared exactly, and at every place of the name.
    for (BigEntry& entry : mBIG::BigEntries)
        entry.Name.replace(oldKey, newKey);
    view_.TreeChanged();
}

void BigEditor::RenameFile(int place, const QString& text) {
    const QString oldText = list_.Text(place);
    // Meant so: a folder part with the same text changes too. A name that ends in a backslash has no text to replace.
    if (!oldText.isEmpty())
        mBIG::BigEntries[static_cast<std::size_t>(list_.Row(place).Index)].Name.replace(oldText, text);
}
