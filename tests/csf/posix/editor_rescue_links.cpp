// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"
#include "tests/csf/editor_support.h"
#include "tests/support/Printing.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class CsfEditorRescueLinks : public EditorTest {};

} // namespace

TEST_F(CsfEditorRescueLinks, WhatASaveThroughALinkLeftIsOfferedToo) {
    const QByteArray old = CsfHeader(1) + EntryRecords("old", "1");
    Put(u"real\\a.csf"_s, CsfHeader(1) + EntryRecords("new", "2"));
    Put(u"real\\a.csf.sav"_s, old);
    ASSERT_TRUE(QFile::link(Paths::ToNative(At(u"real\\a.csf"_s)), Paths::ToNative(At(u"link.csf"_s))));
    Editor.OpenCSFFile(At(u"link.csf"_s));
    ASSERT_EQ(View.Told.Links.size(), 3U);
    const auto putBack = View.Told.Links[0].Run;
    putBack();
    EXPECT_EQ(World::ReadFile(At(u"real\\a.csf"_s)), old);
    EXPECT_TRUE(Files::IsLink(At(u"link.csf"_s)));
    EXPECT_EQ(Names(), QStringList{u"old"_s});
    EXPECT_TRUE(Files::FileExists(At(u"real\\a (2).csf"_s)));
}
