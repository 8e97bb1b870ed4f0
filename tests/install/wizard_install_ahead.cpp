// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The short way of short files: unpacked ahead and put where nothing stands.
#include "tests/install/InstallTest.h"

using namespace Qt::StringLiterals;

namespace {

class InstallAhead : public InstallTest {};

} // namespace

TEST_F(InstallAhead, ShortFilesThatAreNewArePutInOneStepWhereTheWatchAgrees) {
    struct Counting : RecordingWatch {
        QStringList Promised;
        QStringList Kept;

        bool WillPut(const QString& path, const HashedFile& hashed) override {
            RunningHash expected;
            expected.Add(Paths::LastPart(path).toLatin1());
            EXPECT_EQ(hashed.Hash, expected.Result().Hash);
            Promised += path;
            return true;
        }

        void WrittenAs(const QString& path, const HashedFile& hashed) override {
            EXPECT_EQ(hashed.Length, Paths::LastPart(path).size());
            Kept += path;
        }
    } watch;

    AnalyseZip({{.Name = "M/m.map", .Content = "m.map", .Method = 8},
                {.Name = "M/m.tga", .Content = "m.tga"},
                {.Name = "a.rep", .Content = "a.rep", .Method = 8},
                {.Name = "b.big", .Content = "b.big"}});
    TickAll();
    Install(0, {.Watch = &watch});
    const QStringList paths{Maps() + u"m\\m.map"_s, Maps() + u"m\\m.tga"_s, Of(0).ReplayPath + u"a.rep"_s,
                            Own() + u"b.big"_s};
    EXPECT_EQ(watch.Promised, paths);
    EXPECT_EQ(watch.Kept, paths);
    const QString record = Own() + u"b.ini"_s; // is no entry
    EXPECT_EQ(watch.Log, (QStringList{u"will "_s + record, u"did "_s + record}));
    EXPECT_EQ(At(paths.front()), "m.map");
}
