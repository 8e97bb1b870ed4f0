// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FirstLanguage.h"

#include "core/ProgramFolders.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "platform/Files.h"

using namespace Qt::StringLiterals;

namespace {

/// The file that the package has for a language; empty where it has none.
QString FileFor(const QString& language) {
    return mMain::INI().ReadINI(u"Languages"_s, language, ProgramFolders::ProgramFolder + u"\\setup.cfg"_s);
}

/// "fr" of "fr-CA" and "fr_CA.UTF-8".
QString Plain(const QString& language) {
    qsizetype length = 0;
    while (length < language.size() && language[length].isLetter())
        ++length;
    return language.first(length).toLower();
}

} // namespace

void FirstLanguage::Choose(const QStringList& languages) {
    if (!ReadSetting(SettingKeys::TradFileName).isEmpty())
        return;
    QString file;
    for (const QString& language : languages + QStringList{u"default"_s}) {
        if (file.isEmpty())
            file = FileFor(Plain(language));
    }
    if (!file.isEmpty() && Files::FileExists(ProgramFolders::ProgramFolder + u'\\' + file))
        WriteSetting(SettingKeys::TradFileName, file);
}
