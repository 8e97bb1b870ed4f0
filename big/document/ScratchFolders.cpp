// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ScratchFolders.h"

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Processes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString& DragName() {
    static const QString name = u"Drag"_s;
    return name;
}

const QString& DropName() {
    static const QString name = u"Dropped"_s;
    return name;
}

QString OwnFolder(const QString& name) {
    return mMain::ScratchFolder() + u'\\' + name + QString::number(QCoreApplication::applicationPid()) + u'\\';
}

/// The process that a folder of that name belongs to; 0 for any other name.
qint64 OwnerOf(const QString& folder) {
    for (const QString& name : {DragName(), DropName()}) {
        bool isNumber = false;
        const qint64 process = folder.mid(name.size()).toLongLong(&isNumber);
        if (isNumber && process > 0 && folder == name + QString::number(process))
            return process;
    }
    return 0;
}

} // namespace

namespace ScratchFolders {

QString Dragged() {
    return OwnFolder(DragName());
}

QString Dropped() {
    return OwnFolder(DropName());
}

bool IsDragged(const QString& path) {
    return path.startsWith(mMain::ScratchFolder() + u'\\' + DragName(), Qt::CaseInsensitive);
}

void RemoveAbandoned() {
    const QString scratch = mMain::ScratchFolder() + u'\\';
    for (const QString& name : Files::ListFolder(scratch + u"*.*"_s, true)) {
        const qint64 owner = OwnerOf(name);
        const QString folder = scratch + name;
        if (owner > 0 && !Processes::IsRunning(owner) && Files::FolderExists(folder) && !Files::IsLink(folder))
            Files::DeleteFolder(folder);
    }
}

} // namespace ScratchFolders
