// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The document of the BIG Editor and its commands, without any control: the folder tree and the file list of the open
/// archive, what counts as a change, and what of the window is shown and enabled. Each kind of command has a class of
/// its own over the panes that all share; this one opens, closes and hands on.
#pragma once

#include "big/document/ArchiveRescue.h"
#include "big/document/DragOut.h"
#include "big/document/EditorPanes.h"
#include "big/document/EntryChanges.h"
#include "big/document/ExtractCommand.h"
#include "big/document/FileAdding.h"
#include "big/document/OpenCopies.h"
#include "big/document/RowDetails.h"
#include "big/document/SaveCommand.h"
#include "core/rescue/RescueOffers.h"

#include <QString>
#include <QStringList>

class BigEditor {
public:
    /// The view outlives the editor.
    explicit BigEditor(EditorView& view);
    /// May come while a file is handed to another program: what handed it over returns without touching what is gone.
    ~BigEditor();
    BigEditor(const BigEditor&) = delete;
    BigEditor& operator=(const BigEditor&) = delete;

    [[nodiscard]] const EditorState& State() const { return panes_.State; }

    [[nodiscard]] const FolderTree& Tree() const { return panes_.Tree; }

    [[nodiscard]] FileList& List() { return panes_.List; }

    [[nodiscard]] const PreviewState& Previewed() const { return details_.Previewed(); }

    /// The entries that other programs have open.
    [[nodiscard]] OpenCopies& Copies() { return copies_; }

    /// Opens an archive from outside; a file that doesn't exist is ignored, a refused one beeps.
    void OpenBigFile(const QString& path);

    /// Reads an archive whose path ends in "big" and shows its root. False leaves all as it was.
    bool LoadBig(const QString& path);

    /// Rebuilds the tree from the table and shows the root.
    void CreateDirs() { panes_.CreateDirs(); }

    /// Fills the list with a folder; the empty key is the root. Never fails.
    void ShowFolder(const QString& folderKey) { panes_.ShowFolder(folderKey); }

    void New();
    void Open();
    /// Opens another archive (inside path) in place of the open one, with the same questions.
    void OpenInstead(const QString& path);

    void Save() { saves_.Save(); }

    void SaveAs() { saves_.SaveAs(); }

    void Add() { adding_.Add(); }

    void Delete() { changes_.Delete(); }

    void NewFolder() { changes_.NewFolder(); }

    /// Shows `frmVersion`.
    void FileVersion();

    /// Whether this archive is saved with its data where the directory says.
    void SetExactOffsets(bool exact) { panes_.State.ExactOffsets = exact; }

    static QStringList AdoptDragged(QStringList paths) { return FileAdding::AdoptDragged(std::move(paths)); }

    /// Files and folders dropped on the list, inside paths.
    void DropFiles(const QStringList& paths) { adding_.Drop(paths); }

    /// The menu's Modify, on the first selected row: opens the entry with its program, and asks for the result when
    /// that program has ended.
    void Modify();

    [[nodiscard]] bool MayRenameNode(int node) const { return changes_.MayRenameNode(node); }

    bool RenameNode(int node, const QString& text);
    bool RenameRow(int place, const QString& text);

    /// Copies the chosen entries into a folder that the user chooses.
    void Extract() { extraction_.Run(); }

    /// Opens an archive without a window and extracts it; false when there is no such file.
    bool ExtractBigFile(const QString& path);

    [[nodiscard]] QStringList DragNames() const { return dragOut_.Names(); }

    QStringList ExtractForDrag() { return dragOut_.Extract(); }

    static void DragEnded() { DragOut::Ended(); }

    /// The questions about copies that other programs have changed so far, and about unsaved changes; false when the
    /// window has to stay.
    bool MayEnd();

    /// The same; true ends every wait for another program.
    bool MayClose();

    /// A click on a node of the tree.
    void ClickNode(int node);

    /// A click on the folder above, with the row of the one that was shown selected; nothing at the root.
    void GoUp();

    /// A click on a row of the list, or its selection by a key.
    void ClickRow(int place) { details_.Show(place); }

    /// The list was clicked, or reached with the keyboard: the commands act on its rows.
    void EnterList();
    /// Rows were selected without a click on one: details that are shown tell one of them.
    void FollowSelection();
    /// The menu is asked for on a row, which is the selected one then.
    void OfferRow(int place);
    /// Leads to an entry that had this index and name when it was found: its folder is shown, and its row clicked.
    /// False when there is none of that name any more.
    bool GoToEntry(int index, const QString& name);
    /// A double click on a row, or the Enter key: a folder row opens its folder, a file row is modified.
    void ActivateRow(int place);

    /// What decodes pictures and plays sounds for the preview; both outlive the editor.
    void UsePreview(PictureDecoder* decoder, SoundPlayer* player) { details_.Use(decoder, player); }

    /// The index of the entry that the details tell; -1 while they are hidden.
    [[nodiscard]] int DetailedEntry() const { return details_.Shown(); }

    [[nodiscard]] QString SelectionText() const { return details_.SelectionText(); }

    /// At the editor's start: what is to be offered back.
    void TellLeft() { offers_.TellLeft(); }

    /// From time to time; whether there is more to be done at once.
    bool KeepRescue() { return rescue_.KeepRescue(); }

    [[nodiscard]] static ViewMode View();
    /// Stores the view mode at once.
    static void SetView(ViewMode mode);

private:
    bool MayLeaveArchive();
    void LoadOrBeep(const QString& path);
    /// Why a file was not opened, for a person.
    static QString RefusalOf(const QString& path);
    void ResetAfterOpen();
    void ArchiveOpened();
    void TakeNewArchive();
    [[nodiscard]] RescueOffers::Editor ForOffers();
    bool OpenRescue(const Rescues::Left& left);
    bool LoadUnderRescue(const RescueFacts& facts, const RescuedArchive& rescued);
    void ApplyRescued(const RescuedArchive& rescued, const QString& folder, bool whole);

    EditorPanes panes_;
    RowDetails details_{panes_};
    OpenCopies copies_{panes_};
    SaveCommand saves_{panes_, copies_, details_};
    EntryChanges changes_{panes_};
    FileAdding adding_{panes_, [this](int firstIndex) { copies_.EntriesGone(firstIndex); }};
    ExtractCommand extraction_{panes_};
    DragOut dragOut_{panes_};
    ArchiveRescue rescue_{panes_};
    RescueOffers offers_;
};
