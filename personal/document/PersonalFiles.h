// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The document of the Personal Files window and its commands, without any control: the tree of games and kinds, the
/// four lists, the details of the selected row, and what of the window is shown and enabled.
///
/// Tree and lists are not watched: what is changed outside shows after a click on a node or a Refresh.
#pragma once

#include "core/GameFiles.h"
#include "media/FilePicture.h"
#include "personal/document/CheckedRows.h"
#include "personal/document/LossNotices.h"
#include "personal/document/PersonalFilesView.h"
#include "personal/document/PersonalTexts.h"
#include "personal/lists/MapList.h"
#include "personal/lists/ModList.h"
#include "personal/lists/ReplayList.h"
#include "personal/lists/ShellMapList.h"

#include <QString>

#include <optional>
#include <set>
#include <vector>

class PictureDecoder;

class PersonalFiles {
public:
    /// Pixels of mnuDetailsMaps.
    static constexpr int MapPaneWithPicture = 237;
    static constexpr int MapPaneWithout = 85;

    /// The view outlives the document. A new one has no tree yet: the window asks for RebuildTree when it is dressed.
    explicit PersonalFiles(PersonalFilesView& view);
    ~PersonalFiles();
    PersonalFiles(const PersonalFiles&) = delete;
    PersonalFiles& operator=(const PersonalFiles&) = delete;

    /// Outlives the document or its use; without one (null) no picture of a map comes.
    void UseDecoder(PictureDecoder* decoder);

    [[nodiscard]] const PersonalFilesState& State() const { return state_; }

    /// For a list's model.
    [[nodiscard]] GameList& List(PersonalKind kind);

    /// Makes the tree anew, with every count; no node is selected then. Raises 6 for a count beyond 32,767.
    void RebuildTree();

    /// A click on a node of the tree: lists its kind, or hides all lists for a game. Raises what the listing raises. A
    /// key that no node has does nothing.
    void NodeClicked(const QString& key);

    /// A row of the visible list was selected or clicked: shows its details. Raises 53 when the file of a map, replay
    /// or mod is gone.
    void RowSelected(int place);

    /// The end of an edit of a replay's name: renames its file. The row has the new text even when that raises, 58 for
    /// a target that exists. Does nothing for other kinds.
    void RenameRow(int place, const QString& text);

    /// A click on a column's header of the visible list; the selection goes along with its row.
    void HeaderClicked(int column);

    /// The new place of each row by its old one, as the last HeaderClicked sorted them.
    [[nodiscard]] const std::vector<int>& NewPlaces() const { return newPlaces_; }

    /// The user set or took the check mark of a row of the visible list; the list may have it already.
    void CheckChanged(int place, bool checked);
    /// Marks all rows of the visible list, or none.
    void CheckAll(bool checked);

    /// The user changed a box; what it holds now. Each change is written at once.
    void NameTyped(const QString& text);
    void CommentsTyped(const QString& text);

    /// The entries of mnuActions. Without their link being enabled they do nothing.
    void Add();
    /// As Add with a file (inside path) that is dropped on the window, at any time.
    void AddFile(const QString& file);
    /// Asks first; No is the answer that Enter gives.
    void Delete();
    /// Exports the rows with a check mark. Raises 9 when there is none, but for maps, which hand over an empty record.
    void Export();

    /// Gives the row its check mark and exports what is marked.
    void ExportRow(int place);
    /// Shows the folder that holds the row's file, or that the row stands for.
    void OpenFolder(int place);
    void CopyPath(int place);

    /// Whether an install is known that brought the row's file, or a file of its folder.
    [[nodiscard]] bool MayUninstall(int place) const;
    /// Shows what came with the row and asks; when something was done, tree and list are made anew.
    void UninstallRow(int place);

    /// Makes the tree and the visible list anew. The node stays selected, rows keep their check marks, and the row
    /// stays selected where it is still there. Raises what the listing raises.
    void Refresh();

    /// There is never a reason to stay.
    [[nodiscard]] static bool MayClose() { return true; }

    /// Whether the tools menu comes back after the window: not with "/tpfiles".
    [[nodiscard]] static bool MenuFollows();

private:
    enum class By { User, Selection };

    void SelectNode(const QString& key);
    void ShowKind(PersonalKind kind, GameIndex game);
    void Relist(PersonalKind kind, qint32 game);
    void ForgetRows();
    void HideDetails();
    void RebuildAround(const QString& node);
    void RelistShown();
    void HandOver();

    [[nodiscard]] bool Has(int place) const;
    [[nodiscard]] const ListRow& Row(int place) const;
    void ShowMap(const ListRow& row);
    void ShowReplay(const ListRow& row);
    void ShowMod(const ListRow& row);
    void ShowShellMap(const ListRow& row);
    void CheckLikeBefore(const std::set<QString>& keys);
    void UpdateStatus();

    [[nodiscard]] const GameList& List(PersonalKind kind) const;
    [[nodiscard]] std::optional<GameFiles::RecordPlace> PlaceOfBoxes() const;
    void FillBoxes();
    void ChangeName(const QString& text, By by);
    void ChangeComments(const QString& text, By by);
    void WriteModComment(const GameFiles::RecordPlace& place, const QString& text, By by);
    void Write(const GameFiles::RecordPlace& place, const QString& key, const QString& value, By by);
    void ForgetLost();
    void CommentKept(const LossNotices::Lost& lost);

    PersonalFilesView& view_;
    PersonalFilesState state_;
    ReplayList replays_;
    MapList maps_;
    ModList mods_;
    ShellMapList shellMaps_;
    std::vector<int> newPlaces_;
    QString modPath_; ///< the row key of the mod that was selected last
    PersonalTexts texts_;
    CheckedRows checked_;
    FilePicture picture_;
    LossNotices notices_;
};
