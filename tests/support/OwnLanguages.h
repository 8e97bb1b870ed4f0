// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The program's own language files, as they lie in the sources.
#pragma once

#include <QByteArray>
#include <QStringList>

namespace OwnLanguages {

/// The files' names without their ending, in the alphabet's order.
QStringList Names();

/// A file's bytes. Throws when there is no such file.
QByteArray Bytes(const QString& name);

} // namespace OwnLanguages
