// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/WinePrefixes.h"

#include "platform/posix/Launchers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Collects the folders that are prefixes, each once however it is reached.
class Prefixes {
public:
    void Add(const QString& folder) {
        const QString real = QFileInfo(folder).canonicalFilePath();
        if (real.isEmpty() || seen_.contains(real) || !QFileInfo(folder + u"/system.reg"_s).isFile())
            return;
        seen_ << real;
        found_ << QDir::cleanPath(folder);
    }

    /// The folders in a folder, or in each of them the subfolder named.
    void AddEach(const QString& folder, const QString& subfolder = {}) {
        const QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString& name : names)
            Add(folder + u'/' + name + subfolder);
    }

    [[nodiscard]] const QStringList& Found() const { return found_; }

private:
    QStringList seen_;
    QStringList found_;
};

/// What the pattern's first group catches in the file, line by line.
QStringList Caught(const QString& fileName, const QString& pattern) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    const QString text = QString::fromUtf8(file.readAll());
    QStringList caught;
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        caught << matches.next().captured(1);
    return caught;
}

void AddSteam(Prefixes& prefixes, const QString& steam) {
    // Newer lists name their libraries by "path", older ones by a number.
    const QString libraryLine = u"^\\s*\"(?:path|\\d+)\"\\s+\"(/[^\"]*)\""_s;
    QStringList libraries{steam};
    for (const QString& list : {u"/steamapps/libraryfolders.vdf"_s, u"/config/libraryfolders.vdf"_s})
        libraries << Caught(steam + list, libraryLine);
    for (const QString& library : std::as_const(libraries))
        prefixes.AddEach(library + u"/steamapps/compatdata"_s, u"/pfx"_s);
}

QStringList FindOnMachine() {
    const QString home = qEnvironmentVariable("HOME");
    Prefixes prefixes;
    if (const QString named = qEnvironmentVariable("WINEPREFIX"); !named.isEmpty())
        prefixes.Add(named);
    prefixes.Add(home + u"/.wine"_s);
    for (const QString& steam : Launchers::SteamFolders(home))
        AddSteam(prefixes, steam);
    for (const Launchers::Prefix& named : Launchers::NamedPrefixes(home))
        prefixes.Add(named.Folder);
    prefixes.AddEach(home + u"/Games"_s);
    prefixes.AddEach(home + u"/Games/Heroic/Prefixes"_s);
    prefixes.AddEach(home + u"/Games/Heroic/Prefixes/default"_s);
    prefixes.AddEach(home + u"/.local/share/bottles/bottles"_s);
    prefixes.AddEach(home + u"/.var/app/com.usebottles.bottles/data/bottles/bottles"_s);
    return prefixes.Found();
}

} // namespace

QString WinePrefixes::Default() {
    QStringList named{qEnvironmentVariable("WINEPREFIX"), qEnvironmentVariable("HOME") + u"/.wine"_s};
    if (qEnvironmentVariableIsSet("BRINDOCK_WINE_PREFIXES"))
        named = qEnvironmentVariable("BRINDOCK_WINE_PREFIXES").split(u':', Qt::SkipEmptyParts);
    for (const QString& folder : std::as_const(named)) {
        if (!folder.isEmpty() && QFileInfo(folder + u"/drive_c"_s).isDir())
            return QDir::cleanPath(folder);
    }
    return {};
}

QStringList WinePrefixes::Find() {
    if (!qEnvironmentVariableIsSet("BRINDOCK_WINE_PREFIXES"))
        return FindOnMachine();
    Prefixes prefixes;
    const QStringList named = qEnvironmentVariable("BRINDOCK_WINE_PREFIXES").split(u':', Qt::SkipEmptyParts);
    for (const QString& folder : named)
        prefixes.Add(folder);
    return prefixes.Found();
}
