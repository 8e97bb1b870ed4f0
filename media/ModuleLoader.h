// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Modules beside the programs, with what large libraries stand behind.
#pragma once

#include <QFunctionPointer>
#include <QString>

/// A function of a module, which is loaded when it is not yet and stays; null when there is none.
QFunctionPointer ModuleEntry(const QString& module, const char* function);
