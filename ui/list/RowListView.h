// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A list of rows with columns: header clicks sort, the blank key sets check marks, F2 edits a row's text, typing finds
/// a row.
#pragma once

#include "ui/list/RowGestures.h"
#include "ui/look/Hint.h"

#include <QTreeView>

#include <functional>
#include <vector>

class RowListModel;

class RowListView : public QTreeView {
    Q_OBJECT
public:
    explicit RowListView(QWidget* parent = nullptr);

    /// The model outlives the view. `sort` is what a click on a column's header does; without one the model sorts.
    void SetRows(RowListModel* model, const std::function<void(int column)>& sort = {});

    /// What the user does to the rows.
    [[nodiscard]] RowGestures* Gestures() const { return gestures_; }

    /// What stands in the list's place while it has no rows.
    void SetHint(const Hint& hint);

    /// The columns' widths but the last one's, where the user has sized them; none otherwise.
    [[nodiscard]] std::vector<int> UserWidths() const;
    /// Takes them as the user's; none, or another number of them, leaves the columns as they are.
    void SetUserWidths(const std::vector<int>& widths);

    /// Makes a row the only selected one, and scrolls to it. None for a place that is none.
    void SelectRow(int place);

Q_SIGNALS:
    /// The selected rows begin to be dragged, where dragging is enabled.
    void DragStarted();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void Sort(int column);
    void MarkColumns();
    void SizeColumns();

    RowGestures* gestures_;
    RowListModel* rows_ = nullptr;
    Hint hint_;
    std::function<void(int)> sort_;
    bool sizing_ = false;
    bool userSized_ = false; ///< the user moved a column's border: widths are the user's from then on
};
