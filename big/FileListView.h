// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file list: one model shown as large icons, as details, as small icons or as a list, with one selection.
#pragma once

#include "big/BigEditor.h"

#include <QStackedWidget>

class FileListModel;
class QAbstractItemView;
class QHeaderView;
class QItemSelectionModel;
class QListView;
class QTreeView;

class FileListView : public QStackedWidget {
    Q_OBJECT
public:
    explicit FileListView(QWidget* parent = nullptr);

    /// The model outlives the view.
    void SetModel(FileListModel* model);

    void SetMode(ViewMode mode);

    [[nodiscard]] ViewMode Mode() const { return mode_; }

    /// What a screen reader calls the list.
    void SetAccessibleNames(const QString& name);

    /// The Tab key comes here from that control, whatever the mode.
    void FollowInTabOrder(QWidget* control);

    [[nodiscard]] QItemSelectionModel* Selection() const;
    /// The places of the selected rows, in the order shown.
    [[nodiscard]] std::vector<int> SelectedRows() const;
    [[nodiscard]] QHeaderView* Header() const;
    /// The view that the mode shows.
    [[nodiscard]] QAbstractItemView* Current() const;

    /// Brings the header's mark and the size of the icons' cells in line with the rows. To be called after each change.
    void RowsChanged();

Q_SIGNALS:
    /// A row was clicked, or a key other than Enter and Delete was pressed on it.
    void RowClicked(int place);
    /// A row was double clicked, or Enter was pressed on it.
    void RowActivated(int place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Prepare(QAbstractItemView* view);
    void SizeCells();

    FileListModel* model_ = nullptr;
    QTreeView* details_;
    QListView* icons_;
    ViewMode mode_ = ViewMode::SmallIcons;
};
