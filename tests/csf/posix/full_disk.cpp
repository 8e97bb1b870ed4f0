// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Saves on a device that fails at every write.
#include "tests/csf/editor_support.h"

#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

class CsfFullDisk : public EditorTest {};

QByteArray vanishing;
QByteArray vanished;

/// Takes a folder away in the middle of a write: the system calls it where a file would get too long.
class VanishingFolder {
public:
    VanishingFolder(const QString& folder, const QString& elsewhere, rlim_t room) : limit_(room) {
        vanishing = Paths::EncodeNative(Paths::ToNative(folder));
        vanished = Paths::EncodeNative(Paths::ToNative(elsewhere));
        ::signal(SIGXFSZ, [](int) { std::rename(vanishing.constData(), vanished.constData()); });
    }

    ~VanishingFolder() { ::signal(SIGXFSZ, SIG_IGN); }

    VanishingFolder(const VanishingFolder&) = delete;
    VanishingFolder& operator=(const VanishingFolder&) = delete;

private:
    FileLengthLimit limit_;
};

} // namespace

TEST_F(CsfFullDisk, AtEveryByteTheOldFileStays) {
    const QByteArray whole = CsfHeader(2) + EntryRecords("a", "b") + EntryRecords("c", "d");
    mCSF::CsfStrings = {{u"b"_s, u"a"_s}, {u"d"_s, u"c"_s}};
    for (rlim_t room = 0; room <= static_cast<rlim_t>(whole.size()); ++room) {
        const QString path = Put(u"full.csf"_s, "old");
        bool written = false;
        bool ended = false;
        try {
            const FileLengthLimit limit(room);
            written = mCSF::WriteCSF(path, 0);
        } catch (const ProgramEnded&) {
            ended = true;
        }
        EXPECT_EQ(ended, room < 24) << room << ": the header is fatal, what follows is passed over";
        EXPECT_EQ(written, room == static_cast<rlim_t>(whole.size())) << room;
        EXPECT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
        ASSERT_EQ(Files::FileExists(path + u".sav"_s), ended) << room;
        EXPECT_EQ(World::ReadFile(ended ? path + u".sav"_s : path), written ? whole : QByteArray("old")) << room;
        if (ended) {
            EXPECT_FALSE(Files::FileExists(path)) << room;
            Files::DeleteForced(path + u".sav"_s);
        }
    }
    EXPECT_EQ(host_.Messages.size(), 24U);
}

TEST_F(CsfFullDisk, AFolderThatVanishesDuringASaveHasTheOldFileStill) {
    mCSF::CsfStrings = {{u"b"_s, u"a"_s}};
    const QString path = Put(u"mod\\texts.csf"_s, "old");
    const QString folder = path.first(path.lastIndexOf(u'\\'));
    {
        const VanishingFolder vanishes(folder, folder + u" elsewhere"_s, 30);
        EXPECT_FALSE(mCSF::WriteCSF(path, 0));
    }
    EXPECT_FALSE(Files::FolderExists(folder)) << "and nothing is made in its place";
    EXPECT_EQ(World::ReadFile(folder + u" elsewhere\\texts.csf"_s), "old");
    EXPECT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfFullDisk, WhatTheEditorCouldNotSaveStaysAChangeAndKeepsTheWindow) {
    const QString path = OpenTable({{"a", "1"}, {"b", "2"}});
    const QByteArray before = World::ReadFile(path);
    Editor.NameTyped(u"x"_s);
    Answer(Host::Answer::Yes);
    {
        const FileLengthLimit limit(40);
        EXPECT_FALSE(Editor.MayClose());
    }
    EXPECT_TRUE(State().Modified);
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
    ASSERT_EQ(host_.Messages.size(), 2U) << "the question, and what became of the answer";
    const ScriptedHost::Shown& told = host_.Messages[1];
    EXPECT_TRUE(told.Text.startsWith(u"SaveFailed\r\n"_s + Paths::ToNative(path))) << told.Text.toStdString();
    EXPECT_EQ(told.Sign, Host::Icon::Critical);
    EXPECT_EQ(told.Choice, Host::Buttons::Ok);
    EXPECT_EQ(View.Busy, 0);
}

TEST_F(CsfFullDisk, TheNextSaveOfTheSameDocumentWorks) {
    const QString path = OpenTable({{"a", "1"}, {"b", "2"}});
    Editor.NameTyped(u"x"_s);
    for (const rlim_t room : {40U, 30U}) {
        const FileLengthLimit limit(room);
        Editor.Save();
    }
    ASSERT_EQ(host_.Messages.size(), 2U);
    EXPECT_TRUE(State().Modified);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), CsfHeader(2) + EntryRecords("x", "1") + EntryRecords("b", "2"));
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
    EXPECT_FALSE(State().Modified);
    EXPECT_EQ(host_.Messages.size(), 2U);
}

TEST_F(CsfFullDisk, AnotherDocumentFindsTheOldTableAndSavesIt) {
    const QString path = OpenTable({{"a", "1"}, {"b", "2"}});
    const QByteArray before = World::ReadFile(path);
    {
        const FileLengthLimit limit(24 + 23);
        Editor.Save();
    }
    ASSERT_EQ(World::ReadFile(path), before);
    Editor.OpenCSFFile(path);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), before);
}
