// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/list/RowListModel.h"

using namespace Qt::StringLiterals;

namespace {

/// One line of a cell: line breaks show as a sign, and a long text no further than a cell can ever reach.
QString OneLine(const QString& text) {
    constexpr qsizetype longest = 500;
    QString line = text.size() > longest ? text.first(longest) : text;
    return line.replace(u'\n', u'\u21B5').replace(u'\r', u' ');
}

} // namespace

RowListModel::RowListModel(RowSource& rows, QObject* parent)
    : QAbstractTableModel(parent),
      rows_(rows),
      columns_(rows.Columns()) {}

QString RowListModel::PlainTip(const QString& text) {
    return text.isEmpty() ? QString() : u"<p style='white-space:pre-wrap'>"_s + text.toHtmlEscaped() + u"</p>"_s;
}

void RowListModel::Begin(RowChange change, int place) {
    switch (change) {
    case RowChange::Reset:
        return beginResetModel();
    case RowChange::Insert:
        return beginInsertRows({}, place, place);
    case RowChange::Remove:
        return beginRemoveRows({}, place, place);
    case RowChange::Sort:
        Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    }
}

void RowListModel::End(RowChange change, const std::vector<int>& newPlaces) {
    switch (change) {
    case RowChange::Reset:
        return endResetModel();
    case RowChange::Insert:
        return endInsertRows();
    case RowChange::Remove:
        return endRemoveRows();
    case RowChange::Sort:
        MovePersistentRows(newPlaces);
        Q_EMIT layoutChanged({}, VerticalSortHint);
    }
}

void RowListModel::MovePersistentRows(const std::vector<int>& newPlaces) {
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& index : before)
        after += this->index(newPlaces.at(static_cast<std::size_t>(index.row())), index.column());
    changePersistentIndexList(before, after);
}

void RowListModel::RowChanged(int place) {
    if (place < rows_.Count())
        Q_EMIT dataChanged(index(place, 0), index(place, columnCount() - 1));
}

void RowListModel::SortBy(int column) {
    Begin(RowChange::Sort);
    End(RowChange::Sort, rows_.SortBy(column));
}

void RowListModel::Check(const std::vector<int>& places, bool checked) {
    for (const int place : places) {
        if (rows_.IsChecked(place) == checked)
            continue;
        rows_.SetChecked(place, checked);
        const QModelIndex row = index(place, 0);
        Q_EMIT dataChanged(row, row, {Qt::CheckStateRole});
        Q_EMIT CheckChanged(place, checked);
    }
}

void RowListModel::CheckAll(bool checked) {
    std::vector<int> places(static_cast<std::size_t>(rows_.Count()));
    std::iota(places.begin(), places.end(), 0);
    Check(places, checked);
}

int RowListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_.Count();
}

int RowListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RowListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int place = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return OneLine(rows_.Text(place, index.column()));
    case Qt::EditRole:
        return rows_.Text(place, index.column());
    case Qt::ToolTipRole:
        return PlainTip(rows_.Tip(place));
    case Qt::CheckStateRole:
        if (index.column() == 0 && rows_.HasChecks())
            return rows_.IsChecked(place) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    default:
        return Look(place, index.column(), role);
    }
}

QVariant RowListModel::Look(int /*place*/, int /*column*/, int /*role*/) const {
    return {};
}

bool RowListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || index.column() != 0)
        return false;
    if (role == Qt::CheckStateRole && rows_.HasChecks()) {
        Check({index.row()}, value.value<Qt::CheckState>() == Qt::Checked);
        return true;
    }
    if (role != Qt::EditRole || !rows_.CanEdit() || !rows_.TakesEdit(index.row(), value.toString()))
        return false;
    Q_EMIT RenameWanted(index.row(), value.toString());
    return true;
}

Qt::ItemFlags RowListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    if (index.column() == 0 && rows_.CanEdit())
        flags |= Qt::ItemIsEditable;
    if (index.column() == 0 && rows_.HasChecks())
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QVariant RowListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const RowColumn& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return column.Caption;
    if (role == Qt::TextAlignmentRole && column.Sort == SortKind::Number)
        return {Qt::AlignRight | Qt::AlignVCenter};
    return {};
}

#include <numeric>
