// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An editor with texts of its own for names with letters that archives lack, and ways to add such files.
#pragma once

#include "platform/Files.h"
#include "tests/big/document_fixture.h"

class StoredNamesTest : public EditorDocument {
protected:
    StoredNamesTest() {
        Place.UseLanguage("[LNG]\r\nLettersLost=lost: %1.\r\nNamesBecameOne=one: %1.\r\nNameStoredAs=of %1\r\n"
                          "SaveLosesLetters=Lossy?\r\nDropReplaced=replaced: %1.\r\nFileAlreadyExists=exists\r\n");
        Place.Start();
    }

    QString Put(const QString& name) { return Place.WriteFile(QStringLiteral("from\\") + name, name.toUtf8()); }

    void Add(const QString& name) {
        Speaker.FileNames = {Put(name)};
        Editor.Add();
    }

    void ExpectQuestion(const QString& lines) {
        ASSERT_FALSE(Speaker.Messages.empty());
        const auto& asked = Speaker.Messages.back();
        EXPECT_EQ(asked.Text, QStringLiteral("Lossy?\r\n\r\n") + lines);
        EXPECT_EQ(asked.Choice, Host::Buttons::SaveCancel);
        EXPECT_EQ(asked.Default, Host::Answer::Cancel);
        EXPECT_EQ(asked.Title, QStringLiteral("Brindock 2005"));
    }

    /// How many questions a save asks; Save is the answer to them.
    std::size_t QuestionsOfSave() {
        const std::size_t before = Speaker.Messages.size();
        Speaker.Answers = {Host::Answer::Save};
        Editor.Save();
        return Speaker.Messages.size() - before;
    }
};
