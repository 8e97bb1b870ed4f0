// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/SaveCommand.h"

#include "big/document/FileAdding.h"
#include "big/document/KeptRows.h"
#include "big/document/OffsetNotices.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using Document::Saved;
using mTraduction::GetText;

namespace {

constexpr int mostNamesShown = 10;

/// What a save of the table can't write, a line each.
QStringList LeftOutOf(const OriginalBytes& originals, bool fromOriginals) {
    QStringList lines;
    for (const int index : Archives::MissingSources(mBIG::Open()))
        lines += mBIG::BigEntries[static_cast<std::size_t>(index)].Name + u": "_s + GetText(u"LeftOutGone"_s);
    const qint64 length = mBIG::LengthOnDisk();
    for (std::size_t index = 0; index < mBIG::BigEntries.size() && !fromOriginals; ++index) {
        const BigEntry& entry = mBIG::BigEntries[index];
        const bool endsBehind =
            !entry.Deleted && !entry.IsNew && entry.Size > 0 && qint64{entry.Offset} + entry.Size > length;
        if (endsBehind || originals.IsCut(index))
            lines += entry.Name + u": "_s + GetText(u"LeftOutCut"_s);
    }
    return lines;
}

} // namespace

bool SaveCommand::IsArchiveName(const QString& path) {
    return path.last(std::min<qsizetype>(path.size(), 3)).toLower() == "big"_L1;
}

Host::FileDialog SaveCommand::ArchiveDialog() {
    return {.Title = u"Big Editor"_s,
            .Filter = u"Fichiers BIG (*.big)|*.big|Tous les fichiers (*.*)|*.*"_s,
            .DefaultExtension = u"big"_s,
            .DefaultName = u"*.big"_s,
            .Folder = Document::FolderForDialogs(mBIG::BigFileName)};
}

Host::FileDialog SaveCommand::OpenDialog() {
    Host::FileDialog dialog = ArchiveDialog();
    dialog.Folder = Document::FolderToOpenIn(u"big"_s, mBIG::BigFileName);
    return dialog;
}

void SaveCommand::Save() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    SaveUnderName();
}

void SaveCommand::SaveAs() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    if (const auto path = Host::Current().SaveFileName(ArchiveDialog()))
        SaveTo(*path);
}

bool SaveCommand::GoOnWithoutChanges() {
    return !panes_.State.Modified ||
           Document::GoOnWithoutChanges(Paths::ToNative(mBIG::BigFileName), [this] { return SaveBeforeGoingOn(); });
}

/// Nobody is led on as if saved: there is nothing to be lost only in a fresh archive.
Saved SaveCommand::SaveBeforeGoingOn() {
    const Saved saved = SaveUnderName();
    if (saved != Saved::NothingToSave || Archives::IsBlank(mBIG::Open()))
        return saved;
    Host::Current().ShowProgress().reset(); // the window that was left on the screen goes
    Host::Current().Message(GetText(u"OneEntryNotSaved"_s), Host::Icon::Exclamation);
    return Saved::Failed;
}

Saved SaveCommand::SaveUnderName(Bytes bytes) {
    if (mBIG::BigFileName != GetText(u"New"_s) + "BIG.big"_L1)
        return SaveTo(mBIG::BigFileName, bytes);
    const auto path = Host::Current().SaveFileName(ArchiveDialog());
    if (!path)
        return Saved::Cancelled;
    Ignoring([&] { panes_.Tree.SetRootText(Paths::LastPart(*path)); });
    panes_.View.StateChanged();
    return SaveTo(*path, bytes);
}

/// The question about new entries whose files have gone, before anything is written.
bool SaveCommand::GoesOnWithoutSources() {
    const std::vector<int> missing = Archives::MissingSources(mBIG::Open());
    if (missing.empty())
        return true;
    QStringList lines{GetText(u"SourcesMissing"_s)};
    for (const int index : missing) {
        if (lines.size() > mostNamesShown) {
            lines += u"..."_s;
            break;
        }
        lines += mBIG::BigEntries[static_cast<std::size_t>(index)].Name;
    }
    lines += QString();
    lines += GetText(u"SaveAllTheSame"_s);
    return Host::Current().Message(lines.join("\r\n"_L1), Host::Icon::Exclamation, Host::Buttons::YesNo,
                                   u"Brindock 2005"_s, Host::Answer::No) == Host::Answer::Yes;
}

Saved SaveCommand::SaveTo(const QString& path, Bytes bytes) {
    const bool exact = panes_.State.ExactOffsets;
    const auto placement = exact ? Archives::Placement::Exact : Archives::Placement::Told;
    const bool writes = exact || mBIG::HighestIndex() > 0;
    if (writes && (!GoesOnWithoutSources() || !panes_.Names.MaySave()))
        return Saved::Cancelled;
    const std::vector<int> newIndices = Archives::IndicesAfterSave(mBIG::Open());
    copies_.BeforeSave();
    const bool fromOriginals = bytes == Bytes::Original || (exact && originals_.AreOfASave());
    const QStringList leftOut = LeftOutOf(originals_, fromOriginals && originals_.AreKnown());
    std::optional<OffsetShift::Shift> shift;
    try {
        shift = mBIG::Save(
            path,
            {.Kept = copies_.Kept(), .Place = placement, .Originals = &originals_, .FromOriginals = fromOriginals});
    } catch (const RuntimeError& error) {
        Host::Current().Message(GetText(u"SaveFailed"_s) + "\r\n"_L1 + error.Description(), Host::Icon::Critical);
        return Saved::Failed;
    }
    // With nothing to save no message comes, and the progress window stays on the screen. This is meant.
    if (!shift) {
        if (!Archives::IsBlank(mBIG::Open()))
            TellNotSaved();
        return Saved::NothingToSave;
    }
    ShowWritten(path, *shift, newIndices);
    if (mBIG::HasLostBytes()) {
        panes_.View.ShowNotice({});
        Host::Current().Message(GetText(u"SavedNotRead"_s), Host::Icon::Critical);
        return Saved::Yes;
    }
    TellWritten(*shift);
    if (!leftOut.isEmpty())
        Host::Current().MessageWithList(GetText(u"LeftOut2"_s), leftOut);
    return Saved::Yes;
}

std::function<void()> SaveCommand::ExactSave(std::function<void()> tellAgain) {
    return [this, archive = mBIG::CurrentIdentity(), tellAgain = std::move(tellAgain)] {
        if (archive != mBIG::CurrentIdentity())
            return;
        const EditorPanes::Command command(panes_);
        panes_.State.ExactOffsets = true;
        if (SaveUnderName(Bytes::Original) != Saved::Yes)
            tellAgain();
    };
}

void SaveCommand::TellOpened() {
    const OffsetShift::Shift shift = OffsetShift::ShiftOf(mBIG::Open(), mBIG::LengthOnDisk());
    const bool isMendable = !shift.IsNone() && !shift.ExactFits;
    if (isMendable)
        originals_.Know(shift);
    else
        originals_.Forget();
    OffsetNotices::TellOpened(panes_, shift, [this, archive = mBIG::CurrentIdentity()] {
        const bool isSame = archive == mBIG::CurrentIdentity();
        if (isSame)
            originals_.ReadBack();
        return isSame;
    });
}

void SaveCommand::TellWritten(const OffsetShift::Shift& shift) {
    const OffsetNotices::Written written{shift, originals_.CutCount()};
    // Nothing is offered that can't be held.
    const std::function<void()> none;
    OffsetNotices::TellWritten(panes_, written,
                               originals_.AreWhole() ? ExactSave([this, shift] { TellWritten(shift); }) : none);
}

void SaveCommand::TellNotSaved() {
    OffsetNotices::TellNotSaved(panes_, ExactSave([this] { TellNotSaved(); }));
}

void SaveCommand::ShowWritten(const QString& path, const OffsetShift::Shift& shift,
                              const std::vector<int>& newIndices) {
    const QString folderKey = panes_.SelectedKey();
    KeptRows kept(panes_);
    // The table's offsets must be the written file's.
    if (Ignoring([&] { mBIG::Load(path); })) {
        originals_.Loaded(shift);
        copies_.EntriesMoved(newIndices);
    } else {
        originals_.Forget();
    }
    panes_.State.Modified = mBIG::HasLostBytes();
    panes_.Shown = mBIG::CurrentIdentity();
    mBIG::BigFileName = path;
    if (written_)
        written_();
    // A name that is no archive's is not shown anew. This is meant.
    if (IsArchiveName(path))
        panes_.CreateDirs();
    FileAdding::ForgetAdopted();
    panes_.Names.Forget();
    panes_.State.DetailsVisible = false;
    panes_.State.ModifyEnabled = false;
    details_.Clear();
    Ignoring([&] { panes_.Tree.SetRootText(Paths::LastPart(path)); });
    panes_.ShowAgain(folderKey);
    kept.PutBack();
}
