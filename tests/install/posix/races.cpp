// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// While something is extracted, installed or exported, another program exchanges folders and files of the target for
// links that lead out.

#include "install/wizard/TargetFolder.h"
#include "tests/install/ExportTest.h"
#include "tests/install/zip_fixture.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/posix/Exchanger.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Races = 10'000;

class ExportRaces : public ExportTest {
protected:
    ScriptedHost host_;
};

class ZipRaces : public ExportRaces {
protected:
    /// A ZIP of three files; the exchanged ones are among them.
    QString PutZip() {
        return Put(u"in.zip"_s, ZipBytes::Archive({{.Name = "d/f", .Content = "evil"},
                                                   {.Name = "f", .Content = "evil"},
                                                   {.Name = "d/g", .Content = "e"}}));
    }
};

} // namespace

TEST_F(ZipRaces, NothingIsEverWrittenOutsideByAnArchive) {
    const QString path = PutZip();
    const Exchanger exchanger(world_, u"out"_s);
    int written = 0;
    for (int race = 0; race < Races; race += 3) {
        ccZip zip;
        zip.Init(path);
        if (race % 10 == 0)
            zip.Ahead({1, 2, 3}, false);
        for (const QString& name : QStringList(zip.Col))
            written += zip.Decompress(Out(), name, true) == ZipResult::Done ? 1 : 0;
    }
    EXPECT_GT(written, 100);
}

TEST_F(ExportRaces, NothingIsEverWrittenOutsideByAnInstall) {
    const QString from = Put(u"source"_s, "evil");
    const Exchanger exchanger(world_, u"out"_s);
    int written = 0;
    for (int race = 0; race < Races; race += 4) {
        Ignoring([&] {
            TargetFolder folder(Out() + u'\\', nullptr);
            for (const QString& name : {u"d\\f"_s, u"f"_s, u"d\\g"_s})
                Ignoring([&] { written += folder.Copy(from, folder.PlaceFor(name), nullptr) ? 1 : 0; });
            Ignoring([&] { folder.WriteIni(folder.PlaceFor(u"d\\f"_s), u"Mod"_s, {{u"Name"_s, u"evil"_s}}); });
        });
    }
    EXPECT_GT(written, 100);
}

TEST_F(ExportRaces, NothingIsEverWrittenOutsideByAnExport) {
    Put(u"maps\\d\\f"_s, "evil");
    Put(u"maps\\d\\g"_s, "evil");
    Put(u"replays\\f"_s, "evil");
    const auto sources = ExportSources::Of({Map(u"d"_s), Replay(u"f"_s)});
    {
        const Exchanger exchanger(world_, u"out"_s);
        for (int race = 0; race < Races; race += 3)
            Exporting::ToFolder(sources, Out(), ExportChoice(), ExportWatch());
    }
    EXPECT_EQ(World::ReadFile(At(u"out\\d\\g"_s)), "evil");
}
