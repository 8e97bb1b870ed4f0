// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/FileList.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

bool IsShownIn(const BigEntry& entry, const QString& folderKey) {
    if (entry.Deleted || entry.Name.isEmpty())
        return false;
    // The last backslash decides without a search: the key ends in one, so few names get any further.
    const qsizetype lastBackslash = entry.Name.lastIndexOf(u'\\');
    if (lastBackslash > folderKey.size())
        return false;
    // The key counts wherever it stands in the name, not at its start only. This is meant.
    return folderKey.isEmpty() || entry.Name.contains(folderKey, Qt::CaseInsensitive);
}

QString TypeOf(const QString& name) {
    return name.sliced(name.lastIndexOf(u'.') + 1);
}

/// Sorts row numbers by a key a row, equal keys in the rows' own order.
template <typename Key>
void SortByKeys(std::vector<int>& rows, const std::vector<Key>& keys, bool descending) {
    const auto keyOf = [&](int row) -> const Key& { return keys[static_cast<std::size_t>(row)]; };
    std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
        return descending ? keyOf(right) < keyOf(left) : keyOf(left) < keyOf(right);
    });
}

} // namespace

void FileList::ShowFolder(const FolderTree& tree, int node, const QString& folderKey,
                          const std::vector<BigEntry>& entries, const QString& folderType, bool showsOnlyEntry) {
    Clear();
    keyLength_ = folderKey.size();
    folderType_ = folderType;
    if (tree.Has(node))
        for (const int child : tree.Node(node).Children)
            rows_.push_back({.Name = tree.Node(child).Text, .Index = child, .IsFolder = true});
    // A highest index of 0 stands for an empty archive. This is meant.
    if (entries.size() > 1 || showsOnlyEntry)
        for (std::size_t index = 0; index < entries.size(); ++index)
            if (const BigEntry& entry = entries[index]; IsShownIn(entry, folderKey))
                rows_.push_back(
                    {.Name = entry.Name, .Index = static_cast<int>(index), .Size = entry.Size, .IsNew = entry.IsNew});
    Sort();
}

void FileList::Clear() {
    rows_.clear();
    sorted_.clear();
}

QString FileList::Key(int place) const {
    const FileRow& row = Row(place);
    return (row.IsFolder ? u"DIR:"_s : u"BIG:"_s) + QString::number(row.Index);
}

QString FileList::Text(int place) const {
    return ColumnText(Row(place), Filename);
}

int FileList::TextLength(int place) const {
    const FileRow& row = Row(place);
    return static_cast<int>(row.IsFolder ? row.Name.size() : row.Name.size() - keyLength_);
}

void FileList::SetText(int place, const QString& text) {
    FileRow& row = rows_[Stored(place)];
    row.Name = row.IsFolder ? text : row.Name.first(keyLength_) + text;
}

QString FileList::Type(int place) const {
    return ColumnText(Row(place), Filetype);
}

QString FileList::SizeText(int place) const {
    const FileRow& row = Row(place);
    return row.IsFolder ? QString() : QString::number(row.Size);
}

QString FileList::ColumnText(const FileRow& row, Column column) const {
    if (column == Filename)
        return row.IsFolder ? row.Name : row.Name.sliced(keyLength_);
    return row.IsFolder ? folderType_ : TypeOf(row.Name);
}

void FileList::SortBy(Column column) {
    const Order order = OrderOf(column) == Order::Ascending ? Order::Descending : Order::Ascending;
    orders_.fill(Order::None);
    orders_[column] = order;
    Sort();
}

void FileList::Sort() {
    const auto* const marked = std::ranges::find_if(orders_, [](Order order) { return order != Order::None; });
    if (marked == orders_.end())
        return;
    const auto column = static_cast<Column>(marked - orders_.begin());
    const bool descending = *marked == Order::Descending;
    sorted_.resize(rows_.size());
    std::iota(sorted_.begin(), sorted_.end(), 0);
    if (column == Size) {
        std::vector<qint32> sizes(rows_.size());
        std::ranges::transform(rows_, sizes.begin(), &FileRow::Size);
        SortByKeys(sorted_, sizes, descending);
        return;
    }
    std::vector<QString> texts(rows_.size());
    std::ranges::transform(rows_, texts.begin(),
                           [&](const FileRow& row) { return ColumnText(row, column).toCaseFolded(); });
    SortByKeys(sorted_, texts, descending);
}

std::vector<int> FileList::PlacesByUnsorted() const {
    std::vector<int> places(rows_.size());
    for (int place = 0; place < Count(); ++place)
        places[Stored(place)] = place;
    return places;
}
