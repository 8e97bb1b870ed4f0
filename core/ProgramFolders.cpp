// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/ProgramFolders.h"

#include "platform/Files.h"
#include "platform/OwnFolder.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

QString ProgramFolders::ProgramFolder;

namespace {

QString ownScratch;
bool isReadOnly = false;

} // namespace

void ProgramFolders::Use(const QString& programFolder) {
    ProgramFolder = programFolder;
    isReadOnly = !Files::TakesFiles(programFolder);
    for (const QString& own : {WorkFolder(), LogFolder()})
        if (isReadOnly)
            Ignoring([&] { Files::MakeFolders(own); });
}

QString ProgramFolders::WorkFolder() {
    return isReadOnly ? OwnCacheFolder() : ProgramFolder;
}

QString ProgramFolders::LogFolder() {
    return isReadOnly ? OwnStateFolder() : ProgramFolder;
}

QString ProgramFolders::ScratchFolder() {
    return ownScratch.isEmpty() ? SharedScratchFolder() : SharedScratchFolder() + u'\\' + ownScratch;
}

QString ProgramFolders::SharedScratchFolder() {
    return WorkFolder() + u"\\Temp"_s;
}

void ProgramFolders::UseScratchBelow(const QString& name) {
    ownScratch = name;
}
