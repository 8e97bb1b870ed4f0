// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/RescueContents.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 pieceLength = qint64{4} << 20;
constexpr qint64 patience = 40; // milliseconds
constexpr qint64 mostAtOnce = qint64{64} << 20;

/// The number that a file in the folder has for its name; -1 for any other file.
int NumberIn(const QString& path, const QString& folder) {
    if (!path.startsWith(folder))
        return -1;
    bool isNumber = false;
    const int number = path.sliced(folder.size()).toInt(&isNumber);
    return isNumber && number > 0 && path == folder + QString::number(number) ? number : -1;
}

} // namespace

struct RescueContents::Copying {
    QString Source;
    FileState State;
    int Number;
    File From;
    WriteAside To;
    qint64 Done = 0;
};

RescueContents::RescueContents() = default;
RescueContents::~RescueContents() = default;

int RescueContents::NumberOf(const QString& source, const QString& folder) const {
    if (const int own = NumberIn(source, folder); own > 0)
        return own;
    const auto found = contents_.find(source);
    return found == contents_.end() ? -1 : found->second.Number;
}

bool RescueContents::CopySome(const std::vector<QString>& sources, const QString& folder) {
    QElapsedTimer spent;
    spent.start();
    copied_ = 0;
    for (const QString& source : sources) {
        if (NumberIn(source, folder) > 0)
            continue;
        const FileState state = StateOf(source);
        const auto found = contents_.find(source);
        // What has gone is as it was copied.
        if (state.Identity.isEmpty() || (found != contents_.end() && found->second.State == state))
            continue;
        if (copying_ == nullptr || copying_->Source != source || copying_->State != state)
            Begin(source, state, folder);
        while (copying_ != nullptr) {
            if (spent.hasExpired(patience) || copied_ >= mostAtOnce)
                return true;
            GoOn();
        }
    }
    copying_.reset();
    return false;
}

int RescueContents::FreeNumber(const QString& folder, int from) {
    while (Files::FileExists(folder + QString::number(from)))
        ++from;
    return from;
}

void RescueContents::Begin(const QString& source, const FileState& state, const QString& folder) {
    copying_.reset();
    lastNumber_ = FreeNumber(folder, lastNumber_ + 1);
    try {
        copying_ = std::unique_ptr<Copying>(new Copying{.Source = source,
                                                        .State = state,
                                                        .Number = lastNumber_,
                                                        .From = File::Open(source, File::Access::Read),
                                                        .To = WriteAside(folder + QString::number(lastNumber_))});
    } catch (const RuntimeError& error) {
        contents_[source] = {.State = state, .Number = -1};
        failure_ = error.Description();
    }
}

void RescueContents::GoOn() {
    Copying& copy = *copying_;
    try {
        const qint64 wanted = std::min(pieceLength, copy.State.Length - copy.Done);
        const qint64 had = wanted > 0 ? copy.To.Out().CopyFrom(copy.Done, copy.From, copy.Done, wanted) : 0;
        copy.Done += had;
        copied_ += had;
        if (had > 0 && copy.Done < copy.State.Length)
            return;
        // One that was written meanwhile is copied again the next time.
        if (copy.From.State() == copy.State) {
            copy.To.Commit(false);
            contents_[copy.Source] = {.State = copy.State, .Number = copy.Number};
            flushed_ = false;
        }
        copying_.reset();
    } catch (const RuntimeError& error) {
        Fail(error.Description());
    }
}

void RescueContents::Fail(const QString& reason) {
    failure_ = reason;
    contents_[copying_->Source] = {.State = copying_->State, .Number = -1};
    copying_.reset();
}

QString RescueContents::TakeFailure() {
    return std::exchange(failure_, {});
}

void RescueContents::Flush(const QString& folder) {
    if (!std::exchange(flushed_, true))
        Files::FlushSystem(folder);
}

void RescueContents::RemoveOthers(const std::set<int>& named, const QString& folder) {
    for (const QString& name : Files::ListFolder(folder + u"*"_s)) {
        const int number = NumberIn(folder + name, folder);
        if (number > 0 && !named.contains(number))
            Ignoring([&] { Files::DeleteForced(folder + name); });
    }
    std::erase_if(contents_, [&](const auto& content) {
        return content.second.Number > 0 && !named.contains(content.second.Number);
    });
}

void RescueContents::Forget() {
    contents_.clear();
    copying_.reset();
    failure_.clear();
    lastNumber_ = 0;
    flushed_ = true;
}
