// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Entries on their way to a disk that is full, to files that may not be written, and to links.
#include "tests/install/zip_fixture.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class ZipDisk : public ZipReadTest {
protected:
    ZipDisk() { Files::MakeFolder(Out()); }

    void Link(const QString& name, const QString& to) {
        ASSERT_TRUE(QFile::link(Paths::ToNative(At(to)), Paths::ToNative(At(name))));
    }
};

} // namespace

TEST_F(ZipDisk, AtEveryByteOfAFullDiskWhatStoodStays) {
    const QByteArray content("a line of text");
    Open({{.Name = "a", .Content = content, .Method = 8}});
    for (rlim_t room = 0; room <= static_cast<rlim_t>(content.size()); ++room) {
        Make(u"out\\a"_s, "");
        const bool fits = room == static_cast<rlim_t>(content.size());
        {
            const FileLengthLimit limit(room);
            EXPECT_EQ(Extract(u"a"_s), fits ? ZipResult::Done : ZipResult::DiskFull) << room;
        }
        EXPECT_EQ(Got(u"a"_s), fits ? content : QByteArray());
        EXPECT_EQ(Names(), QStringList{u"a"_s});
    }
}

TEST_F(ZipDisk, ADiskThatFillsInTheMiddleOfALongEntryKeepsNothingOfIt) {
    Open({{.Name = "a", .Content = QByteArray(900000, 'x'), .Method = 8}});
    for (const rlim_t room : {0U, 262144U, 600000U}) {
        const FileLengthLimit limit(room);
        EXPECT_EQ(Extract(u"a"_s), ZipResult::DiskFull);
        EXPECT_EQ(Names(), QStringList());
    }
}

TEST_F(ZipDisk, AFileThatIsWriteProtectedStays) {
    Make(u"out\\a"_s, "old");
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(At(u"out\\a"_s)), QFile::ReadOwner));
    Open({{.Name = "a", .Content = "new"}});
    EXPECT_EQ(Extract(u"a"_s), ZipResult::NoTarget);
    EXPECT_EQ(Got(u"a"_s), "old");
}

TEST_F(ZipDisk, LinksThatLeadOutAreRefused) {
    Make(u"victim"_s, "old");
    Files::MakeFolder(At(u"elsewhere"_s));
    Link(u"out/a"_s, u"victim"_s);
    Link(u"out/d"_s, u"elsewhere"_s);
    Link(u"out/n"_s, u"nowhere"_s);
    Open({{.Name = "a", .Content = "1"},
          {.Name = "d/x", .Content = "1"},
          {.Name = "n", .Content = "1"},
          {.Name = "d/"}});
    for (const QString& name : QStringList(zip_.Col))
        EXPECT_EQ(Extract(name, true), ZipResult::NoTarget) << name.toStdString();
    EXPECT_EQ(BytesOf(u"victim"_s), "old");
    EXPECT_EQ(Names(u"elsewhere"_s), QStringList());
    EXPECT_FALSE(Files::FileExists(At(u"nowhere"_s)));
}

TEST_F(ZipDisk, ALinkThatCameInTheMeantimeIsReplaced) {
    Make(u"victim"_s, "old");
    Open({{.Name = "first", .Content = "1"}, {.Name = "a", .Content = "1"}});
    EXPECT_EQ(Extract(u"first"_s), 0);
    Link(u"out/a"_s, u"victim"_s);
    EXPECT_EQ(Extract(u"a"_s), ZipResult::Done);
    EXPECT_EQ(Got(u"a"_s), "1");
    EXPECT_EQ(BytesOf(u"victim"_s), "old");
}

TEST_F(ZipDisk, AnEntryThatWasALinkBecomesAFile) {
    constexpr quint32 link = 0120777U << 16U;
    Open({{.Name = "l", .Content = "../../victim", .Host = 3, .Attributes = link}, {.Name = "l/x", .Content = "1"}});
    EXPECT_EQ(Extract(u"l"_s, true), 0);
    EXPECT_FALSE(Files::IsLink(At(u"out\\l"_s)));
    EXPECT_EQ(Got(u"l"_s), "../../victim");
    EXPECT_EQ(Extract(u"l/x"_s, true), ZipResult::NoTarget);
}
