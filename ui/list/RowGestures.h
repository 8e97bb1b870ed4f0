// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What mouse and keyboard do to the rows of a list, the same in each view that shows a RowListModel.
#pragma once

#include <QObject>
#include <QPoint>
#include <QSet>

#include <vector>

class QAbstractItemView;
class QKeyEvent;

class RowGestures : public QObject {
    Q_OBJECT
public:
    /// Sets the view up: whole rows are selected, several at once; a row's text is edited with F2 or a second click. A
    /// child of the view.
    explicit RowGestures(QAbstractItemView* view);

    /// The places of the selected rows, in the order shown.
    [[nodiscard]] std::vector<int> SelectedRows() const;

Q_SIGNALS:
    /// A row was clicked, or a key other than Enter and Delete was pressed on it.
    void RowClicked(int place);
    /// A row was double clicked, or Enter was pressed on it.
    void RowActivated(int place);
    /// The view was clicked beside its rows, or reached with the Tab key.
    void Entered();
    /// A frame was drawn over the rows, from beside them, and let go of.
    void FrameDrawn();
    /// The context menu is asked for: over a row, which is then the only one selected, or beside them (-1); by its key
    /// for the current row, which leaves a selection that the row is in.
    void MenuWanted(int place, QPoint globalPlace);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowMenu(QPoint place);
    bool ShowMenuOfCurrent();
    bool KeyEvent(const QKeyEvent& event);
    bool ToggleChecks();
    [[nodiscard]] bool IsEditing() const;

    QAbstractItemView* view_;
    bool drawing_ = false; ///< the mouse button went down beside the rows
    QSet<int> pressed_;    ///< the keys that went down here: those of a shortcut, or of a box that has closed, did not
};
