// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/ProgramFolders.h"

using namespace Qt::StringLiterals;

QString ProgramFolders::ProgramFolder;

QString ProgramFolders::ScratchFolder() {
    return ProgramFolder + u"\\Temp"_s;
}
