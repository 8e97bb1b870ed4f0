// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Memory of megabytes, about to be filled, in large pages where the system gives them: filling it is then mostly
/// copying, where it was mostly page faults. Advice only: nothing fails.
#pragma once

#include <QByteArray>

void PreferLargePages(QByteArray& bytes);
