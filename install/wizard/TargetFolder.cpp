// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/TargetFolder.h"

#include "core/Host.h"
#include "core/mMain.h"
#include "install/WatchedCopy.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The folder, for whoever can't go on without it.
const QString& Made(const QString& folder) {
    // Only the last folder of the path is made. This is meant.
    if (!folder.isEmpty() && !Files::FolderExists(folder))
        Ignoring([&] { Files::MakeFolder(folder); });
    if (folder.isEmpty() || !Files::FolderExists(folder))
        throw RuntimeError(ErrorNumber::PathNotFound, u"%1: no such folder"_s.arg(Paths::ToNative(
                                                          folder.chopped(folder.endsWith(u'\\') ? 1 : 0))));
    return folder;
}

QString WithBackslash(const QString& path) {
    return path.endsWith(u'\\') ? path : path + u'\\';
}

} // namespace

TargetFolder::TargetFolder(const QString& folder, FileWatch* watch)
    : folder_(folder),
      gateway_(Made(folder)),
      real_(WithBackslash(Paths::Real(folder))),
      isSpeltSo_(real_ == folder_),
      watch_(watch) {
    if (watch_ != nullptr)
        gateway_.Made = [this](const QString& made) { watch_->MadeFolder(Spelt(made).chopped(1)); };
}

QString TargetFolder::Spelt(const QString& path) const {
    return isSpeltSo_ || !path.startsWith(real_) ? path : folder_ + path.sliced(real_.size());
}

void TargetFolder::WillWrite(const QString& path) {
    if (watch_ != nullptr)
        watch_->WillWrite(Spelt(path));
}

bool TargetFolder::WillPut(const QString& path, const HashedFile& hashed) {
    return watch_ == nullptr || watch_->WillPut(Spelt(path), hashed);
}

void TargetFolder::Written(const QString& path) {
    if (watch_ != nullptr)
        watch_->Written(Spelt(path));
}

void TargetFolder::WrittenAs(const QString& path, const HashedFile& hashed) {
    if (watch_ != nullptr)
        watch_->WrittenAs(Spelt(path), hashed);
}

bool TargetFolder::Copy(const QString& from, const FilePlace& place, const std::function<void(qint64)>& bytes) {
    const QString path = place.Path();
    if (place.Folder->StandingOf(place.Name) != HeldFolder::Standing::Nothing && Files::SameFile(from, path))
        return false;
    const File source = File::Open(from, File::Access::Read);
    WillWrite(path);
    const qint64 length = source.Length();
    qint64 done = 0;
    WatchedCopy(source, place, [&](qint64 piece) {
        done += piece;
        if (bytes)
            bytes(done);
        if (done < length && Host::IsThere())
            Host::Current().Yield();
    });
    Written(path);
    return true;
}

/// The system writes such files by their paths, so it writes one in a folder of ours, and that goes to the place.
bool TargetFolder::WriteIni(const FilePlace& place, const QString& section,
                            const std::initializer_list<Value>& values) {
    const QString path = place.Path();
    WillWrite(path);
    const QTemporaryDir scratch;
    const QString copy = Paths::FromNative(scratch.filePath(u"values.ini"_s));
    if (place.Folder->StandingOf(place.Name) == HeldFolder::Standing::File) {
        const File old = place.Folder->OpenToRead(place.Name);
        WriteWhole(copy, old.Read(0, old.Length()));
    }
    bool done = true;
    for (const Value& value : values)
        done = mMain::INI().WriteINI(section, value.Key, value.Text, copy) != u"0" && done;
    if (!done)
        return false;
    WriteAside target(place);
    target.Out().Write(0, ReadWhole(copy));
    target.Commit(false);
    Written(path);
    return true;
}
