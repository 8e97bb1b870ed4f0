// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that are dragged from other programs.
#pragma once

#include <QStringList>

class QMimeData;

namespace DroppedFiles {

/// Inside paths; what is no file of this machine is left out.
QStringList In(const QMimeData& data);

} // namespace DroppedFiles
