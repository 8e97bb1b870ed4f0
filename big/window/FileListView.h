// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file list: one model shown as large icons, as details, as small icons or as a list, with one selection.
#pragma once

#include "big/document/BigEditor.h"

#include <QStackedWidget>

class FileListModel;
class QAbstractItemView;
class QAction;
class QDropEvent;
class QHeaderView;
class QItemSelectionModel;
class QListView;
class RowGestures;
class RowListView;

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
    /// Selects rows, in order, and gives another (-1 for none) the focus frame.
    void Select(const std::vector<int>& places, int current);
    [[nodiscard]] QHeaderView* Header() const;
    /// The view that the mode shows.
    [[nodiscard]] QAbstractItemView* Current() const;

    /// Brings the size of the icons' cells in line with the rows. To be called after each change.
    void RowsChanged();

    /// Adds what the list and its keys share with the menus, such as the Delete key.
    void AddAction(QAction* action);

Q_SIGNALS:
    /// A row was clicked, or a key other than Enter and Delete was pressed on it.
    void RowClicked(int place);
    /// A row was double clicked, or Enter was pressed on it.
    void RowActivated(int place);
    /// The list was clicked beside its rows, or reached with the Tab key.
    void Entered();
    /// A frame was drawn over rows.
    void FrameDrawn();
    /// The context menu is asked for: over a row, which is then the only one selected, or beside them (-1).
    void MenuWanted(int place, QPoint globalPlace);
    /// The selected rows begin to be dragged.
    void DragStarted();
    /// Files and folders were dropped from another program, inside paths.
    void FilesDropped(const QStringList& paths);

protected:
    /// The view that is shown has the keyboard for the whole.
    void focusInEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow(QAbstractItemView* view, RowGestures* gestures);
    bool DropEvent(QDropEvent& event);
    void SizeCells();
    void ShowDropFrame(bool show);

    FileListModel* model_ = nullptr;
    RowListView* details_;
    QListView* icons_;
    RowGestures* iconGestures_;
    QWidget* dropFrame_; ///< around the list while files are dragged over it
    ViewMode mode_ = ViewMode::SmallIcons;
};
