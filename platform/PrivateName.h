// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Names for files that are put aside.
#pragma once

#include <QString>

/// A file's name that nobody can foretell, so that nobody can plant anything under it.
QString PrivateName();
