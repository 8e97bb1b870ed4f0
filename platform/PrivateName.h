// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Names for files that are put aside.
#pragma once

#include <QString>
#include <QStringView>

/// A file's name that nobody can foretell, so that nobody can plant anything under it.
QString PrivateName();

/// Such a name, also one with a number behind it. A file that is found under it was not finished: the process died, and
/// nobody needs it. What a user needs back has something else behind its private name.
bool IsPrivateName(QStringView name);
