// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The languages that the program can speak: the .lng files in its folder.
#pragma once

#include <QString>

#include <vector>

struct LanguageFile {
    QString FileName; ///< no folder
    QString Shown;    ///< the language and its translator
};

namespace LanguageFiles {

/// Those that name a language and are of this version, in the order of their names. Others are passed over.
std::vector<LanguageFile> InProgramFolder();

} // namespace LanguageFiles
