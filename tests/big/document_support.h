// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the editor's document share: archives made of names and bytes, and a view that counts.
#pragma once

#include "big/document/BigEditor.h"
#include "platform/AnsiCodec.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtEndian>

#include <functional>
#include <utility>
#include <vector>

using NamedBytes = std::pair<QString, QByteArray>;

inline QByteArray BigEndianBytes(qsizetype value) {
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

/// An archive with the data right behind the mark; the reader trusts the directory alone.
inline QByteArray ArchiveOf(const std::vector<NamedBytes>& entries, const QByteArray& mark = "L225") {
    qsizetype dataOffset = 16 + mark.size();
    for (const auto& [name, data] : entries)
        dataOffset += 9 + name.size();
    QByteArray directory;
    QByteArray content;
    for (const auto& [name, data] : entries) {
        directory += BigEndianBytes(dataOffset + content.size()) + BigEndianBytes(data.size());
        directory += AnsiCodec::Encode(name) + '\0';
        content += data;
    }
    return QByteArray("BIGF") + QByteArray(4, '\0') + BigEndianBytes(static_cast<qsizetype>(entries.size())) +
           BigEndianBytes(dataOffset) + directory + mark + content;
}

inline BigEntry EntryOf(const QString& name, qint32 size = 0) {
    BigEntry entry;
    entry.Name = name;
    entry.Size = size;
    return entry;
}

/// Records of a table by their names.
inline std::vector<BigEntry> TableOf(const QStringList& names) {
    std::vector<BigEntry> table;
    for (const QString& name : names)
        table.push_back(EntryOf(name));
    return table;
}

/// The texts of the shown rows, in their order.
inline QStringList Texts(const FileList& list) {
    QStringList texts;
    for (int place = 0; place < list.Count(); ++place)
        texts += list.Text(place);
    return texts;
}

class CountingView : public EditorView {
public:
    int Shown = 0;
    int Trees = 0; ///< made anew or changed
    int Versions = 0;
    int Busy = 0;
    std::function<void()> OnVersion;

    void ShowWindow() override { ++Shown; }

    void TreeChanged() override { ++Trees; }

    void ListChanged() override {}

    void StateChanged() override {}

    void ShowVersion() override {
        ++Versions;
        if (OnVersion)
            OnVersion();
    }

    void ShowBusy(bool busy) override { Busy += busy ? 1 : -1; }

    Notice Told; ///< the last one

    void ShowNotice(const Notice& notice) override { Told = notice; }

    QString Folder; ///< the last one that was shown

    void OpenFolder(const QString& folder) override { Folder = folder; }

    std::vector<int> Selected; ///< places
    int Edited = FolderTree::None;
    ExtractionTarget Target;
    int FolderQuestions = 0;
    std::function<void()> OnFolderQuestion;
    std::vector<bool> Enabled; ///< every call of EnableWindow

    [[nodiscard]] std::vector<int> SelectedRows() const override { return Selected; }

    ViewPlace Place; ///< where the user is, the selected rows excepted

    [[nodiscard]] ViewPlace Where() const override {
        ViewPlace place = Place;
        place.Selected = Selected;
        return place;
    }

    void GoTo(const ViewPlace& place) override {
        Place = place;
        Selected = place.Selected;
    }

    int Revealed = -1; ///< the last row that was brought into view

    void Reveal(const std::vector<int>& places) override {
        Revealed = places.back();
        Selected = places;
    }

    void EditNode(int node) override { Edited = node; }

    ExtractionTarget AskForFolder() override {
        ++FolderQuestions;
        if (OnFolderQuestion)
            OnFolderQuestion();
        return Target;
    }

    int Commits = 0; ///< of an edit of a name
    std::function<void()> OnCommit;

    void CommitEdit() override {
        ++Commits;
        if (OnCommit)
            OnCommit();
    }

    void EnableWindow(bool enabled) override { Enabled.push_back(enabled); }

    [[nodiscard]] quintptr Handle() const override { return 0; }
};
