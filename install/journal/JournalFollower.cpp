// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/JournalFollower.h"

#include "core/Host.h"
#include "install/journal/InstallJournal.h"
#include "install/journal/JournalChanges.h"
#include "install/journal/Uninstall.h"
#include "install/journal/UninstallTexts.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The last install that brought a file, or a file in a folder; null when none has.
const JournalEntry* InstallOf(const Journal& journal, const QString& path) {
    const auto brought = [&](const JournalEntry& entry) {
        return std::ranges::any_of(entry.Files, [&](const JournalFile& file) { return IsAtOrBelow(file.Path, path); });
    };
    const auto found = std::ranges::find_if(journal.Entries.rbegin(), journal.Entries.rend(), brought);
    return found == journal.Entries.rend() ? nullptr : &*found;
}

} // namespace

JournalFollower::JournalFollower() {
    constexpr int rest = 1000; // milliseconds
    resting_.setSingleShot(true);
    resting_.setInterval(rest);
    resting_.callOnTimeout([this] { Flush(); });
    FileMoves::Use(this);
    Uninstaller::Use(this);
}

JournalFollower::~JournalFollower() {
    Flush();
    FileMoves::Use(nullptr);
    Uninstaller::Use(nullptr);
}

const Journal& JournalFollower::Known() {
    const FileState now = StateOf(InstallJournal::File());
    const bool mayEnd = std::ranges::any_of(
        known_.Entries, [](const JournalEntry& entry) { return entry.How == JournalEntry::State::Running; });
    if (isKnown_ && !mayEnd && now == state_)
        return known_;
    known_ = {};
    isKnown_ = Ignoring([this] { known_ = InstallJournal::Read(); });
    state_ = now;
    return known_;
}

/// Behind a change of the files; no journal is made for it, and none is touched that knows nothing of them.
template <typename Change>
void JournalFollower::Follow(Change&& change) noexcept {
    resting_.stop();
    if (!Files::FileExists(InstallJournal::File())) {
        rewrites_.clear();
        copies_.clear();
        return;
    }
    Ignoring([&] {
        InstallJournal::Change([&](Journal& journal) {
            JournalChanges changes(journal);
            Apply(changes);
            std::forward<Change>(change)(changes);
            return changes.Any();
        });
    });
    rewrites_.clear();
    copies_.clear();
}

void JournalFollower::Apply(JournalChanges& changes) {
    for (const Rewrite& rewrite : std::as_const(rewrites_)) {
        if (rewrite.IsOurs)
            changes.Rewritten(rewrite.Path, rewrite.Before, rewrite.Now);
    }
    for (const auto& [from, to] : copies_)
        changes.Copied(from, to);
}

void JournalFollower::Flush() noexcept {
    if (!rewrites_.isEmpty() || !copies_.empty())
        Follow([](JournalChanges&) {});
}

void JournalFollower::Moved(const QString& from, const QString& to) noexcept {
    Follow([&](JournalChanges& changes) { changes.Moved(from, to); });
}

void JournalFollower::Copied(const QString& from, const QString& to) noexcept {
    copies_.emplace_back(from, to);
}

void JournalFollower::Deleted(const QString& path) noexcept {
    Follow([&](JournalChanges& changes) { changes.Deleted(path); });
}

void JournalFollower::Rewriting(const QString& path) noexcept {
    Ignoring([&] {
        const QString key = JournalKey(path);
        if (!rewrites_.contains(key)) {
            const JournalEntry* const entry = InstallOf(Known(), path);
            if (entry == nullptr)
                return;
            const auto file =
                std::ranges::find(entry->Files, key, [](const JournalFile& each) { return JournalKey(each.Path); });
            if (file == entry->Files.end() || file->Hash.isEmpty())
                return;
            rewrites_.insert(key,
                             {.Path = path, .Before = file->Hash, .Now = {file->Hash, file->Length}, .IsOurs = true});
        }
        Rewrite& rewrite = rewrites_[key];
        HashedFile now;
        Ignoring([&] { now = HashOf(path); });
        rewrite.IsOurs = rewrite.IsOurs && now.Hash == rewrite.Now.Hash;
    });
}

void JournalFollower::Rewritten(const QString& path) noexcept {
    const auto found = rewrites_.find(JournalKey(path));
    if (found == rewrites_.end())
        return;
    found->IsOurs = found->IsOurs && Ignoring([&] { found->Now = HashOf(path); });
    if (QCoreApplication::instance() == nullptr)
        Flush();
    else
        resting_.start();
}

bool JournalFollower::Knows(const QString& path) {
    return InstallOf(Known(), path) != nullptr;
}

bool JournalFollower::Uninstall(const QString& path) {
    Flush();
    try {
        return AskAndUninstall(path);
    } catch (const RuntimeError& error) {
        Host::Current().Message(UninstallTexts::Failed({error.Description()}), Host::Icon::Critical);
        return true;
    }
}

bool JournalFollower::AskAndUninstall(const QString& path) {
    const Journal journal = InstallJournal::Read();
    const JournalEntry* const entry = InstallOf(journal, path);
    if (entry == nullptr)
        return false;
    const UninstallPlan plan = Uninstall::Plan(journal, entry->Id);
    const Host::Answer answer = Host::Current().Message(UninstallTexts::Question(plan), Host::Icon::Question,
                                                        Host::Buttons::YesNo, u"Brindock 2005"_s, Host::Answer::No);
    if (answer != Host::Answer::Yes)
        return false;
    const QStringList failures = Uninstall::Run(plan);
    if (!failures.isEmpty())
        Host::Current().Message(UninstallTexts::Failed(failures), Host::Icon::Critical);
    return true;
}
