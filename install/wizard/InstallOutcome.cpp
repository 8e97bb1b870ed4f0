// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/InstallOutcome.h"

#include "core/CaseFolding.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

void InstallOutcome::Done(const QString& source, const QString& path) {
    FolderFiles& written = WrittenIn(path);
    const QString key = CaseFolded(Paths::LastPart(path));
    if (const auto found = written.find(key); found != written.end() && found->second.Name != source) {
        const Source* const earlier = &found->second;
        InstalledFile& lost = files_[earlier->Place];
        failures_ += lost.How == InstalledFile::State::Failed ? 0 : 1;
        lost = {.How = InstalledFile::State::Failed,
                .Name = earlier->Name,
                .Reason = u"another file of that name took its place: %1"_s.arg(source)};
    }
    written.insert_or_assign(key, Source{.Place = files_.size(), .Name = source});
    files_.push_back({.How = InstalledFile::State::Done, .Name = Paths::ToNativeAsGiven(path)});
}

void InstallOutcome::Changed(const QString& path) {
    if (!WrittenIn(path).contains(CaseFolded(Paths::LastPart(path))))
        Done({}, path);
}

/// Of the folder that a file lies in.
InstallOutcome::FolderFiles& InstallOutcome::WrittenIn(const QString& path) {
    const QStringView folder = QStringView(path).first(path.lastIndexOf(u'\\') + 1);
    if (written_.empty() || lastFolder_ != folder) {
        lastFolder_ = folder.toString();
        const QString key = CaseFolded(lastFolder_);
        last_ = folders_.value(key, written_.size());
        if (last_ == written_.size()) {
            folders_.insert(key, last_);
            written_.emplace_back();
        }
    }
    return written_[last_];
}

void InstallOutcome::Kept(const QString& path) {
    files_.push_back({.How = InstalledFile::State::Kept, .Name = Paths::ToNativeAsGiven(path)});
}

void InstallOutcome::Failed(const QString& name, const QString& reason) {
    ++failures_;
    files_.push_back({.How = InstalledFile::State::Failed, .Name = name, .Reason = reason});
}

void InstallOutcome::Noted(const QString& line) {
    ++failures_;
    files_.push_back({.How = InstalledFile::State::Noted, .Name = line});
}

QStringList InstallOutcome::Lines(bool onlyFailures) const {
    using State = InstalledFile::State;
    const std::array<std::pair<State, QString>, 4> heads{{{State::Failed, GetText(u"NotInstalled2"_s)},
                                                          {State::Noted, GetText(u"InstallJournal2"_s)},
                                                          {State::Kept, GetText(u"LeftAsItIs2"_s)},
                                                          {State::Done, GetText(u"Installed2"_s)}}};
    QStringList lines;
    for (const auto& [state, head] : heads) {
        if (onlyFailures && state != State::Failed && state != State::Noted)
            continue;
        for (const InstalledFile& file : files_) {
            if (file.How == state)
                lines.append(head + u' ' + file.Name + (file.Reason.isEmpty() ? QString() : u": "_s + file.Reason));
        }
    }
    return lines;
}
