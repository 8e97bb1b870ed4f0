// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An editor's document in a world of its own, with a view that records. Texts are their keys.
#pragma once

#include "csf/document/CsfEditor.h"
#include "platform/Files.h"
#include "tests/csf/Tables.h"

#include <utility>
#include <vector>

class RecordingCsfView : public CsfEditorView {
public:
    int Shown = 0;
    int Busy = 0;
    int Scrolled = -1;
    int Selected = -1;
    int Focused = 0;
    int BoxChanges = 0;
    int StateChanges = 0;
    std::vector<std::pair<LabelChange, int>> Changes; ///< each with its place
    std::vector<int> Rows;                            ///< places of RowChanged

    void ShowWindow() override { ++Shown; }

    void ListChanging(LabelChange /*change*/, int /*place*/) override { ++open_; }

    void ListChanged(LabelChange change, int place) override {
        EXPECT_EQ(open_--, 1) << "changes come in pairs";
        Changes.emplace_back(change, place);
    }

    void RowChanged(int place) override { Rows.push_back(place); }

    void SelectRow(int place, bool focus) override {
        Selected = place;
        Focused += focus ? 1 : 0;
    }

    void ScrollToRow(int place) override { Scrolled = place; }

    void BoxesChanged() override { ++BoxChanges; }

    std::vector<bool> Replaced; ///< the boxes of BoxChanged: whether each was that of the name

    void BoxChanged(bool isName) override { Replaced.push_back(isName); }

    void StateChanged() override { ++StateChanges; }

    void ShowBusy(bool busy) override { Busy += busy ? 1 : -1; }

    Notice Told; ///< the last one

    void ShowNotice(const Notice& notice) override { Told = notice; }

    QString Folder; ///< the last one that was shown

    void OpenFolder(const QString& folder) override { Folder = folder; }

private:
    int open_ = 0;
};

class EditorTest : public TableTest {
protected:
    /// Makes a file of names and values, and opens it.
    QString OpenTable(const std::vector<std::pair<QByteArray, QByteArray>>& entries, char language = 0) {
        QByteArray bytes = CsfHeader(static_cast<quint32>(entries.size()), language);
        for (const auto& [name, value] : entries)
            bytes += EntryRecords(name, value);
        QString path = Put(QStringLiteral("a.csf"), bytes);
        Editor.OpenCSFFile(path);
        return path;
    }

    [[nodiscard]] const CsfEditorState& State() const { return Editor.State(); }

    [[nodiscard]] QStringList Names() const {
        QStringList names;
        for (int place = 0; place < Editor.List().Count(); ++place)
            names += Editor.List().Row(place).Name;
        return names;
    }

    void Answer(Host::Answer answer) { host_.Answers.push_back(answer); }

    void ChooseFile(const std::optional<QString>& path) { host_.FileNames.push_back(path); }

    RecordingCsfView View;
    CsfEditor Editor{View};
};
