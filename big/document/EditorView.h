// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the BIG Editor's document shows of itself and what it asks of its window.
#pragma once

#include "big/document/Extraction.h"
#include "big/document/FolderTree.h"
#include "core/Document.h"

#include <QPoint>
#include <QString>

#include <vector>

/// Where the user is in the views. Places are those of the list's rows, -1 for none; scrolling is in pixels.
struct ViewPlace {
    std::vector<int> Selected;
    int Current = -1; ///< the row with the focus, which may be none of the selected ones
    QPoint ListScroll;
    QPoint TreeScroll;
};

/// What the archive asks of its window besides.
class EditorView : public DocumentView {
public:
    /// The tree was made anew; every node is shown expanded.
    virtual void TreeChanged() = 0;
    /// The list was made anew.
    virtual void ListChanged() = 0;
    /// Shows `frmVersion` and returns when it is closed.
    virtual void ShowVersion() = 0;
    /// The places of the list's selected rows, in the order shown.
    [[nodiscard]] virtual std::vector<int> SelectedRows() const = 0;
    [[nodiscard]] virtual ViewPlace Where() const = 0;
    /// Selects rows and scrolls; that is no click on any of them.
    virtual void GoTo(const ViewPlace& place) = 0;
    /// Selects rows and brings the last of them into view; that is no click on any.
    virtual void Reveal(const std::vector<int>& places) = 0;
    /// Shows a node and starts the edit of its label.
    virtual void EditNode(int node) = 0;
    /// Ends the edit of a name as the Enter key does: what was typed counts.
    virtual void CommitEdit() = 0;
    /// Shows `frmBrowseForFolder` and returns when it is closed.
    virtual ExtractionTarget AskForFolder() = 0;
    /// Takes input or, during an extraction, none.
    virtual void EnableWindow(bool enabled) = 0;
    /// The window's handle, for what the system shows on its behalf; 0 when there is none.
    [[nodiscard]] virtual quintptr Handle() const = 0;
};

enum class FocusedPane { Tree, List };

/// The values of the setting `BigView`.
enum class ViewMode { LargeIcons, Details, SmallIcons, List };

struct EditorState {
    bool ArchiveOpen = false;    ///< mnuActions shown; six links, four menus and lvFiles enabled
    bool DetailsVisible = false; ///< the group mnuDetails
    bool ModifyEnabled = false;  ///< mnuModify
    bool FileIcons = false;      ///< rows carry system icons
    bool Modified = false;       ///< unsaved changes exist
    bool ShowsOnlyEntry = false; ///< the list shows the only entry of an archive too
    bool ExactOffsets = false;   ///< this archive is saved with its data where the directory says
    int SelectedNode = FolderTree::None;
    FocusedPane FocusPane = FocusedPane::Tree;
    qint16 NewFolderNumber = 1;
    QString StatusText;
    QString DetailsName; ///< lblFName
    QString DetailsSize; ///< lblFSize
};
