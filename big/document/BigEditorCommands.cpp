// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QScopedValueRollback>

#include <limits>

using namespace Qt::StringLiterals;
using Document::Saved;
using mTraduction::GetText;

namespace {

Host::FileDialog ArchiveDialog() {
    return {.Title = u"Big Editor"_s,
            .Filter = u"Fichiers BIG (*.big)|*.big|Tous les fichiers (*.*)|*.*"_s,
            .DefaultExtension = u"big"_s,
            .DefaultName = u"*.big"_s,
            .Folder = Document::FolderForDialogs(mBIG::BigFileName)};
}

Host::FileDialog AnyFileDialog() {
    return {.Title = {}, .Filter = u"Tous les fichiers (*.*)|*.*"_s, .DefaultExtension = {}, .DefaultName = {}};
}

qint32 EntrySize(const QString& path) {
    const qint64 length = Files::FileLength(path);
    if (length > std::numeric_limits<qint32>::max())
        throw RuntimeError(ErrorNumber::Overflow, u"%1 is too large for an archive."_s.arg(path));
    return static_cast<qint32>(length);
}

/// The record of that name, or a new one behind the highest index. Nothing when the user keeps the one that is there.
BigEntry* RecordFor(const QString& name) {
    if (const int found = mBIG::FindEntry(name); found >= 0) {
        const QString question = name + "\r\n\r\n"_L1 + GetText(u"FileAlreadyExists"_s);
        const auto answer = Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo);
        return answer == Host::Answer::Yes ? &mBIG::BigEntries[static_cast<std::size_t>(found)] : nullptr;
    }
    // Meant so: a new record goes behind index 0 even when there is no table, so a blank one stays in front.
    mBIG::BigEntries.resize(static_cast<std::size_t>(mBIG::HighestIndex()) + 2);
    return &mBIG::BigEntries.back();
}

} // namespace

bool BigEditor::Locked() const {
    if (busy_)
        Host::Current().Beep();
    return busy_;
}

bool BigEditor::GoOnWithoutChanges() {
    return !state_.Modified ||
           Document::GoOnWithoutChanges(Paths::ToNative(mBIG::BigFileName), [this] { return SaveUnderName(); });
}

bool BigEditor::MayClose() {
    if (Locked() || !TakeInChangedCopies() || !GoOnWithoutChanges())
        return false;
    EndWaits();
    return true;
}

void BigEditor::New() {
    if (Locked() || !GoOnWithoutChanges())
        return;
    const auto path = Host::Current().SaveFileName(ArchiveDialog());
    if (!path)
        return;
    mBIG::BigFileName = *path;
    mBIG::BigVersion = 2;
    view_.ShowVersion();
    mBIG::BigEntries.assign(1, {});
    ++table_;
    CreateDirs();
    // Meant so: the flag for unsaved changes and the details stay as they were.
    ArchiveOpened();
}

void BigEditor::Open() {
    if (Locked() || !GoOnWithoutChanges())
        return;
    const auto path = Host::Current().OpenFileName(ArchiveDialog());
    if (!path)
        return;
    if (LoadBig(*path))
        ResetAfterOpen();
    else
        Host::Current().Beep();
}

void BigEditor::Save() {
    if (!Locked())
        SaveUnderName();
}

Saved BigEditor::SaveUnderName() {
    if (mBIG::BigFileName != GetText(u"New"_s) + "BIG.big"_L1)
        return SaveTo(mBIG::BigFileName);
    const auto path = Host::Current().SaveFileName(ArchiveDialog());
    if (!path)
        return Saved::Cancelled;
    Ignoring([&] { tree_.SetRootText(Paths::LastPart(*path)); });
    view_.StateChanged();
    return SaveTo(*path);
}

void BigEditor::SaveAs() {
    if (Locked())
        return;
    if (const auto path = Host::Current().SaveFileName(ArchiveDialog()))
        SaveTo(*path);
}

bool BigEditor::WriteLocked(const QString& path) {
    const QScopedValueRollback lock(busy_, true);
    // What another program still has open may hold work that is not taken in yet.
    QStringList kept;
    for (const Opened& opened : openCopies_)
        kept += opened.Copy;
    return mBIG::WriteBigFile(path, kept);
}

Saved BigEditor::SaveTo(const QString& path) {
    if (WriteLocked(path)) {
        ShowWritten(path);
        return Saved::Yes;
    }
    // Meant so: with nothing to save no message comes, and the progress window stays on the screen.
    if (mBIG::LastFailure().isEmpty())
        return Saved::NothingToSave;
    Host::Current().Message(GetText(u"SaveFailed"_s) + "\r\n"_L1 + mBIG::LastFailure(), Host::Icon::Critical);
    return Saved::Failed;
}

void BigEditor::ShowWritten(const QString& path) {
    const QString folderKey = SelectedKey();
    const QString statusText = state_.StatusText;
    state_.Modified = false;
    // A name that LoadBig does not take is read all the same: the table's offsets must be the written file's.
    if (!LoadBig(path)) {
        mBIG::ReadBigFile(path);
        ++table_;
    }
    ForgetAdopted();
    state_.StatusText = statusText;
    state_.DetailsVisible = false;
    state_.ModifyEnabled = false;
    ClearPreview();
    mBIG::BigFileName = path;
    Ignoring([&] { tree_.SetRootText(Paths::LastPart(path)); });
    ShowFolder(folderKey);
}

void BigEditor::Add() {
    if (Locked())
        return;
    if (const auto path = Host::Current().OpenFileName(AnyFileDialog()))
        Ignoring([&] { AddFile(*path); });
}

void BigEditor::AddFile(const QString& path) {
    const QString name = SelectedKey() + Paths::LastPart(path);
    BigEntry* entry = RecordFor(name);
    if (entry == nullptr)
        return;
    entry->Name = name;
    entry->IsNew = true;
    entry->SourcePath = path;
    Ignoring([&] { entry->Size = EntrySize(path); });
    entry->Deleted = false;
    state_.Modified = true;
    ShowFolder(SelectedKey());
}

void BigEditor::FileVersion() {
    if (!Locked())
        view_.ShowVersion();
}
