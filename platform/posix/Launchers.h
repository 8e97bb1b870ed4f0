// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the settings of game launchers say about Wine prefixes: where they are, and what runs them.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Launchers {

struct Prefix {
    QString Folder; ///< native; nobody has looked whether it is there
    QString Runner; ///< native path of a Wine or Proton program that is there; empty when the launcher names none
};

/// The prefixes that Lutris' and Heroic's settings name, in that order, for the user whose home it is.
std::vector<Prefix> NamedPrefixes(const QString& home);

/// The folders below a home in which Steam may be installed, as a package of the system, a flatpak or a snap.
QStringList SteamFolders(const QString& home);

/// The program that ran the prefix last, by what Proton or Bottles wrote beside it; empty when neither did, or when it
/// is gone.
QString RunnerBeside(const QString& prefix);

} // namespace Launchers
