// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"

#include "big/format/OpenArchive.h"
#include "big/format/OriginalBytes.h"
#include "big/format/WritePlan.h"
#include "core/Host.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/SaveLock.h"
#include "platform/WriteAside.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;
using Archives::Placement;
using mTraduction::GetText;
using OffsetShift::Shift;

namespace {

bool saving = false;

/// Shows the window of a save.
std::unique_ptr<Progress> ShowProgress(const QString& path) {
    std::unique_ptr<Progress> progress = Host::Current().ShowProgress();
    const QString fileName = Paths::LastPart(path);
    progress->SetText(GetText(u"CreatingFile"_s) + u" '"_s + fileName + u"'\r\n"_s + GetText(u"WritingHeader"_s));
    return progress;
}

/// Tells the window how far the save is.
Archives::Watch InProgressWindow(Progress& progress) {
    const QString writing = GetText(u"WritingFiles"_s) + u"\r\n"_s;
    return {.Entry = [&progress, writing](const QString& name) { progress.SetText(writing + name); },
            .Percent = [&progress](int percent) { progress.SetValue(percent); },
            .Yield = [] { Host::Current().Yield(); }};
}

/// A table of one record counts as empty for the told placement. This is meant.
bool HasNothingToSave(Placement placement) {
    return placement == Placement::Told ? mBIG::HighestIndex() == 0 : Archives::IsBlank(mBIG::Open());
}

Shift WriteBytes(Device& target, const mBIG::SaveOptions& options, bool fromOriginals, Progress& progress) {
    const OpenArchive::Source old;
    const Archives::Watch watch = InProgressWindow(progress);
    if (!fromOriginals)
        return Archives::Write(mBIG::Open(), target, old.Bytes(), options.Place, watch);
    const OriginalBytes::Gathered gathered(*options.Originals, old.Bytes());
    return Archives::Write(gathered.Table(), target, &gathered, options.Place, watch);
}

/// Puts the written file in the target's place. What is replaced stays open where bytes of it are needed once more.
void PutInPlace(WriteAside& aside, const QString& path, OriginalBytes* originals, bool fromOriginals) {
    const bool needsOld = originals != nullptr && !fromOriginals && originals->NeedOpenArchive();
    {
        OpenArchive::Aside closed(path, needsOld);
        std::vector<std::unique_ptr<ReplacedFile::StaysOpen>> staying;
        if (originals != nullptr)
            staying = originals->MakeWay(path);
        aside.Commit();
        closed.Replaced();
    }
    if (originals != nullptr)
        originals->Saved(fromOriginals, needsOld ? OpenArchive::TakeOld() : File());
    OpenArchive::Saved();
}

Shift WriteTo(const QString& path, const mBIG::SaveOptions& options, Progress& progress) {
    WritePlan::CheckCount(mBIG::Open(), Paths::ToNative(path));
    const bool fromOriginals = options.FromOriginals && options.Originals != nullptr && options.Originals->AreKnown();
    const SaveLock lock(path);
    WriteAside aside(path);
    Shift shift = WriteBytes(aside.Out(), options, fromOriginals, progress);
    PutInPlace(aside, path, options.Originals, fromOriginals);
    for (BigEntry& entry : mBIG::BigEntries)
        entry.IsNew = entry.IsNew && entry.Deleted;
    return shift;
}

} // namespace

namespace mBIG {

std::optional<Shift> Save(const QString& path, const SaveOptions& options) {
    if (saving)
        throw RuntimeError(ErrorNumber::PermissionDenied, Paths::ToNative(path) + u": another save is under way"_s);
    const QScopedValueRollback save(saving, true);
    const ArchiveLock lock;
    const std::unique_ptr<Progress> progress = ShowProgress(path);
    if (HasNothingToSave(options.Place)) {
        // The progress window stays on the screen. This is meant.
        progress->Release();
        return std::nullopt;
    }
    // What an entry of size 0 left open would stand in the way of its archive's replacement.
    CloseExtraction();
    Shift shift = WriteTo(path, options, *progress);
    const QString scratch = options.Scratch.isEmpty() ? mMain::ScratchFolder() : options.Scratch;
    Ignoring([&] { Files::EmptyFolder(scratch, options.Kept); });
    return shift;
}

bool WriteBigFile(const QString& path, const QStringList& kept) {
    try {
        return Save(path, {.Kept = kept}).has_value();
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace mBIG
