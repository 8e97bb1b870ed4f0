// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An archive that a save has replaced keeps its room on the disk only as long as its bytes are offered.
#include "tests/big/offsets_fixture.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class KeptArchives : public EditorOffsets {
protected:
    KeptArchives() {
        const QString path = OpenArchive({{u"aa"_s, "123456789"}, {u"b"_s, "abcdefghijklmno"}});
        Editor.Save();
        Editor.OpenBigFile(path);
        EXPECT_EQ(Count(), 0);
        Editor.Save();
        EXPECT_EQ(Count(), 1);
    }

    /// Files that are open and stand in no folder any more.
    static std::ptrdiff_t Count() {
        const QDir open(u"/proc/self/fd"_s);
        return std::ranges::count_if(open.entryList(QDir::Files | QDir::System), [&](const QString& number) {
            return QFile::symLinkTarget(open.filePath(number)).endsWith(u".big (deleted)"_s);
        });
    }
};

} // namespace

TEST_F(KeptArchives, TheLinkLetsThemGo) {
    ClickLink(0);
    EXPECT_EQ(Count(), 0);
}

TEST_F(KeptArchives, AnotherArchiveLetsThemGo) {
    OpenSample();
    EXPECT_EQ(Count(), 0);
}

TEST_F(KeptArchives, AFreshArchiveLetsThemGo) {
    Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s};
    Editor.New();
    EXPECT_EQ(Count(), 0);
}

TEST_F(KeptArchives, AFurtherSaveKeepsNoMore) {
    Editor.Save();
    EXPECT_EQ(Count(), 1);
}

TEST_F(KeptArchives, EntriesThatHaveGoneNeedNone) {
    for (BigEntry& entry : mBIG::BigEntries)
        entry.Deleted = true;
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "new"), Place.WriteFile(u"m.txt"_s, "more")};
    Editor.Add();
    Editor.Add();
    Editor.Save();
    EXPECT_EQ(Count(), 0);
}
