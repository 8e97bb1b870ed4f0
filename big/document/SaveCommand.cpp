// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/SaveCommand.h"

#include "big/document/FileAdding.h"
#include "big/document/OffsetNotices.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Document::Saved;
using mTraduction::GetText;

namespace {

constexpr int mostNamesShown = 10;

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

Saved SaveCommand::SaveUnderName() {
    if (mBIG::BigFileName != GetText(u"New"_s) + "BIG.big"_L1)
        return SaveTo(mBIG::BigFileName);
    const auto path = Host::Current().SaveFileName(ArchiveDialog());
    if (!path)
        return Saved::Cancelled;
    Ignoring([&] { panes_.Tree.SetRootText(Paths::LastPart(*path)); });
    panes_.View.StateChanged();
    return SaveTo(*path);
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

Saved SaveCommand::SaveTo(const QString& path) {
    const auto placement = panes_.State.ExactOffsets ? Archives::Placement::Exact : Archives::Placement::Told;
    const bool writes = placement == Archives::Placement::Exact || mBIG::HighestIndex() > 0;
    if (writes && !GoesOnWithoutSources())
        return Saved::Cancelled;
    const std::vector<int> newIndices = Archives::IndicesAfterSave(mBIG::Open());
    copies_.BeforeSave();
    std::optional<OffsetShift::Shift> shift;
    try {
        shift = mBIG::Save(path, {.Kept = copies_.Kept(), .Place = placement});
    } catch (const RuntimeError& error) {
        Host::Current().Message(GetText(u"SaveFailed"_s) + "\r\n"_L1 + error.Description(), Host::Icon::Critical);
        return Saved::Failed;
    }
    // With nothing to save no message comes, and the progress window stays on the screen. This is meant.
    if (!shift) {
        if (!Archives::IsBlank(mBIG::Open()))
            OffsetNotices::TellNotSaved(panes_, [this] { SaveExactly(); });
        return Saved::NothingToSave;
    }
    ShowWritten(path, newIndices);
    if (mBIG::HasLostBytes()) {
        panes_.View.ShowNotice({});
        Host::Current().Message(GetText(u"SavedNotRead"_s), Host::Icon::Critical);
        return Saved::Yes;
    }
    OffsetNotices::TellWritten(panes_, *shift, [this] { SaveExactly(); });
    return Saved::Yes;
}

void SaveCommand::SaveExactly() {
    panes_.State.ExactOffsets = true;
    Save();
}

void SaveCommand::ShowWritten(const QString& path, const std::vector<int>& newIndices) {
    const QString folderKey = panes_.SelectedKey();
    // The table's offsets must be the written file's.
    if (Ignoring([&] { mBIG::Load(path); }))
        copies_.EntriesMoved(newIndices);
    panes_.State.Modified = mBIG::HasLostBytes();
    panes_.Shown = mBIG::CurrentIdentity();
    mBIG::BigFileName = path;
    // A name that is no archive's is not shown anew. This is meant.
    if (IsArchiveName(path))
        panes_.CreateDirs();
    FileAdding::ForgetAdopted();
    panes_.State.DetailsVisible = false;
    panes_.State.ModifyEnabled = false;
    details_.Clear();
    Ignoring([&] { panes_.Tree.SetRootText(Paths::LastPart(path)); });
    panes_.ShowAgain(folderKey);
}
