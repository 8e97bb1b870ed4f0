// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the system refused on the way. Many questions have a plain answer, "there is no such file", also where the disk
/// could not be read, and many steps pass over a failure: whoever has to tell why something went wrong finds the reason
/// here. That nothing stands at a path, or that something does already, is no refusal.
#pragma once

#include <QString>
#include <QStringList>

namespace Refusals {

/// Keeps a file and the system's reason, each pair once, the first hundred. Any thread may call.
void Note(const QString& nativePath, const QString& reason);

/// All of them in their order: "path: reason".
QStringList All();

void Forget();

} // namespace Refusals
