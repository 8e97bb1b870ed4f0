// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// While an archive is extracted, another program exchanges folders and files of the target for links that lead out.

#include "tests/big/Archives.h"
#include "tests/big/document_support.h"
#include "tests/support/posix/Exchanger.h"

#include "big/document/ArchiveExtractor.h"
#include "big/document/Extraction.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Races = 10'000;

class ExtractionRaces : public ArchiveTest {
protected:
    ExtractionRaces() {
        path_ = Put(u"my.big"_s, ArchiveOf({{u"d\\f"_s, "evil"}, {u"f"_s, "evil"}, {u"d\\g"_s, "e"}}));
    }

    QString path_;
};

} // namespace

TEST_F(ExtractionRaces, NothingIsEverWrittenOutsideByTheCommand) {
    const Archive archive = Archives::Read(path_);
    const Exchanger exchanger(world_, u"out"_s);
    int written = 0;
    for (int race = 0; race < Races; race += 3) {
        Ignoring([&] {
            ArchiveExtractor extractor(path_, At(u"out"_s));
            for (const BigEntry& entry : archive.Entries)
                written += Ignoring([&] { extractor.Extract(entry, entry.Name); }) ? 1 : 0;
        });
    }
    EXPECT_GT(written, 100);
}

TEST_F(ExtractionRaces, NothingIsEverWrittenOutsideByTheEditor) {
    mBIG::Load(path_);
    {
        const Exchanger exchanger(world_, u"out"_s);
        for (int race = 0; race < Races; race += 3) {
            host_.Answers.assign(3, race % 2 == 0 ? Host::Answer::Yes : Host::Answer::No);
            const ExtractionTarget target{
                .ExtractFolder = At(u"out\\"_s), .ExtractCancelled = false, .RecreateFolders = true};
            Extraction::DoExtract({0, 1, 2}, target, false);
        }
    }
    EXPECT_EQ(World::ReadFile(At(u"out\\d\\g"_s)), "e");
}
