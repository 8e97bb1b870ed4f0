// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// INI files, one key at a time, with the behaviour of the system's private profile files: sections and keys are found
/// without regard to case, the first match counts, blanks around a value and one pair of quotes (single or double) are
/// dropped, a write replaces the value in place and keeps every other byte of the file. Files are in the ANSI code
/// page.
#pragma once

#include <QString>
#include <QStringList>

class INIRuntime {
public:
    /// At most the first 254 characters of the value; empty when file, section or key is missing.
    /// `file` is a full inside path.
    [[nodiscard]] QString ReadINI(const QString& section, const QString& key, const QString& file) const;

    /// The same for several keys of one section, which need the file once only.
    [[nodiscard]] QStringList ReadValues(const QString& section, const QStringList& keys, const QString& file) const;

    /// The same from a file that names the code page of its texts as `CodePage` in section Infos; where it names none,
    /// or one that the system lacks, the texts are in the ANSI code page as ever.
    [[nodiscard]] QStringList ReadTexts(const QString& section, const QStringList& keys, const QString& file) const;

    /// Makes the file, section or key when missing. Returns "1" for done and "0" for failed.
    QString WriteINI(const QString& section, const QString& key, const QString& value, const QString& file) const;
};
