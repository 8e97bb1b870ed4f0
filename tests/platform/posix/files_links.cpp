// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void Link(const Scratch& scratch, const QString& name, const QByteArray& target) {
    ASSERT_EQ(::symlink(target.constData(), scratch.Native(name).toUtf8().constData()), 0);
}

} // namespace

TEST(FilesAndLinks, WhatALinkLeadsToStandsThere) {
    const Scratch scratch;
    scratch.Write(u"folder/file"_s, "x");
    Link(scratch, u"to file"_s, "folder/file");
    Link(scratch, u"to folder"_s, "folder");
    Link(scratch, u"to nowhere"_s, "nothing");
    Link(scratch, u"circle"_s, "circle");
    EXPECT_EQ(Files::StandingAsGiven(scratch.Inside(u"to file"_s)), Files::Standing::File);
    EXPECT_EQ(Files::StandingAsGiven(scratch.Inside(u"to folder"_s)), Files::Standing::Folder);
    EXPECT_EQ(Files::StandingAsGiven(scratch.Inside(u"to nowhere"_s)), Files::Standing::LinkToNowhere);
    EXPECT_EQ(Files::StandingAsGiven(scratch.Inside(u"circle"_s)), Files::Standing::LinkToNowhere);
}

TEST(FilesAndLinks, RemovingAFolderFollowsNoLink) {
    const Scratch scratch;
    scratch.Write(u"outside/keep"_s, "keep");
    scratch.Write(u"folder/file"_s, "x");
    Link(scratch, u"folder/way"_s, "../outside");
    Link(scratch, u"folder/circle"_s, ".");
    Files::DeleteFolder(scratch.Inside(u"folder"_s));
    EXPECT_EQ(scratch.Read(u"outside/keep"_s), "keep");
    EXPECT_FALSE(Files::FolderExists(scratch.Inside(u"folder"_s))) << "the links in it go, too";
    Link(scratch, u"folder"_s, "outside");
    Files::DeleteFolder(scratch.Inside(u"folder"_s));
    EXPECT_EQ(scratch.Read(u"outside/keep"_s), "keep");
    EXPECT_FALSE(Files::IsLink(scratch.Inside(u"folder"_s)));
}

TEST(FilesAndLinks, ALinkIsKnownByItsVeryNameToo) {
    const Scratch scratch;
    scratch.Write(u"file"_s, "x");
    Link(scratch, u"way"_s, "nothing");
    EXPECT_TRUE(Files::IsLinkAsGiven(scratch.Inside(u"way"_s)));
    EXPECT_FALSE(Files::IsLinkAsGiven(scratch.Inside(u"WAY"_s)));
    EXPECT_TRUE(Files::IsLink(scratch.Inside(u"WAY"_s)));
    EXPECT_FALSE(Files::IsLinkAsGiven(scratch.Inside(u"file"_s)));
    EXPECT_FALSE(Files::IsLinkAsGiven(scratch.Inside(u"none"_s)));
}

TEST(FilesAndLinks, RemovingALinkLeavesWhatItLeadsTo) {
    const Scratch scratch;
    scratch.Write(u"folder/file"_s, "x");
    for (const char* target : {"folder", "folder/file", "nothing"}) {
        Link(scratch, u"way"_s, target);
        Files::RemoveLink(scratch.Inside(u"WAY"_s));
        EXPECT_FALSE(Files::IsLink(scratch.Inside(u"way"_s))) << target;
    }
    Link(scratch, u"way"_s, "folder");
    Files::RemoveLink(scratch.Inside(u"way"_s) + u'\\');
    EXPECT_FALSE(Files::IsLink(scratch.Inside(u"way"_s)));
    EXPECT_EQ(scratch.Read(u"folder/file"_s), "x");
    EXPECT_THROW(Files::RemoveLink(scratch.Inside(u"folder"_s)), RuntimeError) << "what is no link stays";
    EXPECT_TRUE(Files::FolderExists(scratch.Inside(u"folder"_s)));
}

TEST(FilesAndLinks, DeletingALinkDoesNotAskWhetherWhatItLeadsToIsProtected) {
    const Scratch scratch;
    scratch.Write(u"file"_s, "x");
    QFile::setPermissions(scratch.Native(u"file"_s), QFile::ReadOwner);
    Link(scratch, u"way"_s, "file");
    Files::Delete(scratch.Inside(u"way"_s));
    EXPECT_EQ(scratch.Read(u"file"_s), "x");
}
