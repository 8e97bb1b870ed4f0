// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/WineRunner.h"

#include "platform/Paths.h"
#include "platform/posix/Launchers.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString Home() {
    return qEnvironmentVariable("HOME");
}

/// The program that a launcher uses for the prefix; empty when none is known.
QString ProgramOfLauncher(const QString& prefix) {
    const QString real = QFileInfo(prefix).canonicalFilePath();
    if (real.isEmpty())
        return {};
    for (const Launchers::Prefix& named : Launchers::NamedPrefixes(Home())) {
        if (!named.Runner.isEmpty() && QFileInfo(named.Folder).canonicalFilePath() == real)
            return named.Runner;
    }
    return Launchers::RunnerBeside(prefix);
}

/// The Steam that a Proton asks for: the one that the prefix lies in, else the first there is.
QString SteamFolder(const QString& prefix) {
    QString first;
    for (const QString& folder : Launchers::SteamFolders(Home())) {
        if (prefix.startsWith(folder + u'/'))
            return folder;
        if (first.isEmpty() && QFileInfo(folder).isDir())
            first = folder;
    }
    return first.isEmpty() ? Home() + u"/.steam/steam"_s : first;
}

/// Proton takes the folder above its prefix; any other prefix is run by the Wine inside it.
WineRunner Proton(const QString& program, const QString& prefix) {
    const QFileInfo place(prefix);
    if (place.fileName() == u"pfx")
        return {.Words = {program, u"run"_s},
                .Environment = {"STEAM_COMPAT_DATA_PATH=" + Paths::EncodeNative(place.path()),
                                "STEAM_COMPAT_CLIENT_INSTALL_PATH=" + Paths::EncodeNative(SteamFolder(prefix))}};
    const QString folder = QFileInfo(program).path();
    for (const QString& wine : {folder + u"/files/bin/wine"_s, folder + u"/dist/bin/wine"_s}) {
        if (QFileInfo(wine).isFile())
            return {.Words = {wine}, .Environment = {}};
    }
    return {.Words = {u"wine"_s}, .Environment = {}};
}

} // namespace

WineRunner WineRunner::For(const QString& prefix) {
    QString program = qEnvironmentVariable("BRINDOCK_WINE");
    if (program.isEmpty() && !prefix.isEmpty())
        program = ProgramOfLauncher(prefix);
    if (QFileInfo(program).fileName() == u"proton")
        return Proton(program, prefix);
    return {.Words = {program.isEmpty() ? u"wine"_s : program}, .Environment = {}};
}
