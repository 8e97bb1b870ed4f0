// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/OpenCopies.h"

#include "big/format/ArchiveEdits.h"
#include "big/format/OpenArchive.h"
#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/mMain.h"
#include "core/mShellExecuteWait.h"
#include "core/mTraduction.h"
#include "platform/ChangeMark.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr std::chrono::milliseconds watchInterval{500};

/// A file name with a number before its extension.
QString Numbered(const QString& name, int number) {
    const qsizetype stop = name.lastIndexOf(u'.');
    const qsizetype at = stop < 0 ? name.size() : stop;
    return name.first(at) + u" (%1)"_s.arg(number) + name.sliced(at);
}

bool IsSamePath(const QString& first, const QString& second) {
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

bool IsSource(const QString& path) {
    return std::ranges::any_of(
        mBIG::BigEntries, [&](const BigEntry& entry) { return entry.IsNew && IsSamePath(entry.SourcePath, path); });
}

BigEntry* EntryAt(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= mBIG::BigEntries.size())
        return nullptr;
    return &mBIG::BigEntries[static_cast<std::size_t>(index)];
}

/// The CSF Editor is this program: it has the file's strings when it has opened it, and writes the file anew.
bool IsTable(const QString& path) {
    return path.endsWith("csf"_L1);
}

bool IsThere(const FileState& state) {
    return !state.Identity.isEmpty();
}

} // namespace

OpenCopies::OpenCopies(EditorPanes& panes) : panes_(panes) {
    watch_.setInterval(watchInterval);
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { Look(); });
}

OpenCopies::~OpenCopies() {
    *alive_ = false;
}

void OpenCopies::Modify(int place, Trigger trigger) {
    const FileList& list = panes_.List;
    if (place < 0 || place >= list.Count() || list.Row(place).IsFolder || EditorPanes::Locked())
        return;
    const int index = list.Row(place).Index;
    const BigEntry* entry = EntryAt(index);
    if (entry == nullptr)
        return;
    if (entry->IsNew) {
        // The menu does not look first, and what the program did to the file is not asked about. This is meant.
        if (trigger == Trigger::Row && IsSourceMissing(index))
            return;
        Open({.Number = ++lastNumber_, .Index = index, .Path = entry->SourcePath, .Began = trigger, .IsCopy = false});
        return;
    }
    const QString path = CopyForProgram(index, list.Text(place));
    if (path.isEmpty()) {
        Host::Current().Beep();
        return;
    }
    static_cast<void>(ChangeMark(path)); // the attributes are cleared, and a write in this very moment shows
    Open({.Number = ++lastNumber_, .Index = index, .Path = path, .Began = trigger, .IsCopy = true});
}

bool OpenCopies::IsSourceMissing(int index) {
    BigEntry& entry = *EntryAt(index);
    if (Files::FileExists(entry.SourcePath))
        return false;
    entry.Deleted = true;
    Host::Current().Message(GetText(u"FileNotFound"_s), Host::Icon::Critical);
    panes_.ShowSelected();
    return true;
}

/// The entry in a file of its own in the scratch folder; empty when it can't be written there whole.
QString OpenCopies::CopyForProgram(int index, const QString& text) const {
    QString copy;
    Ignoring([&] {
        FolderGateway scratch(mMain::ScratchFolder());
        QString path = scratch.TargetFor(text);
        for (int number = 2; IsInUse(path); ++number)
            path = scratch.TargetFor(Numbered(text, number));
        // What an earlier day left would show behind a shorter entry.
        Ignoring([&] { Files::DeleteForced(path); });
        // An entry of no bytes is an error too, and its copy is whole all the same. What it left open would keep every
        // later entry from being extracted, and the program from writing its file.
        mBIG::CloseExtraction();
        Ignoring([&] { mBIG::ExtractEntryAsGiven(index, mBIG::BigFileName, path); });
        mBIG::CloseExtraction();
        if (OpenArchive::IsAsRead() && Files::FileLength(path) == EntryAt(index)->Size)
            copy = path;
    });
    return copy;
}

/// Whether an unsaved entry or another program depends on the file.
bool OpenCopies::IsInUse(const QString& path) const {
    return IsSource(path) ||
           std::ranges::any_of(copies_, [&](const Copy& copy) { return IsSamePath(copy.Path, path); });
}

void OpenCopies::Open(Copy copy) {
    const int number = copy.Number;
    const QString path = copy.Path;
    copy.Known = StateOf(path);
    copy.Since.start();
    std::erase_if(copies_, [&](const Copy& earlier) {
        return earlier.At == Stage::Watched && earlier.Index == copy.Index && IsSamePath(earlier.Path, path);
    });
    copies_.push_back(std::move(copy));
    const auto alive = alive_;
    const Processes::Opened opened = mShellExecuteWait::Open(path, panes_.View.Handle());
    if (*alive)
        Follow(number, opened.Process, mShellExecuteWait::IsOpened(opened));
    else
        Processes::Close(opened.Process);
}

void OpenCopies::Follow(int number, Processes::Handle process, bool opened) {
    Copy* copy = Find(number);
    if (copy == nullptr)
        return Processes::Close(process);
    if (process == 0) {
        copy->MayBeOpen = opened;
        copy->At = Stage::Ended;
        return OfferAll();
    }
    copy->At = Stage::Waiting;
    copy->Process = std::make_unique<ProcessEnd>(process);
    QObject::connect(copy->Process.get(), &ProcessEnd::Ended, &watch_, [this, number] { ProgramEnded(number); });
}

void OpenCopies::ProgramEnded(int number) {
    Copy* copy = Find(number);
    if (copy == nullptr)
        return;
    copy->Process.reset();
    copy->MayBeOpen = std::chrono::milliseconds(copy->Since.elapsed()) < handoverTime_;
    copy->At = Stage::Ended;
    OfferAll();
}

bool OpenCopies::IsWaiting() const {
    return std::ranges::any_of(copies_, [](const Copy& copy) { return copy.At != Stage::Watched; });
}

OpenCopies::Copy* OpenCopies::Find(int number) {
    const auto found = std::ranges::find(copies_, number, &Copy::Number);
    return found == copies_.end() ? nullptr : &*found;
}

/// The entry after a time in which the user could do anything; null when it has gone.
const BigEntry* OpenCopies::EntryOf(const Copy& copy) {
    const BigEntry* entry = EntryAt(copy.Index);
    return entry == nullptr || entry->Deleted ? nullptr : entry;
}

/// Whether the entry has its bytes from this file already.
bool OpenCopies::IsIn(const Copy& copy) {
    const BigEntry* entry = EntryOf(copy);
    return entry != nullptr && entry->IsNew && IsSamePath(entry->SourcePath, copy.Path);
}

QStringList OpenCopies::Kept() const {
    QStringList kept;
    for (const Copy& copy : copies_)
        if (copy.At != Stage::Watched || !IsTable(copy.Path) || StateOf(copy.Path) != copy.Known)
            kept += copy.Path;
    return kept;
}

void OpenCopies::BeforeSave() {
    for (Copy& copy : copies_)
        copy.Saved = IsIn(copy) ? StateOf(copy.Path) : FileState();
}

void OpenCopies::EntriesMoved(const std::vector<int>& newIndices) {
    for (Copy& copy : copies_) {
        const auto old = static_cast<std::size_t>(copy.Index);
        copy.Index = copy.Index >= 0 && old < newIndices.size() ? newIndices[old] : -1;
        if (!IsThere(copy.Saved))
            continue;
        copy.Known = copy.Saved;
        copy.Answered = true;
    }
}

void OpenCopies::EntriesGone(int firstIndex) {
    for (Copy& copy : copies_)
        if (copy.Index >= firstIndex)
            copy.Index = -1;
    std::erase_if(copies_, [](const Copy& copy) { return copy.Index < 0 && copy.At == Stage::Watched; });
}

void OpenCopies::Forget() {
    copies_.clear();
    watch_.stop();
}

/// Asks about the programs that have ended, one after the other. While the user is busy with another question, or the
/// table must not change, the copies wait.
void OpenCopies::OfferAll() {
    const auto alive = alive_;
    const auto ended = [this] { return std::ranges::find(copies_, Stage::Ended, &Copy::At); };
    while (*alive && ended() != copies_.end()) {
        if (!MayAsk())
            return StartWatch();
        OfferEnded(ended()->Number);
    }
}

bool OpenCopies::MayAsk() const {
    return !asking_ && !panes_.IsInCommand() && !mBIG::ArchiveLock::IsHeld();
}

void OpenCopies::OfferEnded(int number) {
    Copy& copy = *Find(number);
    const FileState now = StateOf(copy.Path);
    const bool changed = now != copy.Known;
    if (!IsThere(now) || EntryOf(copy) == nullptr)
        return End(number);
    if (IsIn(copy)) {
        copy.Known = now;
        return End(number);
    }
    const bool always = copy.Began == Trigger::Menu && copy.IsCopy && !copy.Answered;
    if (!changed && !always) {
        Discard(copy);
        return End(number);
    }
    copy.Known = now;
    copy.Answered = true;
    // The menu's command is no unsaved change. This is meant.
    const bool marksChange = copy.Began == Trigger::Row || !copy.IsCopy;
    const auto alive = alive_;
    const bool taken = Ask(GetText(u"InsertModifiedFile"_s));
    if (!*alive)
        return;
    if (taken)
        PutInto(number, marksChange);
    else if (Copy* refused = Find(number))
        Discard(*refused);
    End(number);
}

void OpenCopies::Look() {
    const auto alive = alive_;
    OfferAll();
    if (!*alive)
        return;
    std::vector<int> changed;
    for (Copy& copy : copies_) {
        if (copy.At != Stage::Watched)
            continue;
        const FileState now = StateOf(copy.Path);
        // What is still being written is left to the next look.
        if (IsThere(now) && now != copy.Known && now == std::exchange(copy.Seen, now))
            changed.push_back(copy.Number);
    }
    for (const int number : changed)
        if (*alive && MayAsk())
            OfferWatched(number);
    if (*alive && copies_.empty())
        watch_.stop();
}

void OpenCopies::OfferWatched(int number) {
    Copy* copy = Find(number);
    if (copy == nullptr)
        return;
    copy->Known = copy->Seen;
    const BigEntry* entry = EntryOf(*copy);
    if (entry == nullptr || IsIn(*copy))
        return;
    const auto alive = alive_;
    const bool taken = Ask(entry->Name + "\r\n\r\n"_L1 + GetText(u"InsertModifiedFile"_s));
    if (*alive && taken)
        PutInto(number, true);
}

bool OpenCopies::Ask(const QString& question) {
    const auto alive = alive_;
    asking_ = true;
    const auto answer = Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo);
    if (*alive)
        asking_ = false;
    return answer == Host::Answer::Yes;
}

/// The program has ended: what may have been handed over is watched from now on, the others are done with.
void OpenCopies::End(int number) {
    Copy* copy = Find(number);
    if (copy == nullptr)
        return;
    if (!copy->MayBeOpen) {
        std::erase_if(copies_, [number](const Copy& each) { return each.Number == number; });
        return;
    }
    copy->At = Stage::Watched;
    copy->Seen = copy->Known;
    StartWatch();
}

/// Deletes a copy that nobody has any more.
void OpenCopies::Discard(Copy& copy) {
    const bool isOurs = copy.Path.startsWith(mMain::ScratchFolder() + u'\\', Qt::CaseInsensitive);
    const bool isOthers = std::ranges::any_of(
        copies_, [&](const Copy& other) { return other.Number != copy.Number && IsSamePath(other.Path, copy.Path); });
    if (!isOurs || isOthers || IsSource(copy.Path) || (copy.MayBeOpen && !IsTable(copy.Path)))
        return;
    Ignoring([&] { Files::DeleteForced(copy.Path); });
    copy.Known = StateOf(copy.Path);
}

/// The entry's bytes are those of the file from now on; nothing when it has gone. The size stays that of the archive
/// until the save. This is meant.
void OpenCopies::PutInto(int number, bool marksChange) {
    const Copy* copy = Find(number);
    if (copy == nullptr || EntryOf(*copy) == nullptr)
        return;
    ArchiveEdits::Replace(mBIG::Open(), copy->Index, copy->Path);
    if (marksChange)
        panes_.State.Modified = true;
    else
        panes_.TellUnmarked();
    panes_.ShowSelected();
}

bool OpenCopies::TakeInChanged() {
    std::vector<int> numbers;
    for (const Copy& copy : copies_)
        numbers.push_back(copy.Number);
    return std::ranges::all_of(numbers, [this](int number) { return AskBeforeClosing(number); });
}

bool OpenCopies::AskBeforeClosing(int number) {
    Copy* copy = Find(number);
    if (copy == nullptr)
        return true;
    const BigEntry* entry = EntryOf(*copy);
    const FileState now = StateOf(copy->Path);
    if (entry == nullptr || IsIn(*copy) || !IsThere(now) || now == copy->Known)
        return true;
    const QString question = entry->Name + "\r\n\r\n"_L1 + GetText(u"InsertModifiedFile"_s);
    const Host::Answer answer = Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNoCancel);
    if (answer == Host::Answer::Cancel)
        return false;
    copy = Find(number);
    if (copy == nullptr)
        return true;
    copy->Known = now;
    copy->Answered = true;
    // An unsaved change, whatever began the Modify: the question about those comes next.
    if (answer == Host::Answer::Yes)
        PutInto(number, true);
    return true;
}

void OpenCopies::StartWatch() {
    if (!watch_.isActive())
        watch_.start();
}
