// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/OpenArchive.h"

#include "big/format/ArchiveReader.h"
#include "big/format/mBIG.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The file that the table was read from.
struct Kept {
    File Open;
    FileState State; ///< when it was read
    QString Path;    ///< inside path
};

Archive current;
Kept kept;
mBIG::Identity identity = std::make_shared<int>();
bool saved = false; ///< the table's offsets are not those of the file that a save wrote
int locks = 0;

void RaiseWhenLocked(const QString& path) {
    if (mBIG::ArchiveLock::IsHeld())
        throw RuntimeError(ErrorNumber::PermissionDenied, Paths::ToNative(path) + u": the open archive is in use"_s);
}

bool IsThere(const FileState& state) {
    return !state.Identity.isEmpty();
}

/// Whether bytes of the file on disk are to be saved.
bool NeedsOldBytes() {
    return std::ranges::any_of(current.Entries,
                               [](const BigEntry& entry) { return !entry.Deleted && !entry.IsNew && entry.Size > 0; });
}

/// By the file, not by the path: another file may stand under the path by now, and then this is the last hold on the
/// old bytes.
bool IsKept(const QString& target) {
    return kept.Open.IsOpen() && StateOf(target).Identity == kept.State.Identity;
}

[[noreturn]] void RefuseOld(const QString& path, const QString& reason) {
    throw RuntimeError(ErrorNumber::PathFileAccess, Paths::ToNative(path) + u": "_s + reason);
}

} // namespace

namespace OpenArchive {

Source::Source() {
    if (mBIG::HasLostBytes())
        RefuseOld(current.FileName, u"the open archive was saved, and the new file was not read since"_s);
    const bool isKept = kept.Path == current.FileName && IsThere(kept.State);
    if (!kept.Open.IsOpen() || kept.Path != current.FileName)
        Ignoring([this] { other_ = File::Open(current.FileName, File::Access::Read); });
    if (!NeedsOldBytes() || (other_.IsOpen() && !isKept))
        return;
    const File& read = other_.IsOpen() ? other_ : kept.Open;
    if (!read.IsOpen())
        RefuseOld(current.FileName, u"the open archive can't be read any more"_s);
    // What was kept open is the very file that was read: only what is in it can be another's.
    const FileState now = read.State();
    const bool isRead = !other_.IsOpen() || now.Identity == kept.State.Identity;
    if (!isRead || now.Length != kept.State.Length || now.Time != kept.State.Time)
        RefuseOld(kept.Path, u"the open archive was changed by another program"_s);
}

const Device* Source::Bytes() const {
    if (other_.IsOpen())
        return &other_;
    return kept.Open.IsOpen() ? &kept.Open : nullptr;
}

Aside::Aside(const QString& target, bool staysOpen) : wasOpen_(IsKept(target)) {
    if (wasOpen_ && staysOpen)
        stays_.emplace(kept.Open, target);
    else if (wasOpen_)
        Ignoring([] { kept.Open.Close(); });
}

Aside::~Aside() {
    const bool stays = stays_.has_value();
    stays_.reset();
    if (!wasOpen_)
        return;
    if (replaced_ && !stays)
        kept = {};
    else if (!replaced_ && !kept.Open.IsOpen())
        Ignoring([] { kept.Open = File::Open(kept.Path, File::Access::Read); });
}

File TakeOld() {
    File old = std::move(kept.Open);
    bool isAsRead = false;
    if (old.IsOpen() && kept.Path == current.FileName)
        Ignoring([&] { isAsRead = old.State() == kept.State; });
    return isAsRead ? std::move(old) : File();
}

bool IsAsRead() {
    if (saved)
        return false;
    return kept.Path != current.FileName || !IsThere(kept.State) || StateOf(kept.Path) == kept.State;
}

void Saved() {
    saved = true;
}

} // namespace OpenArchive

namespace mBIG {

std::vector<BigEntry>& BigEntries = current.Entries;
qint32& BigVersion = current.Version;
QString& BigFileName = current.FileName;

Archive& Open() {
    return current;
}

Identity CurrentIdentity() {
    return identity;
}

void Load(const QString& path) {
    RaiseWhenLocked(path);
    Kept file{File::Open(path, File::Access::Read), {}, path};
    file.State = file.Open.State();
    Archive read = Archives::Read(file.Open, BigVersion);
    read.FileName = path;
    current = std::move(read);
    kept = std::move(file);
    saved = false;
    identity = std::make_shared<int>();
}

void New(const QString& path, qint32 version) {
    RaiseWhenLocked(path);
    current = {.Entries = std::vector<BigEntry>(1), .Version = version, .FileName = path};
    kept = {};
    saved = false;
    identity = std::make_shared<int>();
}

void Close() {
    RaiseWhenLocked(current.FileName);
    current = {.Entries = {}, .Version = current.Version, .FileName = {}};
    kept = {};
    saved = false;
    identity = std::make_shared<int>();
}

bool HasLostBytes() {
    return saved && NeedsOldBytes();
}

qint64 LengthOnDisk() {
    return kept.State.Length;
}

bool ReadBigFile(const QString& path) {
    return Ignoring([&] {
        RaiseWhenLocked(path);
        Kept file{File::Open(path, File::Access::Read), {}, path};
        file.State = file.Open.State();
        // A file that is refused behind its header has replaced the table. This is meant.
        identity = std::make_shared<int>();
        ArchiveReader::Fill(file.Open, current);
        kept = std::move(file);
        saved = false;
    });
}

int FindEntry(const QString& name) {
    return Archives::Find(current, name);
}

int HighestIndex() {
    return BigEntries.empty() ? 0 : static_cast<int>(BigEntries.size()) - 1;
}

ArchiveLock::ArchiveLock() {
    ++locks;
}

ArchiveLock::~ArchiveLock() {
    --locks;
}

bool ArchiveLock::IsHeld() {
    return locks > 0;
}

} // namespace mBIG
