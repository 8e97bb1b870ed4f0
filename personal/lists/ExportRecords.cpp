// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/ExportRecords.h"

std::vector<ExportRecord> ExportRecords;
