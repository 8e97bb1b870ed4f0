// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ArchiveRescue.h"

#include "big/format/OpenArchive.h"
#include "core/mTraduction.h"
#include "platform/RuntimeError.h"

#include <set>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The files of the new entries.
std::vector<QString> Sources(const RescuedArchive& now) {
    std::vector<QString> sources;
    for (const ArchiveChange& change : now.Changes) {
        if (change.Entry.IsNew && !change.Entry.Deleted)
            sources.push_back(change.Entry.SourcePath);
    }
    return sources;
}

} // namespace

const QString ArchiveRescue::Kind = u"big"_s;

void ArchiveRescue::TakeBase(Origin origin) {
    base_ = mBIG::BigEntries;
    baseVersion_ = mBIG::BigVersion;
    archive_ = mBIG::CurrentIdentity();
    origin_ = origin;
    state_ = origin == Origin::File ? StateOf(mBIG::BigFileName) : FileState();
    mark_.reset();
    given_.reset();
    kept_.reset();
    contents_.Forget();
}

void ArchiveRescue::Opened(Origin origin) {
    copy_.LetGo();
    TakeBase(origin);
}

void ArchiveRescue::Saved() {
    copy_.Discard();
    TakeBase(Origin::File);
}

void ArchiveRescue::GivenUp() {
    if (!IsShown())
        return;
    given_ = Now();
    KeepRescue();
}

void ArchiveRescue::KeepWhole() {
    while (KeepRescue()) {
    }
}

bool ArchiveRescue::Adopt(const QString& folder) {
    contents_.Forget();
    kept_.reset();
    return copy_.Adopt(folder);
}

/// Another window may have another archive open by now.
bool ArchiveRescue::IsShown() const {
    return archive_ != nullptr && archive_ == mBIG::CurrentIdentity();
}

RescuedArchive ArchiveRescue::Now() const {
    RescuedArchive now;
    now.Version = mBIG::BigVersion;
    now.ExactOffsets = panes_.State.ExactOffsets;
    const std::vector<BigEntry>& entries = mBIG::BigEntries;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        if (index >= base_.size() || entries[index] != base_[index])
            now.Changes.push_back({.Index = static_cast<qint32>(index), .Entry = entries[index]});
    }
    return now;
}

/// How the offsets are to be saved is no difference, but what else is lets it be remembered.
bool ArchiveRescue::Differs(const RescuedArchive& now) const {
    if (now.Changes.empty() && now.Version == baseVersion_)
        return false;
    return !given_ || now.Changes != given_->Changes || now.Version != given_->Version;
}

const ArchiveMark& ArchiveRescue::Mark() {
    if (!mark_) {
        mark_ = ArchiveMark();
        // What was written since is another archive.
        if (origin_ == Origin::File && OpenArchive::IsAsRead() && StateOf(mBIG::BigFileName) == state_)
            mark_ = ArchiveMark::Of(mBIG::BigFileName);
    }
    return *mark_;
}

void ArchiveRescue::Number(RescuedArchive& now) {
    const QString folder = copy_.Folder();
    for (ArchiveChange& change : now.Changes) {
        if (change.Entry.IsNew && !change.Entry.Deleted)
            change.Content = contents_.NumberOf(change.Entry.SourcePath, folder);
    }
}

bool ArchiveRescue::KeepSome() {
    if (!IsShown())
        return false;
    RescuedArchive now = Now();
    if (!Differs(now)) {
        copy_.Withdraw();
        kept_.reset();
        return false;
    }
    const bool more = contents_.CopySome(Sources(now), copy_.Folder());
    // What can be told without waiting for long files is told at once.
    if (!more || !copy_.IsKept())
        Store(std::move(now));
    if (const QString failure = contents_.TakeFailure(); !failure.isEmpty())
        throw RuntimeError(ErrorNumber::DeviceError, failure);
    return more;
}

void ArchiveRescue::Store(RescuedArchive now) {
    now.Mark = Mark();
    Number(now);
    if (kept_ == now && copy_.IsKept())
        return;
    std::set<int> named;
    for (const ArchiveChange& change : now.Changes)
        named.insert(change.Content);
    contents_.Flush(copy_.Folder());
    copy_.Keep(mBIG::BigFileName, origin_ == Origin::Fresh, now.Encoded());
    contents_.RemoveOthers(named, copy_.Folder());
    kept_ = std::move(now);
}

void ArchiveRescue::TellFailed(const QString& reason) {
    panes_.View.ShowNotice({.Text = mTraduction::GetText(u"RescueFailed"_s).replace("%1"_L1, reason)});
}
