// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/InstallRun.h"

#include "core/GameFiles.h"
#include "core/Host.h"
#include "core/ProgramFolders.h"
#include "core/mTraduction.h"
#include "install/wizard/EntryNames.h"
#include "install/wizard/InstallQuestions.h"
#include "install/zip/ZipFailure.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <QScopeGuard>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr double WholeBar = 100;
constexpr qsizetype ExtensionWithDot = 4;

/// How people know the source of a file.
QString Shown(const SourceFile& file) {
    return file.IsEntry ? file.From : Paths::ToNativeAsGiven(file.From);
}

QString Shown(const InstallRecord& record) {
    return record.ZipPath.isEmpty() ? Paths::ToNativeAsGiven(record.EntryPath) : record.EntryPath;
}

/// A reason that begins with the name that stands before it in a line.
QString Without(const QString& name, const QString& reason) {
    return reason.startsWith(name + u": "_s) ? reason.sliced(name.size() + 2) : reason;
}

void Yield() {
    if (Host::IsThere())
        Host::Current().Yield();
}

} // namespace

InstallRun::InstallRun(const InstallSource& source, GameIndex game, InstallationView& view, InstallOutcome& outcome,
                       const Installation::Options& options)
    : source_(source),
      place_(Game.at(static_cast<std::size_t>(game))),
      view_(view),
      outcome_(outcome),
      watch_(options.Watch) {
    if (source.SourceIsZip && !source.InstallRecords.empty()) {
        zip_.Password = options.Password;
        zip_.Init(source.InstallRecords.front().ZipPath);
        zip_.Watch = [this](qint64 bytes) { ShowBytes(bytes); };
    }
    plan_ = InstallPlans::Make(source, game, zip_);
    if (options.Asks)
        notWanted_ = InstallQuestions::NotWanted(plan_);
    UnpackAhead();
}

void InstallRun::UnpackAhead() {
    std::vector<qint32> entries;
    for (const PlannedItem& item : plan_.Items) {
        if (notWanted_.contains(item.Number))
            continue;
        for (const PlannedFile& file : item.Files)
            entries.push_back(zip_.Find(file.Source));
    }
    zip_.Ahead(entries, watch_ != nullptr);
}

void InstallRun::Single() {
    view_.ShowText(GetText(u"CurrentFile2"_s) + u' ' + source_.SingleFile.FileName);
    BeginShare(0, WholeBar, plan_.Items.front());
    Install(source_.SingleFile, plan_.Items.front());
    view_.ShowProgress(static_cast<int>(WholeBar));
}

void InstallRun::Zip() {
    const QString text = GetText(u"CurrentFile2"_s) + u' ';
    const double share = WholeBar / static_cast<double>(source_.InstallRecords.size());
    auto planned = plan_.Items.begin();
    for (std::size_t number = 0; number < source_.InstallRecords.size(); ++number) {
        const InstallRecord& record = source_.InstallRecords[number];
        const auto begin = static_cast<double>(number) * share;
        const auto end =
            static_cast<double>(number + 1) * WholeBar / static_cast<double>(source_.InstallRecords.size());
        if (record.Selected) {
            view_.ShowText(text + record.FileName);
            BeginShare(begin, end, *planned);
            Install(record, *planned++);
        }
        view_.ShowProgress(static_cast<int>(std::nearbyint(end)));
    }
}

void InstallRun::Flush() const {
    for (const auto& folder : folders_) {
        if (folder.second != nullptr)
            Ignoring([&] { Files::FlushSystem(folder.first); });
    }
}

void InstallRun::Install(const InstallRecord& record, const PlannedItem& plan) {
    const bool isSingleMod = record.Kind == FileKind::Mod && !source_.SourceIsZip;
    if (notWanted_.contains(plan.Number))
        return outcome_.Failed(Shown(record), GetText(u"NotWanted"_s));
    if (!plan.Refusal.isEmpty() && !isSingleMod)
        return outcome_.Failed(Shown(record), plan.Refusal);
    if (source_.SourceIsZip && !zip_.IsOpen())
        return outcome_.Failed(Shown(record), zip_.GetZipInfo());
    const Item item{.Record = record, .Plan = plan, .Base = EntryNames::Without(record.FileName, ExtensionWithDot)};
    try {
        switch (record.Kind) {
        case FileKind::Map:
            return InstallMap(item);
        case FileKind::Mod:
            return InstallMod(item);
        case FileKind::Replay:
            return InstallReplay(item);
        case FileKind::ShellMap:
            return InstallShellMap(item);
        default:
            return outcome_.Failed(Shown(record), GetText(u"UnsupportedFormat"_s));
        }
    } catch (const RuntimeError& error) {
        // Of all that is copied this alone is a failure that ends the program. This is meant.
        if (isSingleMod)
            throw;
        outcome_.Failed(Shown(record), error.Description());
    }
}

void InstallRun::InstallMap(const Item& item) {
    TargetFolder& maps = FolderAt(place_.MapFolder());
    maps.AddFolder(item.Base);
    const std::vector<SourceFile> files = FilesOf(item);
    for (const SourceFile& file : files)
        Put(maps, file, item.Base + u'\\' + file.Name);
    if (files.empty())
        outcome_.Failed(Shown(item.Record), u"no file of it is there"_s);
}

void InstallRun::InstallMod(const Item& item) {
    TargetFolder& game = FolderAt(place_.InstallFolder());
    const std::vector<SourceFile> files = FilesOf(item);
    bool isKept = false; // the INI file: what was read out of it may have been cut
    for (const SourceFile& file : files) {
        if (item.Record.ZipPath.isEmpty())
            isKept = !PutStrictly(game, file, file.Name) && &file != &files.front();
        else
            Put(game, file, file.Name);
    }
    if (!isKept)
        Describe(game, EntryNames::LastPart(item.Base) + u".ini"_s, u"Mod"_s, item.Record);
}

void InstallRun::InstallReplay(const Item& item) {
    TargetFolder& replays = FolderAt(place_.ReplayFolder());
    for (const SourceFile& file : FilesOf(item))
        Put(replays, file, file.Name);
}

void InstallRun::InstallShellMap(const Item& item) {
    if (!source_.SourceIsZip)
        return FillShellMap(item, Paths::Folder(item.Record.EntryPath));
    const QString folder = ProgramFolders::ScratchFolder() + u"\\SMTemp"_s;
    Ignoring([] { Files::MakeFolders(ProgramFolders::ScratchFolder()); });
    const auto leave = qScopeGuard([&] {
        Files::EmptyFolder(folder);
        Ignoring([&] { Files::RemoveFolder(folder); });
    });
    Files::EmptyFolder(folder); // what a process left that died in here
    TargetFolder scratch(folder + u'\\', nullptr);
    for (const SourceFile& file : FilesOf(item)) {
        try {
            zip_.Writes = nullptr;
            if (zip_.DecompressTo(scratch.PlaceFor(file.Name), file.From) != ZipResult::Done)
                outcome_.Failed(Shown(file), Without(file.From, zip_.GetZipInfo()));
        } catch (const RuntimeError& error) {
            outcome_.Failed(Shown(file), error.Description());
        }
        EndFile(file.Size);
    }
    FillShellMap(item, folder + u'\\');
}

/// All that lies in a folder becomes the game's next shell map.
void InstallRun::FillShellMap(const Item& item, const QString& sourceFolder) {
    TargetFolder& game = FolderAt(place_.InstallFolder());
    Ignoring([&] { game.AddFolder(u"Maps"_s); });
    const QString name = NextShellMap();
    game.AddFolder(name);
    InstallRecord beside = item.Record;
    beside.EntryPath = sourceFolder + EntryNames::LastPart(item.Record.FileName);
    for (const SourceFile& file : ItemFiles(nullptr).Of(beside))
        Put(game, file, name + u'\\' + file.Name);
    Describe(game, name + u"\\QvInfos.ini"_s, u"Infos"_s, item.Record);
}

/// Raises 5 behind number 999.
QString InstallRun::NextShellMap() const {
    const QStringList names = Files::ListFolder(place_.InstallFolder() + u"Maps\\"_s, true);
    return u"Maps\\"_s + GameFiles::ShellMapName(QString::number(InstallPlans::NextShellMapNumber(names)));
}

/// The plan knows the entries of an archive; loose files are looked for once more.
std::vector<SourceFile> InstallRun::FilesOf(const Item& item) const {
    if (!source_.SourceIsZip)
        return ItemFiles(nullptr).Of(item.Record);
    std::vector<SourceFile> files;
    files.reserve(item.Plan.Files.size());
    for (const PlannedFile& file : item.Plan.Files)
        files.push_back(
            {.Name = EntryNames::LastPart(file.Source), .From = file.Source, .Size = file.Size, .IsEntry = true});
    return files;
}

void InstallRun::Put(TargetFolder& folder, const SourceFile& file, const QString& name) {
    try {
        PutStrictly(folder, file, name);
    } catch (const RuntimeError& error) {
        outcome_.Failed(Shown(file), error.Description());
    }
    Yield();
}

/// False for a file that is not another one than before.
bool InstallRun::PutStrictly(TargetFolder& folder, const SourceFile& file, const QString& name) {
    if (!file.Refusal.isEmpty()) {
        outcome_.Failed(Shown(file), file.Refusal);
        return false;
    }
    const auto end = qScopeGuard([&] { EndFile(file.Size); });
    const FilePlace place = folder.PlaceFor(name);
    const QString path = place.Path();
    if (!file.IsEntry) {
        if (folder.Copy(file.From, place, [this](qint64 bytes) { ShowBytes(bytes); })) {
            outcome_.Done(Shown(file), folder.Spelt(path));
            return true;
        }
        outcome_.Kept(folder.Spelt(path));
        return false;
    }
    zip_.Writes = folder.Watch();
    if (zip_.DecompressTo(place, file.From) != ZipResult::Done) {
        outcome_.Failed(Shown(file), Without(file.From, zip_.GetZipInfo()));
        return false;
    }
    outcome_.Done(Shown(file), folder.Spelt(path));
    return true;
}

void InstallRun::Describe(TargetFolder& folder, const QString& name, const QString& section,
                          const InstallRecord& record) {
    QString shown = name;
    try {
        const FilePlace place = folder.PlaceFor(name);
        shown = folder.Spelt(place.Path());
        if (folder.WriteIni(place, section, {{u"Name"_s, record.DisplayName}, {u"Comments"_s, record.Comments}}))
            outcome_.Changed(shown);
        else
            outcome_.Failed(Paths::ToNativeAsGiven(shown), u"could not be written"_s);
    } catch (const RuntimeError& error) {
        outcome_.Failed(Paths::ToNativeAsGiven(shown), error.Description());
    }
}

TargetFolder& InstallRun::FolderAt(const QString& path) {
    if (last_ == nullptr || lastPath_ != path) {
        std::unique_ptr<TargetFolder>& folder = folders_[path];
        if (folder == nullptr)
            folder = std::make_unique<TargetFolder>(path, watch_);
        last_ = folder.get();
        lastPath_ = path;
    }
    return *last_;
}

void InstallRun::BeginShare(double from, double to, const PlannedItem& plan) {
    from_ = from;
    to_ = to;
    ended_ = 0;
    total_ = 0;
    for (const PlannedFile& file : plan.Files)
        total_ += static_cast<double>(file.Size);
    if (plan.Kind == FileKind::ShellMap && source_.SourceIsZip) // extracted, then copied
        total_ *= 2;
}

void InstallRun::ShowBytes(qint64 bytes) {
    if (total_ <= 0)
        return;
    const double part = std::min(1.0, (ended_ + static_cast<double>(bytes)) / total_);
    // Rounded as the value behind each record is, or the bar would go back.
    const int percent = static_cast<int>(std::nearbyint(from_ + part * (to_ - from_)));
    if (percent != shown_)
        view_.ShowProgress(percent);
    shown_ = percent;
}

void InstallRun::EndFile(qint64 size) {
    ended_ += static_cast<double>(size);
}
