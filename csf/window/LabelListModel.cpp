// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/LabelListModel.h"

#include "core/mTraduction.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// One line of a cell: line breaks show as a sign, and a long text no further than a cell can ever reach.
QString OneLine(const QString& text) {
    constexpr qsizetype longest = 500;
    return text.first(std::min(text.size(), longest)).replace(u'\n', u'\u21B5').replace(u'\r', u' ');
}

/// A tip never takes a game's text for markup.
QString PlainTip(const QString& text) {
    return text.isEmpty() ? QString() : u"<p style='white-space:pre-wrap'>"_s + text.toHtmlEscaped() + u"</p>"_s;
}

} // namespace

LabelListModel::LabelListModel(const CsfEditor& editor, QObject* parent)
    : QAbstractTableModel(parent),
      editor_(editor),
      captions_{GetText(u"Name"_s), GetText(u"Value"_s)} {}

void LabelListModel::Begin(LabelChange change, int place) {
    switch (change) {
    case LabelChange::Reset:
        return beginResetModel();
    case LabelChange::Insert:
        return beginInsertRows({}, place, place);
    case LabelChange::Remove:
        return beginRemoveRows({}, place, place);
    case LabelChange::Sort:
        Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    }
}

void LabelListModel::End(LabelChange change) {
    switch (change) {
    case LabelChange::Reset:
        return endResetModel();
    case LabelChange::Insert:
        return endInsertRows();
    case LabelChange::Remove:
        return endRemoveRows();
    case LabelChange::Sort:
        MovePersistentRows();
        Q_EMIT layoutChanged({}, VerticalSortHint);
    }
}

void LabelListModel::MovePersistentRows() {
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& index : before)
        after += this->index(editor_.NewPlaces().at(static_cast<std::size_t>(index.row())), index.column());
    changePersistentIndexList(before, after);
}

void LabelListModel::RowChanged(int place) {
    Q_EMIT dataChanged(index(place, LabelList::Name), index(place, LabelList::Value));
}

int LabelListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : editor_.List().Count();
}

int LabelListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : LabelList::ColumnCount;
}

QVariant LabelListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LabelRow& row = editor_.List().Row(index.row());
    if (role == Qt::DisplayRole)
        return OneLine(index.column() == LabelList::Name ? row.Name : row.Value);
    if (role == Qt::ToolTipRole)
        return PlainTip(row.Value);
    return {};
}

QVariant LabelListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= captions_.size() || role != Qt::DisplayRole)
        return {};
    return captions_[section];
}

Qt::ItemFlags LabelListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemNeverHasChildren : flags;
}
