// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/InstallCommand.h"

#include "app/cli/GameArgument.h"
#include "app/cli/InstallRows.h"
#include "app/cli/ListRows.h"
#include "app/cli/Output.h"
#include "big/document/ScratchFolders.h"
#include "core/mTraduction.h"
#include "install/wizard/Analysis.h"
#include "install/wizard/Installation.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Wildcards.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

using Kind = Parameter::Kind;

constexpr int WrongUsage = 2;
constexpr GameIndex ZeroHour = 1;

class NoView : public InstallationView {
public:
    void ShowText(const QString& /*text*/) override {}

    void ShowProgress(int /*percent*/) override {}

    void ShowFinished() override {}
};

/// What the first page refuses.
void Check(const QString& path, GameIndex game) {
    const QString name = Paths::LastPart(path);
    const QString native = Paths::ToNative(path);
    if (!Files::FileExists(path))
        Fail(native, u"no such file"_s);
    if (!Analysis::Accepts(name))
        Fail(native, GetText(u"UnsupportedFormat"_s));
    const QString lower = name.toLower();
    if ((lower == u"shellmap1.map" && game == ZeroHour) || (lower == u"shellmapmd.map" && game != ZeroHour))
        Fail(native, GetText(u"WrongGame"_s));
    if (Game.at(static_cast<std::size_t>(game)).InstallPath.isEmpty())
        Fail(native, u"the game is not installed"_s);
}

bool IsChosen(const InstallRecord& record, const QString& name) {
    return record.EntryPath == name || record.FileName == name || FitsPattern(record.EntryPath, name);
}

/// Ticks what is wanted of an archive: one whose name is spelt so, else all that fit the pattern.
void Tick(InstallSource& source, const Arguments& given) {
    const QStringList names = given.Texts("--only");
    for (InstallRecord& record : source.InstallRecords)
        record.Selected = names.isEmpty();
    for (const QString& name : names) {
        bool found = false;
        for (InstallRecord& record : source.InstallRecords) {
            const bool isChosen = IsChosen(record, name);
            record.Selected = record.Selected || isChosen;
            found = found || isChosen;
        }
        if (!found)
            Fail(given.Text("FILE"), u"nothing to be installed is named %1"_s.arg(name));
    }
}

void CheckUsage(const Arguments& given) {
    const bool isZip = given.Text("FILE").endsWith(u"zip"_s);
    const bool both = given.Has("--all") && given.Has("--only");
    const bool neither = isZip && !given.Has("--all") && !given.Has("--only") && !given.Has("--plan");
    if (both || neither || (given.Has("--only") && !isZip)) {
        Report({ErrorNumber::InvalidCall, both      ? u"--all and --only exclude each other"_s
                                          : neither ? u"--all or --only tells what of an archive is wanted"_s
                                                    : u"--only chooses in archives"_s});
        EndWith(WrongUsage);
    }
}

InstallSource Analysed(const Arguments& given, const QString& path, ccZip& zip, Analysis::Records records) {
    if (given.Has("--password"))
        zip.Password = given.Text("--password");
    InstallSource source = Analysis::Analyse(path, Paths::LastPart(path), zip, records);
    if (source.SourceIsZip && !zip.IsOpen())
        throw RuntimeError(ErrorNumber::PathFileAccess, zip.GetZipInfo());
    if (source.SourceIsZip && source.InstallRecords.empty())
        Fail(Paths::ToNative(path), GetText(u"EmptyFile"_s));
    if (source.SourceIsZip)
        Tick(source, given);
    return source;
}

void PrintPlan(const Arguments& given, const QString& path) {
    const GameIndex game = GameArgument::Detected(given, "--game");
    Check(path, game);
    ccZip zip;
    const InstallSource source = Analysed(given, path, zip, Analysis::Records::Left);
    InstallRows::Print(InstallPlans::Make(source, game, zip), source.PassedOver, given.Has("--json"));
}

void InstallNow(const Arguments& given, const QString& path) {
    const GameIndex game = GameArgument::Prepared(given, "--game");
    Check(path, game);
    const ScratchFolders::Claim scratch;
    InstallSource source;
    Installation::Options options{.Asks = !given.Has("--yes")};
    {
        ccZip zip; // not open any more while files are written
        source = Analysed(given, path, zip, Analysis::Records::Read);
        options.Password = zip.Password;
    }
    NoView view;
    InstallOutcome outcome;
    try {
        Installation::InstallFiles(source, game, view, outcome, options);
    } catch (const RuntimeError&) {
        // What was done until then is there.
        InstallRows::Print(outcome, given.Has("--json"));
        Flush();
        throw;
    }
    InstallRows::Print(outcome, given.Has("--json"));
    if (outcome.AnyFailed())
        EndWith(1);
}

void Install(const Arguments& given) {
    CheckUsage(given);
    const QString path = given.Path("FILE");
    if (given.Has("--plan"))
        PrintPlan(given, path);
    else
        InstallNow(given, path);
}

} // namespace

std::vector<Command> InstallCommands() {
    return {
        {"install",
         "Install a map, mod, replay or shell map, or what an archive holds of them, into a game; prints a line a "
         "file that is there then",
         {{Kind::Place, "FILE", "A .map, .rep, .big or .zip; all files beside a map go with it"},
          GameArgument::Word(Kind::Option, "--game"),
          {Kind::Flag, "--all", "All that an archive holds"},
          {Kind::List, "--only", "Of an archive only these: names, and patterns with * and ?"},
          {Kind::Flag, "--plan",
           "Write nothing; print what would be written: an item a line (kind, name, files, bytes, folder), then its "
           "files (new, replaces, same, itself or refused, bytes, target, source)"},
          ListRows::Json(),
          {Kind::Flag, "--yes", "Answer Yes where a window would ask; without it such items are left out"},
          {Kind::Option, "--password", "Opens what is encrypted"}},
         Install,
         true}};
}
