// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is to be exported: filled by the lists from their rows with a check mark, read by the export.
#pragma once

#include <QString>

#include <vector>

struct ExportRecord {
    QString Path; ///< of the file or folder; of a shell map the pattern of its files
    QString Name;
    qint32 Kind = 0; ///< 0 map, 1 mod, 2 replay, 3 shell map

    friend bool operator==(const ExportRecord&, const ExportRecord&) = default;
};

extern std::vector<ExportRecord> ExportRecords;
