// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ScratchFolders.h"

#include "core/ProgramFolders.h"
#include "platform/Files.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// More programs than anybody starts at once.
constexpr int mostPrograms = 100;

const QString& DragName() {
    static const QString name = u"Drag"_s;
    return name;
}

const QString& DropName() {
    static const QString name = u"Dropped"_s;
    return name;
}

QString OwnFolder(const QString& name) {
    return ProgramFolders::ScratchFolder() + u'\\' + name + QString::number(QCoreApplication::applicationPid()) + u'\\';
}

/// The number that a name consists of behind a beginning; 0 for any other name.
qint64 NumberBehind(const QString& beginning, const QString& name) {
    bool isNumber = false;
    const qint64 number = name.mid(beginning.size()).toLongLong(&isNumber);
    return isNumber && number > 0 && name == beginning + QString::number(number) ? number : 0;
}

/// The process that a folder of that name belongs to; 0 for any other name.
qint64 OwnerOf(const QString& folder) {
    const qint64 owner = NumberBehind(DragName(), folder);
    return owner > 0 ? owner : NumberBehind(DropName(), folder);
}

/// Whether the folder is a further program's, which runs no more. What is locked meanwhile is nobody else's.
void RemoveScratch(const QString& folder) {
    {
        const FolderLock lock(folder);
        if (!lock.Held())
            return;
        Files::DeleteFolder(folder);
        if (!Files::FolderExists(folder))
            return;
    }
    // Where the lock is a file in the folder, that file was the last one. Whoever took the folder since has one there.
    Ignoring([&] { Files::RemoveFolder(folder); });
}

} // namespace

namespace ScratchFolders {

Claim::Claim() {
    const QString shared = ProgramFolders::SharedScratchFolder();
    for (int number = 1; number <= mostPrograms; ++number) {
        const QString name = number == 1 ? QString() : QString::number(number);
        const QString folder = number == 1 ? shared : shared + u'\\' + name;
        Ignoring([&] { Files::MakeFolders(folder); });
        auto lock = std::make_unique<FolderLock>(folder);
        if (lock->State() == FolderLock::Result::Taken)
            continue;
        lock_ = std::move(lock);
        if (lock_->Held())
            ProgramFolders::UseScratchBelow(name);
        return;
    }
}

Claim::~Claim() {
    ProgramFolders::UseScratchBelow({});
}

QString Dragged() {
    return OwnFolder(DragName());
}

QString Dropped() {
    return OwnFolder(DropName());
}

bool IsDragged(const QString& path) {
    const QString shared = ProgramFolders::SharedScratchFolder() + u'\\';
    if (!path.startsWith(shared, Qt::CaseInsensitive))
        return false;
    QStringList parts = path.sliced(shared.size()).split(u'\\');
    if (parts.size() > 1 && NumberBehind({}, parts.front()) > 0)
        parts.removeFirst();
    return parts.front().startsWith(DragName(), Qt::CaseInsensitive);
}

void RemoveAbandoned() {
    // What a link leads to is somebody else's.
    if (Files::IsLink(ProgramFolders::SharedScratchFolder()))
        return;
    const QString scratch = ProgramFolders::SharedScratchFolder() + u'\\';
    for (const QString& name : Files::ListFolder(scratch + u"*.*"_s, true)) {
        const QString folder = scratch + name;
        const qint64 owner = OwnerOf(name);
        const qint64 program = NumberBehind({}, name);
        if (!Files::FolderExists(folder) || Files::IsLink(folder))
            continue;
        if (owner > 0 && !Processes::IsRunning(owner))
            Files::DeleteFolder(folder);
        else if (program > 1 && program <= mostPrograms)
            RemoveScratch(folder);
    }
}

} // namespace ScratchFolders
