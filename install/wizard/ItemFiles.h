// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Which files go with what is to be installed: for a map its whole folder, for all else one file.
#pragma once

#include "install/InstallSource.h"

#include <QHash>
#include <QString>

#include <vector>

class ccZip;

struct SourceFile {
    QString Name; ///< without folders
    QString From; ///< the entry's name, or an inside path
    qint64 Size = 0;
    qint64 Packed = 0; ///< bytes in the archive; of a loose file its size
    bool IsEntry = false;
    quint32 Crc = 0;   ///< of an entry; 0: mostly not known
    QString Refusal{}; ///< why it does not go along; empty for a good one
};

class ItemFiles {
public:
    /// The archive outlives this; without one (null), loose files are looked for.
    explicit ItemFiles(const ccZip* zip) : zip_(zip) {}

    /// In the order of the archive, or by name. Raises 76 for a folder that can't be listed, 53 for a file that is
    /// gone.
    std::vector<SourceFile> Of(const InstallRecord& record);

private:
    void ReadArchive();
    [[nodiscard]] SourceFile Entry(qint32 index) const;

    const ccZip* zip_;
    QHash<QString, std::vector<qint32>> folders_; ///< the numbers of the entries that lie in each, folders left out
    bool isRead_ = false;
};
