// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the document of the Personal Files window shows of itself and what it asks of its window.
#pragma once

#include "core/Document.h"
#include "core/Game.h"
#include "core/rows/RowSource.h"
#include "personal/replay/ReplayPlayers.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

class QObject;

/// The window's kinds. Those of an ExportRecord are numbered otherwise.
enum class PersonalKind : qint16 { Map = 0, Replay = 1, ShellMap = 2, Mod = 3 };

inline constexpr int PersonalKindCount = 4;

/// A node of the tree of games and kinds.
struct PersonalNode {
    QString Key;                      ///< "Gen", "GenReplays", ...
    QString Text;                     ///< a child's ends in its count in brackets
    QString Parent;                   ///< the key of the node above; empty for a game
    GameIndex Game = 0;               ///< whose node it is
    std::optional<PersonalKind> Kind; ///< nothing for a game
};

struct PersonalFilesState {
    std::vector<PersonalNode> Nodes;       ///< of tvFiles, each game before its four kinds
    QString SelectedNode;                  ///< the key of the tree's selected node; empty for none
    PersonalKind Kind = PersonalKind::Map; ///< the current one; a click on a game leaves it
    std::optional<PersonalKind> ShownList; ///< the list that is visible
    bool AddEnabled = false;               ///< Label2_0
    bool DeleteEnabled = false;            ///< Label2_1
    bool ExportEnabled = false;            ///< Label2_2
    bool UninstallEnabled = false;         ///< an install is known that brought the selected row
    bool MapDetailsVisible = false;        ///< mnuDetailsMaps
    bool ReplayDetailsVisible = false;     ///< mnuDetailsReplays
    bool ModDetailsVisible = false;        ///< mnuDetailsMods, for mods and shell maps
    QString MapName;                       ///< lblDFileName
    QString MapSize;                       ///< lblDSize
    int MapPaneHeight = 0;                 ///< of mnuDetailsMaps, pixels; 0 before the first map
    QByteArray MapPicture;                 ///< Image2: a bitmap's bytes; empty before the first picture
    QString ReplayName;                    ///< lblRFileName
    QString ReplaySize;                    ///< lblRSize
    QString ReplayVersion;                 ///< lblRVersion
    QString ReplayMap;                     ///< lblRMap
    std::vector<PlayerNode> Players;       ///< of tvPlayers, every branch expanded
    QString ModFile;                       ///< lblMFileName
    QString ModSize;                       ///< lblMSize
    QString NameText;                      ///< txtMName
    QString CommentsText;                  ///< txtMComments
    QString HintText;                      ///< stands in the visible list while it has no rows; empty otherwise
    QString StatusText;                    ///< rows, check marks and the size of the marked rows of the visible list
};

/// What the personal files ask of their window besides. A change of the boxes' texts, of a row's selection or of the
/// tree's that these calls bring about is no change by the user and is not told to the document.
class PersonalFilesView : public DocumentView {
public:
    /// The tree was made anew; every game is shown expanded. What is selected in it, StateChanged tells.
    virtual void TreeChanged() = 0;
    /// Around each change of a list's rows; `place` counts for Insert and Remove. For Sort, PersonalFiles::NewPlaces
    /// tells the order. A change comes to its end when it fails, too.
    virtual void ListChanging(PersonalKind list, RowChange change, int place) = 0;
    virtual void ListChanged(PersonalKind list, RowChange change, int place) = 0;
    /// The texts or the check mark of one row are others.
    virtual void RowChanged(PersonalKind list, int place) = 0;
    /// Selects a row alone and scrolls it into view; the document has treated it as selected by itself.
    virtual void SelectRow(PersonalKind list, int place) = 0;
    /// The state's Players were made anew.
    virtual void PlayersChanged() = 0;
    /// The state's MapPicture is another one.
    virtual void PictureChanged() = 0;
    /// The state's NameText or CommentsText is another one.
    virtual void BoxesChanged() = 0;
    /// The state's StatusText is another one; told alone, as check marks come by thousands.
    virtual void StatusChanged() = 0;
    /// Puts a text on the clipboard.
    virtual void CopyText(const QString& text) = 0;
    /// Shows a folder (inside path) in the system's file manager.
    virtual void OpenFolder(const QString& folder) = 0;
    /// What modal windows stand over.
    [[nodiscard]] virtual QObject* Owner() = 0;
};
