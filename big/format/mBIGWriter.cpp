// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"

#include "big/format/ArchiveData.h"
#include "big/format/Layout.h"
#include "core/Host.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using mTraduction::GetText;
using NumberedFiles::Access;

namespace {

constexpr int TargetNumber = 1;
constexpr int SourceNumber = 2;
constexpr int OldArchiveNumber = 3;

QString lastFailure;

qint64 LengthOfSource(const BigEntry& entry) {
    if (!entry.IsNew)
        return entry.Size;
    qint64 length = 0;
    Ignoring([&] { length = Files::FileLength(entry.SourcePath); });
    return length;
}

/// One save: what is computed from the table, then written to a target that stands apart until it is whole.
class Save {
public:
    explicit Save(Progress& progress) : progress_(progress), variant_(Layout::VariantOf(mBIG::BigVersion)) {
        for (const BigEntry& entry : mBIG::BigEntries) {
            if (entry.Deleted)
                continue;
            ++kept_;
            total_ += Layout::RecordOverhead + mBIG::StringToBytes(entry.Name).size();
            Host::Current().Yield();
        }
        total_ = Layout::FirstFileField(variant_, total_);
    }

    /// Writes the archive into the open target, old entries out of the open old archive.
    void Write() {
        const QByteArray header = Header();
        NumberedFiles::Write(TargetNumber, 0, header);
        // One byte before the first-file field, and no other place. This is meant.
        ArchiveData data(TargetNumber, OldArchiveNumber, SourceNumber, header.size(), total_ - 1);
        WriteEntries(data);
        const qint64 length = data.Finish();
        QByteArray reversed = mBIG::LongToBytes(static_cast<qint32>(length));
        std::ranges::reverse(reversed);
        NumberedFiles::Write(TargetNumber, Layout::LengthOffset, reversed);
    }

private:
    QByteArray Header() const {
        QByteArray header;
        header.reserve(static_cast<qsizetype>(total_));
        header += variant_.Magic;
        header += "    "; // the place of the length
        header += mBIG::LongToBytes(kept_);
        header += mBIG::LongToBytes(static_cast<qint32>(total_));
        qint64 cursor = total_;
        for (const BigEntry& entry : mBIG::BigEntries) {
            if (entry.Deleted)
                continue;
            cursor = Layout::Aligned(variant_, cursor);
            const qint64 size = LengthOfSource(entry);
            header += mBIG::LongToBytes(static_cast<qint32>(cursor));
            header += mBIG::LongToBytes(static_cast<qint32>(size));
            header += mBIG::StringToBytes(entry.Name);
            header += '\0';
            // The cursor is a signed 32-bit number: a sum beyond it is not stored.
            if (cursor + size <= std::numeric_limits<qint32>::max())
                cursor += size;
            Host::Current().Yield();
        }
        return header += variant_.Mark;
    }

    void WriteEntries(ArchiveData& data) const {
        const QString writing = GetText(u"WritingFiles"_s) + u"\r\n"_s;
        const qint64 steps = kept_ - 1;
        for (std::size_t index = 0; index < mBIG::BigEntries.size(); ++index) {
            const BigEntry& entry = mBIG::BigEntries[index];
            if (entry.Deleted)
                continue;
            progress_.SetText(writing + entry.Name);
            data.Load(entry);
            if (variant_.Aligned)
                data.Align();
            data.Put();
            // Deleted records count in the index and not in the steps, so that the value can pass 100 and is then not
            // shown; a single record shows none. This is meant.
            if (const qint64 percent = steps == 0 ? 101 : static_cast<qint64>(index) * 100 / steps; percent <= 100)
                progress_.SetValue(static_cast<int>(percent));
            Host::Current().Yield();
        }
    }

    Progress& progress_;
    const Layout::Variant& variant_;
    qint32 kept_ = 0;
    qint64 total_ = Layout::DirectoryOffset;
};

void CloseNumbers() {
    for (const int number : {TargetNumber, SourceNumber, OldArchiveNumber})
        Ignoring([number] { NumberedFiles::Close(number); });
}

/// Writes to `path`, reading old entries from `oldArchive`. Raises with every number closed.
void WriteTo(const QString& path, const QString& oldArchive, bool toDisk, Progress& progress) {
    CloseNumbers();
    try {
        NumberedFiles::OpenAsGiven(TargetNumber, path, Access::Replace);
        Ignoring([&] { NumberedFiles::Open(OldArchiveNumber, oldArchive, Access::Read); });
        Save(progress).Write();
        if (toDisk)
            NumberedFiles::Flush(TargetNumber);
        NumberedFiles::Close(TargetNumber);
    } catch (const RuntimeError&) {
        CloseNumbers();
        throw;
    }
    CloseNumbers();
}

/// Raises when something stands at the target that can't be written over.
void CheckTarget(const QString& target) {
    if (!Files::FileExists(target) && !Files::FolderExists(target))
        return;
    NumberedFiles::Close(TargetNumber);
    NumberedFiles::Open(TargetNumber, target, Access::ReadWrite);
    NumberedFiles::Close(TargetNumber);
}

/// The old archive steps aside as ".tmp" and comes back when the save fails.
void SaveOverOpenArchive(const QString& target, Progress& progress) {
    const QString old = target + u".tmp"_s;
    Files::Replace(target, old);
    try {
        WriteTo(target, old, true, progress);
    } catch (const RuntimeError&) {
        Files::Replace(old, target);
        throw;
    }
    Ignoring([&] { Files::DeleteForced(old); });
}

void SaveElsewhere(const QString& target, Progress& progress) {
    const QString aside = Files::TemporaryBeside(target);
    try {
        WriteTo(aside, mBIG::BigFileName, false, progress);
        Files::Replace(aside, target);
    } catch (const RuntimeError& error) {
        Ignoring([&] { Files::DeleteForced(aside); });
        QString told = error.Description();
        throw RuntimeError(error.Number(), told.replace(Paths::ToNative(aside), Paths::ToNative(target)));
    }
}

void SaveTo(const QString& path, Progress& progress) {
    const QString native = Paths::ToNative(path);
    const QString target = Paths::Absolute(native);
    if (mBIG::BigEntries.size() > mBIG::MaximumEntries)
        throw RuntimeError(ErrorNumber::Overflow, u"%1: more than %2 entries"_s.arg(native).arg(mBIG::MaximumEntries));
    CheckTarget(target);
    if (Files::SameFile(target, mBIG::BigFileName))
        SaveOverOpenArchive(target, progress);
    else
        SaveElsewhere(target, progress);
    for (BigEntry& entry : mBIG::BigEntries)
        entry.IsNew = entry.IsNew && entry.Deleted;
}

/// Empties the scratch folder but for some files; what can't be deleted stays.
void EmptyScratch(const QStringList& kept) {
    const QString folder = mMain::ScratchFolder() + u'\\';
    for (const QString& name : Files::ListFolder(folder + u"*.*"_s)) {
        const QString file = folder + name;
        if (std::ranges::none_of(kept, [&](const QString& each) { return Files::SameFile(each, file); }))
            Ignoring([&] { Files::DeleteForced(file); });
    }
}

} // namespace

namespace mBIG {

bool WriteBigFile(const QString& path, const QStringList& kept) {
    const std::unique_ptr<Progress> progress = Host::Current().ShowProgress();
    const QString fileName = Paths::LastPart(path);
    progress->SetText(GetText(u"CreatingFile"_s) + u" '"_s + fileName + u"'\r\n"_s + GetText(u"WritingHeader"_s));
    lastFailure.clear();
    // A table of one record counts as empty. The progress window stays on the screen. This is meant.
    if (HighestIndex() == 0) {
        progress->Release();
        return false;
    }
    try {
        SaveTo(path, *progress);
    } catch (const RuntimeError& error) {
        lastFailure = error.Description();
        return false;
    }
    Ignoring([&] { EmptyScratch(kept); });
    return true;
}

QString LastFailure() {
    return lastFailure;
}

} // namespace mBIG
