// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/ProgramFolders.h"

using namespace Qt::StringLiterals;

QString ProgramFolders::ProgramFolder;

namespace {

QString ownScratch;

} // namespace

QString ProgramFolders::ScratchFolder() {
    return ownScratch.isEmpty() ? SharedScratchFolder() : SharedScratchFolder() + u'\\' + ownScratch;
}

QString ProgramFolders::SharedScratchFolder() {
    return ProgramFolder + u"\\Temp"_s;
}

void ProgramFolders::UseScratchBelow(const QString& name) {
    ownScratch = name;
}
