// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tells links that lead out of a folder, for walks that must stay inside.
#pragma once

#include <QString>

class FolderBounds {
public:
    /// An inside path with or without a backslash behind it; empty for the folder that the program runs in.
    explicit FolderBounds(QString folder);

    /// True for a link to what does not lie in the folder or below; nothing else leads out.
    [[nodiscard]] bool LeadsOut(const QString& path);

private:
    QString folder_;
    QString real_; ///< with a backslash behind it; empty before the first link
};
