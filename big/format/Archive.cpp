// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/Archive.h"

#include "big/format/SourceFiles.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace Archives {

std::vector<int> MissingSources(const Archive& archive) {
    std::vector<int> missing;
    for (std::size_t index = 0; index < archive.Entries.size(); ++index) {
        const BigEntry& entry = archive.Entries[index];
        bool isGone = false;
        if (entry.IsNew && !entry.Deleted)
            Ignoring([&] { isGone = !SourceFiles::LengthOf(entry.SourcePath); });
        if (isGone)
            missing.push_back(static_cast<int>(index));
    }
    return missing;
}

bool IsBlank(const Archive& archive) {
    return archive.Entries.empty() || (archive.Entries.size() == 1 && archive.Entries.front() == BigEntry());
}

int Find(const Archive& archive, const QString& name) {
    const auto found = std::ranges::find_if(archive.Entries, [&](const BigEntry& entry) {
        return entry.Name.size() == name.size() && entry.Name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == archive.Entries.end() ? -1 : static_cast<int>(found - archive.Entries.begin());
}

std::vector<int> IndicesAfterSave(const Archive& archive) {
    std::vector<int> indices;
    indices.reserve(archive.Entries.size());
    int kept = 0;
    for (const BigEntry& entry : archive.Entries)
        indices.push_back(entry.Deleted ? -1 : kept++);
    return indices;
}

} // namespace Archives
