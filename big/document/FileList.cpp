// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/FileList.h"

#include "core/mTraduction.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

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

QString FileList::Text(int place, int column) const {
    return column == Size ? SizeText(place) : ColumnText(Row(place), column);
}

QString FileList::ColumnText(const FileRow& row, int column) const {
    if (column == Filename)
        return row.IsFolder ? row.Name : row.Name.sliced(keyLength_);
    return row.IsFolder ? folderType_ : TypeOf(row.Name);
}

std::vector<RowColumn> FileList::Columns() const {
    return {{.Caption = GetText(u"FileName"_s), .Pixels = 220},
            {.Caption = GetText(u"FileType"_s), .Pixels = 100},
            {.Caption = GetText(u"Size"_s), .Sort = SortKind::Number}};
}

std::vector<int> FileList::SortBy(int column) {
    std::vector<int> before(rows_.size());
    for (int place = 0; place < Count(); ++place)
        before[static_cast<std::size_t>(place)] = static_cast<int>(Stored(place));
    order_.Click(column);
    Sort();
    const std::vector<int> places = PlacesOf(sorted_);
    std::ranges::transform(before, before.begin(), [&](int row) { return places[static_cast<std::size_t>(row)]; });
    return before;
}

void FileList::Sort() {
    const std::optional<int> column = order_.MarkedColumn();
    if (!column)
        return;
    if (column == Size) {
        std::vector<qint64> sizes(rows_.size());
        std::ranges::transform(rows_, sizes.begin(), &FileRow::Size);
        sorted_ = order_.Sort(sizes);
        return;
    }
    std::vector<QString> texts(rows_.size());
    std::ranges::transform(rows_, texts.begin(), [&](const FileRow& row) { return ColumnText(row, *column); });
    sorted_ = order_.Sort(std::move(texts));
}
