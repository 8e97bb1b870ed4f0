// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/options/LanguageFiles.h"

#include "core/NameOrder.h"
#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A language names itself at the beginning of its file. A longer file that does not is not read to its end: five
/// hundred of ten megabytes would take seconds.
bool MayNameLanguage(const QString& path) {
    constexpr qint64 beginning = 65536;
    const QByteArray bytes = File::Open(path, File::Access::Read).Read(0, beginning);
    return bytes.size() < beginning || bytes.toLower().contains("[infos]");
}

void AddTo(std::vector<LanguageFile>& found, const QString& name) {
    const QString path = mMain::ProgramFolder + u'\\' + name;
    if (!MayNameLanguage(path))
        return;
    const QStringList infos = mMain::INI().ReadValues(u"Infos"_s, {u"Language"_s, u"Version"_s, u"Translator"_s}, path);
    if (!infos[0].isEmpty() && infos[1] == u"2005")
        found.push_back({.FileName = name, .Shown = infos[0] + u" \\ "_s + infos[2]});
}

} // namespace

std::vector<LanguageFile> LanguageFiles::InProgramFolder() {
    QStringList names = Files::ListFolder(mMain::ProgramFolder + u"\\*.lng"_s);
    NameOrder::Sort(names);
    std::vector<LanguageFile> found;
    for (const QString& name : std::as_const(names))
        Ignoring([&] { AddTo(found, name); });
    return found;
}
