// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/InstallOutcome.h"

#include "core/mTraduction.h"
#include "platform/Paths.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

void InstallOutcome::Done(const QString& source, const QString& path) {
    FolderFiles& written = WrittenIn(Paths::Folder(path));
    const QString key = Paths::LastPart(path).toCaseFolded();
    if (const auto earlier = written.constFind(key); earlier != written.constEnd() && earlier->Name != source) {
        InstalledFile& lost = files_[earlier->Place];
        failures_ += lost.How == InstalledFile::State::Failed ? 0 : 1;
        lost = {.How = InstalledFile::State::Failed,
                .Name = earlier->Name,
                .Reason = u"another file of that name took its place: %1"_s.arg(source)};
    }
    written.insert(key, {.Place = files_.size(), .Name = source});
    files_.push_back({.How = InstalledFile::State::Done, .Name = Paths::ToNativeAsGiven(path)});
}

void InstallOutcome::Changed(const QString& path) {
    if (!WrittenIn(Paths::Folder(path)).contains(Paths::LastPart(path).toCaseFolded()))
        Done({}, path);
}

InstallOutcome::FolderFiles& InstallOutcome::WrittenIn(const QString& folder) {
    if (lastFolder_ != folder) {
        lastKey_ = folder.toCaseFolded();
        lastFolder_ = folder;
    }
    return written_[lastKey_];
}

void InstallOutcome::Kept(const QString& path) {
    files_.push_back({.How = InstalledFile::State::Kept, .Name = Paths::ToNativeAsGiven(path)});
}

void InstallOutcome::Failed(const QString& name, const QString& reason) {
    ++failures_;
    files_.push_back({.How = InstalledFile::State::Failed, .Name = name, .Reason = reason});
}

QStringList InstallOutcome::Lines(bool onlyFailures) const {
    using State = InstalledFile::State;
    const std::array<std::pair<State, QString>, 3> heads{{{State::Failed, GetText(u"NotInstalled2"_s)},
                                                          {State::Kept, GetText(u"LeftAsItIs2"_s)},
                                                          {State::Done, GetText(u"Installed2"_s)}}};
    QStringList lines;
    for (const auto& [state, head] : heads) {
        if (onlyFailures && state != State::Failed)
            continue;
        for (const InstalledFile& file : files_) {
            if (file.How == state)
                lines.append(head + u' ' + file.Name + (file.Reason.isEmpty() ? QString() : u": "_s + file.Reason));
        }
    }
    return lines;
}
