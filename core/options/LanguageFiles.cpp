// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/options/LanguageFiles.h"

#include "core/NameOrder.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

std::vector<LanguageFile> LanguageFiles::InProgramFolder() {
    QStringList names = Files::ListFolder(mMain::ProgramFolder + u"\\*.lng"_s);
    NameOrder::Sort(names);
    std::vector<LanguageFile> found;
    for (const QString& name : names) {
        const QStringList infos = mMain::INI().ReadValues(u"Infos"_s, {u"Language"_s, u"Version"_s, u"Translator"_s},
                                                          mMain::ProgramFolder + u'\\' + name);
        if (!infos[0].isEmpty() && infos[1] == u"2005")
            found.push_back({.FileName = name, .Shown = infos[0] + u" \\ "_s + infos[2]});
    }
    return found;
}
