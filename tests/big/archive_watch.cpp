// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a writing tells while it is under way, and files that change meanwhile.
#include "tests/big/Archives.h"
#include "tests/support/Raised.h"

#include "platform/Paths.h"

#include <QFile>

using namespace Qt::StringLiterals;
using Archives::Placement;

namespace {

class ArchiveWatch : public ArchiveTest {
protected:
    Archive OfFiles(const std::vector<QByteArray>& files) {
        Archive archive;
        for (const QByteArray& bytes : files) {
            const QString name = u"file%1"_s.arg(archive.Entries.size());
            BigEntry entry;
            entry.Name = name;
            entry.IsNew = true;
            entry.SourcePath = Put(name, bytes);
            archive.Entries.push_back(entry);
        }
        return archive;
    }

    static std::vector<int> PercentsOf(const Archive& archive) {
        std::vector<int> told;
        MemoryDevice target;
        Archives::Write(archive, target, nullptr, Placement::Told,
                        {.Percent = [&](int percent) { told.push_back(percent); }});
        return told;
    }
};

} // namespace

TEST_F(ArchiveWatch, TwoEntriesAreTheFewestThatTellHowFarItIs) {
    EXPECT_EQ(PercentsOf(OfFiles({"a"})), std::vector<int>());
    EXPECT_EQ(PercentsOf(OfFiles({"a", "b"})), (std::vector<int>{0, 100}));
}

TEST_F(ArchiveWatch, AFileThatGrowsOrShrinksMeanwhileIsNoEntry) {
    for (const QByteArray& now : {QByteArray("longer than before"), QByteArray("x")}) {
        const Archive archive = OfFiles({"first", "second"});
        MemoryDevice target;
        const QString told = MessageOf([&] {
            Archives::Write(archive, target, nullptr, Placement::Told, {.Entry = [&](const QString& name) {
                                if (name == u"file1"_s)
                                    Put(name, now);
                            }});
        });
        EXPECT_TRUE(told.startsWith(Paths::ToNative(archive.Entries[1].SourcePath))) << told.toStdString();
    }
}
