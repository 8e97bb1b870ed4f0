// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The document of the BIG Editor and its commands, without any control: the folder tree and the file list of the open
/// archive, what counts as a change, and what of the window is shown and enabled.
#pragma once

#include "big/document/Extraction.h"
#include "big/document/FileList.h"
#include "big/document/FolderTree.h"
#include "big/document/Preview.h"
#include "core/Document.h"
#include "platform/ChangeMark.h"

#include <QString>
#include <QStringList>

#include <list>
#include <memory>
#include <optional>
#include <vector>

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
    /// Shows a node and starts the edit of its label.
    virtual void EditNode(int node) = 0;
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
    int SelectedNode = FolderTree::None;
    FocusedPane FocusPane = FocusedPane::Tree;
    qint16 NewFolderNumber = 1;
    QString StatusText;
    QString DetailsName; ///< lblFName
    QString DetailsSize; ///< lblFSize
};

class BigEditor {
public:
    /// The view outlives the editor.
    explicit BigEditor(EditorView& view);
    /// May come while Modify or ActivateRow wait for another program: they return without touching what is gone.
    ~BigEditor();
    BigEditor(const BigEditor&) = delete;
    BigEditor& operator=(const BigEditor&) = delete;

    [[nodiscard]] const EditorState& State() const { return state_; }

    [[nodiscard]] const FolderTree& Tree() const { return tree_; }

    [[nodiscard]] FileList& List() { return list_; }

    [[nodiscard]] const PreviewState& Previewed() const { return preview_.State(); }

    /// Opens an archive from outside; a file that doesn't exist is ignored, a refused one beeps.
    void OpenBigFile(const QString& path);

    /// Reads an archive whose path ends in "big" and shows its root. False leaves the views as they are.
    bool LoadBig(const QString& path);

    /// Rebuilds the tree from the table and shows the root.
    void CreateDirs();

    /// Fills the list with a folder; the empty key is the root. Never fails.
    void ShowFolder(const QString& folderKey);

    void New();
    void Open();
    void Save();
    void SaveAs();
    void Add();
    void Delete();
    void NewFolder();
    void FileVersion();

    /// Takes files and folders that lie in a drag's scratch folder into one of this program's, as they are gone with
    /// the next drag, and returns where they are now; others stay where they are. To be called within the drop itself.
    static QStringList AdoptDragged(QStringList paths);
    /// Files and folders dropped on the list, inside paths.
    void DropFiles(const QStringList& paths);

    /// The menu's Modify, on the first selected row: opens the entry with its program and asks for the result.
    void Modify();

    /// Whether the label of a node may be edited: not the root's.
    [[nodiscard]] bool MayRenameNode(int node) const;
    /// The end of an edit in the tree; false when the text is refused.
    bool RenameNode(int node, const QString& text);
    /// The end of an edit in the list; false when the text is refused.
    bool RenameRow(int place, const QString& text);

    /// Copies the chosen entries into a folder that the user chooses.
    void Extract();
    /// Opens an archive without a window and extracts it; false when there is no such file.
    bool ExtractBigFile(const QString& path);

    /// The inside paths that ExtractForDrag would return; makes nothing.
    [[nodiscard]] QStringList DragNames() const;
    /// The drop target of a drag that began in the list asks for the files: extracts the selected rows into the scratch
    /// folder and returns the inside paths of what was dragged.
    QStringList ExtractForDrag();
    /// The drag is over, dropped or not.
    void DragEnded();

    /// The questions about copies that other programs have changed so far, and about unsaved changes; false when the
    /// window has to stay. True ends every wait for another program.
    bool MayClose();

    /// A click on a node of the tree.
    void ClickNode(int node);
    /// A click on a row of the list, or its selection by a key.
    void ClickRow(int place);
    /// The list was clicked beside its rows, or reached with the keyboard: the commands act on its rows.
    void EnterList();
    /// The menu is asked for on a row, which is the selected one then.
    void OfferRow(int place);
    /// A double click on a row, or the Enter key: a folder row opens its folder, a file row is modified.
    void ActivateRow(int place);

    /// What decodes pictures and plays sounds for the preview; both outlive the editor.
    void UsePreview(PictureDecoder* decoder, SoundPlayer* player) { preview_.Use(decoder, player); }

    /// How many rows the list has, or how many are selected and how much they hold; empty without an archive.
    [[nodiscard]] QString SelectionText() const;

    [[nodiscard]] static ViewMode View();
    /// Stores the view mode at once.
    static void SetView(ViewMode mode);

private:
    /// What dragging the selected rows out brings.
    struct DragPlan {
        std::vector<qint32> ExtractList; ///< indices in the table
        ExtractionTarget Target;
        QStringList Dragged; ///< inside paths of files and folders

        void Offer(const QString& name);
    };

    /// What began a Modify.
    enum class Trigger { Menu, Row };

    /// An entry whose copy another program has open.
    struct Opened {
        int Index;       ///< in the table
        int Table;       ///< number of the table
        QString Name;    ///< of the entry
        QString Archive; ///< inside path
        QString Copy;    ///< inside path of the copy
        ChangeMark Mark; ///< of the copy, before the program had it
    };

    /// True, with a beep, while a save, an extraction or a drop is under way: they yield to the event loop or ask, and
    /// the table has to stay until then.
    [[nodiscard]] bool Locked() const;
    bool GoOnWithoutChanges();
    void ResetAfterOpen();
    void ArchiveOpened();
    void ClearPreview();
    bool ShowDetails(int index, const QString& rowText);
    std::optional<OffsetShift::Shift> WriteLocked(const QString& path);
    Document::Saved SaveTo(const QString& path);
    Document::Saved SaveUnderName();
    void ShowWritten(const QString& path);
    void AddFile(const QString& path);
    [[nodiscard]] std::vector<qint32> ChosenForExtraction() const;
    [[nodiscard]] DragPlan PlanDrag() const;
    [[nodiscard]] QString SelectedKey() const;
    void DeleteFolder(int node);
    void DeleteRows();
    void RenameFolder(int node, const QString& text);
    void RenameFile(int place, const QString& text);
    void DropPaths(const QStringList& paths);
    static void ForgetAdopted();
    void EndWaits();
    void ModifyRow(int place, Trigger trigger);
    void ModifySource(int index, Trigger trigger);
    void ModifyCopy(int index, const QString& text, Trigger trigger);
    [[nodiscard]] QString CopyForProgram(int index, const QString& text) const;
    [[nodiscard]] bool IsInUse(const QString& copy) const;
    bool OpenAndWait(const QString& path);
    [[nodiscard]] bool IsSourceMissing(int index);
    [[nodiscard]] BigEntry* StillThere(const Opened& opened) const;
    void TakeIn(const Opened& opened, Trigger trigger);
    bool PutInto(const Opened& opened) const;
    [[nodiscard]] static bool IsSource(const QString& copy);
    bool TakeInChangedCopies();
    bool TakeInChanged(const Opened& opened);

    EditorView& view_;
    EditorState state_;
    FolderTree tree_;
    FileList list_;
    Preview preview_{[this] { view_.StateChanged(); }};
    bool busy_ = false;            ///< a save, an extraction or a drop is under way
    int table_ = 0;                ///< number of the table in BigEntries; each that is read or made has another one
    std::list<Opened> openCopies_; ///< those that other programs are waited for with
    /// False once the waits that hold it are to end.
    std::shared_ptr<bool> waiting_ = std::make_shared<bool>(true);
};
