// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Deleting and renaming in the two panes, and new folders.
#pragma once

#include "big/document/EditorPanes.h"

class EntryChanges {
public:
    /// The panes outlive this.
    explicit EntryChanges(EditorPanes& panes) : panes_(panes) {}

    void Delete();
    void NewFolder();

    /// Whether the label of a node may be edited: not the root's.
    [[nodiscard]] bool MayRenameNode(int node) const;
    /// The end of an edit in the tree; false when the text is refused.
    bool RenameNode(int node, const QString& text);
    /// The end of an edit in the list; false when the text is refused.
    bool RenameRow(int place, const QString& text);

private:
    /// What the question about deleting names.
    struct Leaving {
        QString Text;          ///< the one entry's name, or the folder's and how many of its entries go
        std::size_t Count = 0; ///< entries
    };

    [[nodiscard]] Leaving WhatGoes() const;
    void DeleteFolder(int node);
    void DeleteRows();
    void RenameFolder(int node, const QString& text);

    EditorPanes& panes_;
};
