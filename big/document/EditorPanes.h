// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The two panes of the BIG Editor, tree and list, in step with the table of the open archive. Every command works on
/// them.
#pragma once

#include "big/document/EditorView.h"
#include "big/document/FileList.h"
#include "big/document/FolderTree.h"
#include "big/document/StoredNames.h"

#include <QString>

#include <functional>

class EditorPanes {
public:
    /// The view outlives the panes.
    explicit EditorPanes(EditorView& view);

    EditorView& View;
    EditorState State;
    FolderTree Tree;
    FileList List;
    StoredNames Names;
    mBIG::Identity Shown; ///< the archive that the panes show

    /// Told which row is selected (-1 for none) behind a change that made the list anew; may be empty.
    std::function<void(int place)> Selected;

    /// Rebuilds the tree from the table and shows the root.
    void CreateDirs();

    /// Fills the list with a folder; the empty key is the root. Never fails.
    void ShowFolder(const QString& folderKey);

    /// Fills the list with the selected node's folder anew, and leaves the user where he is in it.
    void ShowSelected();

    /// Shows a folder that was selected before the tree was made anew, in whatever case its key was; the root when it
    /// has gone.
    void ShowAgain(const QString& folderKey);

    /// The row of an entry in the list, -1 when it is not shown.
    [[nodiscard]] int PlaceOf(int index) const;

    /// Shows an entry's folder, or of it what there is, and the entry's row as the selected one. Its place, -1 without
    /// one.
    int ShowEntry(int index);

    /// The selected node's key; empty without one.
    [[nodiscard]] QString SelectedKey() const;

    /// True, with a beep, while the archive is locked: a save, an extraction or a drop is under way.
    [[nodiscard]] static bool Locked();

    /// Whether a command of the user's is under way, with its questions.
    [[nodiscard]] bool IsInCommand() const { return commands_ > 0; }

    /// Marks a command as long as it lives; the panes outlive it. What was being typed into a name counts before it
    /// begins.
    class Command {
    public:
        explicit Command(EditorPanes& panes);
        ~Command();
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

    private:
        EditorPanes& panes_;
    };

    /// Tells that something was changed that closing does not ask about, unless changes are asked about anyway.
    void TellUnmarked();

    /// Tells of names that lost letters, if any did since it was told last.
    void TellNames();

private:
    int commands_ = 0;
};
