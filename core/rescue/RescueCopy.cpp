// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rescue/RescueCopy.h"

#include "platform/File.h"
#include "platform/Files.h"
#include "platform/OwnFolder.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView mark("Brindock rescue 1\n");
constexpr qsizetype hashLength = 32;
/// What is under a private name alone was not finished: a rescue is.
constexpr QLatin1StringView folderEnding(".rescue");
/// Who only looks whether somebody has a lock has it for a moment.
constexpr std::chrono::milliseconds patience{200};
constexpr auto streamVersion = QDataStream::Qt_6_4;

QString StateFile(const QString& folder) {
    return folder + u"rescue"_s;
}

QByteArray HashOf(QByteArrayView bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256);
}

QByteArray Encoded(const RescueFacts& facts, QByteArrayView content) {
    QByteArray told;
    QDataStream out(&told, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    out << facts.Kind << facts.Path << facts.NeverSaved << facts.Time.toMSecsSinceEpoch() << content.toByteArray();
    return mark.toByteArray() + HashOf(told) + told;
}

struct State {
    RescueFacts Facts;
    QByteArray Content;
};

/// Nothing for bytes that are not what was written.
std::optional<State> Decoded(const QByteArray& bytes) {
    const qsizetype head = mark.size() + hashLength;
    if (bytes.size() < head || !bytes.startsWith(mark))
        return {};
    const QByteArray told = bytes.sliced(head);
    if (HashOf(told) != bytes.sliced(mark.size(), hashLength))
        return {};
    QDataStream in(told);
    in.setVersion(streamVersion);
    State state;
    qint64 time = 0;
    in >> state.Facts.Kind >> state.Facts.Path >> state.Facts.NeverSaved >> time >> state.Content;
    if (in.status() != QDataStream::Ok)
        return {};
    state.Facts.Time = QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
    return state;
}

std::optional<State> StateIn(const QString& folder) {
    std::optional<State> state;
    Ignoring([&] { state = Decoded(ReadWhole(StateFile(folder))); });
    return state;
}

/// The folders that lie there; a link is none of ours.
QStringList AllFolders() {
    QStringList folders;
    for (const QString& name : Files::ListFolder(Rescues::Folder() + u"\\*"_s, true)) {
        const QString folder = Rescues::Folder() + u'\\' + name;
        const bool isOurs = name.endsWith(folderEnding) && IsPrivateName(name.chopped(folderEnding.size()));
        if (isOurs && Files::FolderExists(folder) && !Files::IsLink(folder))
            folders += folder + u'\\';
    }
    return folders;
}

bool IsSomebodys(const QString& folder) {
    return FolderLock(folder.chopped(1)).State() == FolderLock::Result::Taken;
}

/// The file that tells all goes first: what is left then was never finished.
void Empty(const QString& folder) {
    Ignoring([&] { Files::DeleteForced(StateFile(folder)); });
    Files::DeleteFolder(folder.chopped(1));
}

/// Where the lock is a file in the folder, that file was the last one.
void RemoveUnlocked(const QString& folder) {
    if (Files::FolderExists(folder))
        Ignoring([&] { Files::RemoveFolder(folder); });
}

} // namespace

RescueCopy::~RescueCopy() {
    if (kept_)
        LetGo();
    else
        Discard();
}

QString RescueCopy::Folder() {
    constexpr int tries = 10;
    for (int attempt = 0; folder_.isEmpty() && attempt < tries; ++attempt) {
        const QString folder = Rescues::Folder() + u'\\' + PrivateName() + folderEnding;
        Files::MakeFolders(folder);
        auto lock = std::make_unique<FolderLock>(folder);
        // Another process may have swept it before it was locked.
        if (lock->State() == FolderLock::Result::Taken || !Files::FolderExists(folder))
            continue;
        folder_ = folder + u'\\';
        lock_ = std::move(lock);
    }
    if (folder_.isEmpty())
        throw RuntimeError(ErrorNumber::PathFileAccess, Paths::ToNative(Rescues::Folder()) + u": can't be used"_s);
    return folder_;
}

void RescueCopy::Keep(const QString& path, bool neverSaved, QByteArrayView content) {
    const RescueFacts facts{
        .Kind = kind_, .Path = path, .NeverSaved = neverSaved, .Time = QDateTime::currentDateTimeUtc()};
    WriteWhole(StateFile(Folder()), Encoded(facts, content));
    kept_ = true;
}

void RescueCopy::Discard() {
    if (folder_.isEmpty())
        return;
    const QString folder = std::exchange(folder_, {});
    kept_ = false;
    Empty(folder);
    lock_.reset();
    RemoveUnlocked(folder);
}

void RescueCopy::Withdraw() {
    if (!std::exchange(kept_, false))
        return;
    Ignoring([&] { Files::DeleteForced(StateFile(folder_)); });
}

void RescueCopy::LetGo() {
    if (!kept_)
        return Discard();
    folder_.clear();
    kept_ = false;
    lock_.reset();
}

bool RescueCopy::Adopt(const QString& folder) {
    auto lock = std::make_unique<FolderLock>(FolderLock::WaitedFor(folder.chopped(1), patience));
    if (lock->State() == FolderLock::Result::Taken || !Files::FileExists(StateFile(folder)))
        return false;
    LetGo();
    folder_ = folder;
    lock_ = std::move(lock);
    kept_ = true;
    return true;
}

namespace Rescues {

QString Folder() {
    return OwnFolder() + u"\\rescue"_s;
}

std::vector<Left> LeftFor(const QString& kind) {
    std::vector<Left> found;
    for (const QString& folder : AllFolders()) {
        if (IsSomebodys(folder))
            continue;
        if (const auto state = StateIn(folder); state && state->Facts.Kind == kind)
            found.push_back({state->Facts, folder});
    }
    std::ranges::stable_sort(found, std::ranges::greater(), [](const Left& left) { return left.Facts.Time; });
    return found;
}

QByteArray ContentOf(const Left& left) {
    auto state = Decoded(ReadWhole(StateFile(left.Folder)));
    if (!state)
        throw RuntimeError(ErrorNumber::PathFileAccess, Paths::ToNative(StateFile(left.Folder)) + u": damaged"_s);
    return std::move(state->Content);
}

bool IsLeft(const QString& folder) {
    return Files::FileExists(StateFile(folder)) && !IsSomebodys(folder);
}

bool ThrowAway(const QString& folder) {
    {
        const FolderLock lock = FolderLock::WaitedFor(folder.chopped(1), patience);
        if (lock.State() == FolderLock::Result::Taken)
            return false;
        Empty(folder);
    }
    RemoveUnlocked(folder);
    return true;
}

void Sweep() {
    for (const QString& folder : AllFolders()) {
        {
            const FolderLock lock(folder.chopped(1));
            if (!lock.Held())
                continue;
            if (!Files::FileExists(StateFile(folder))) {
                Empty(folder);
            } else {
                for (const QString& name : Files::ListFolder(folder + u"*"_s)) {
                    if (IsPrivateName(name))
                        Ignoring([&] { Files::DeleteForced(folder + name); });
                }
            }
        }
        if (Files::ListFolder(folder + u"*"_s, true).isEmpty())
            RemoveUnlocked(folder);
    }
}

} // namespace Rescues
