// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The language of a first start.
#pragma once

#include <QStringList>

namespace FirstLanguage {

/// Where no language was chosen yet, stores the one that "setup.cfg" in the program's folder has for the first of the
/// user's languages (as "fr-CA", the dearest first) that it knows, else its default. A package lays that file beside
/// the program; without it nothing is stored.
void Choose(const QStringList& languages);

} // namespace FirstLanguage
