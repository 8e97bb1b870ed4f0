// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A registry hive of a Wine prefix ("system.reg", "user.reg"): read only, fast on files of many megabytes.
#pragma once

#include "platform/File.h"
#include "platform/RegistryText.h"

#include <QByteArray>
#include <QString>

#include <vector>

class WineHive {
public:
    /// The bytes of the native path. The file need not exist.
    explicit WineHive(const QByteArray& path);

    /// The value, as the file is now. `key` is relative to the hive's root.
    [[nodiscard]] RegistryValue Read(const QString& key, const QString& name) const;

private:
    /// Where a key's lines are.
    struct Section {
        std::size_t KeyHash;
        qint64 Start;
        qint64 End;
    };

    bool Refresh() const;
    void Index(const QByteArray& bytes) const;
    [[nodiscard]] RegistryValue ReadSection(const Section& section, const QString& key, const QString& name) const;

    QString path_; ///< inside path
    mutable FileState state_;
    mutable std::vector<Section> sections_; ///< of `state_`, in the file's order; the bytes themselves are not kept
};
