// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The second page of adding files without any control: the tree of what was found, its check marks, the details of the
/// selected node and what the user makes of them.
#pragma once

#include "install/InstallSource.h"

#include <QHash>
#include <QString>

#include <vector>

class ccZip;

/// A node of tvFiles. Pictures are numbered as in its list: 1 group, 2 open group, 3 file.
struct FilesNode {
    static constexpr int GroupImage = 1;
    static constexpr int OpenGroupImage = 2;
    static constexpr int FileImage = 3;

    QString Key;    ///< "Maps", "Mods", "Replays", "Shellmaps", "PassedOver"; "Single", "ZIP:" or "Over:" and a number
    QString Text;   ///< a file's name; of a ZIP's group with its count in brackets
    QString Parent; ///< the key of its group; empty for a group
    int Image = FileImage;
    int OpenImage = 0; ///< while the node is open; 0: the same as else
    bool Open = false;
    bool Greyed = false;
    bool HasCheckBox = true;
    bool Checked = false;
    QString Reason{};            ///< why a file is passed over, in the user's language
    int Row = 0;                 ///< among the nodes of its group, or among the groups
    std::vector<int> Children{}; ///< the places of a group's files

    [[nodiscard]] bool IsGroup() const { return Image == GroupImage; }
};

/// What the details show of a node. What is not shown keeps its text.
struct FilesDetails {
    QString File;               ///< txtFileName
    bool BoxesVisible = false;  ///< txtName, txtComments
    bool LabelsVisible = false; ///< lblName, lblComments
    QString Name;               ///< of txtName, where that is visible
    QString Comments;           ///< likewise
    QString Reason;             ///< why the file is passed over; empty for every other node
};

class FilesTree {
public:
    /// The source, as Analysis told it, and the archive outlive the tree; check marks and texts go into the source.
    FilesTree(InstallSource& source, const ccZip& zip);

    /// Each group before its files.
    [[nodiscard]] const std::vector<FilesNode>& Nodes() const { return nodes_; }

    /// The place of a node; -1 for a key that none has.
    [[nodiscard]] int PlaceOf(const QString& key) const { return places_.value(key, -1); }

    /// The user set or took a check mark. A group's goes to its files.
    void Tick(const QString& key, bool checked);

    /// The user selected a node: what is typed from now on is meant for it.
    FilesDetails Select(const QString& key);

    /// What the details show of a node.
    [[nodiscard]] FilesDetails Details(const QString& key) const;

    /// A picture file of a map.
    struct Preview {
        QString File;             ///< inside path; empty: there is none, and no picture is shown
        bool IsExtracted = false; ///< whoever has read it deletes it
    };

    /// That of the map that a node stands for, extracted to ScratchFolder where it is in a ZIP. May ask for a password.
    [[nodiscard]] Preview PreviewFile(const QString& key) const;

    /// The user changed a box. Raises 13 where the selected node is not a ZIP's: nothing is kept then.
    void NameTyped(const QString& text);
    void CommentsTyped(const QString& text);

private:
    FilesNode& AddGroup(const QString& key, int openImage);
    FilesNode& AddFile(const QString& key, const QString& text, const QString& group);
    void AddSingle();
    void AddRecords();
    void AddPassedOver();
    void CountFiles();
    void TickGroup(const FilesNode& group);
    [[nodiscard]] FilesNode* Find(const QString& key);
    [[nodiscard]] const FilesNode* Find(const QString& key) const;
    [[nodiscard]] InstallRecord* RecordOf(const QString& key) const;
    [[nodiscard]] QString PathOf(const FilesNode& node) const;
    [[nodiscard]] Preview ExtractedPreview(const FilesNode& node) const;
    [[nodiscard]] InstallRecord& TypedRecord() const;

    InstallSource& source_;
    const ccZip& zip_;
    std::vector<FilesNode> nodes_;
    QHash<QString, int> places_;
    QString selected_;
};
