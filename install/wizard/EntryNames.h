// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The names of an archive's entries, and their parts.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace EntryNames {

/// The last `count` characters in lower case; all of a shorter name.
QString End(const QString& name, qsizetype count);

/// What stands behind the last "/".
QString FileName(const QString& entry);

/// What stands behind the last separator of either kind: an extracted entry is called so.
QString LastPart(const QString& name);

/// The folder an entry lies in, with a "/" behind it and for every separator; empty in the archive's root.
QString Folder(const QString& entry);

/// A name without its last characters; empty for a shorter one.
QString Without(const QString& name, qsizetype count);

} // namespace EntryNames

/// All names as one text, a backslash before and behind each, which is searched.
class AllEntries {
public:
    explicit AllEntries(const QStringList& names);

    /// Whether a name stands in the text between two backslashes, with its case. Parts of a name that holds backslashes
    /// are found too. This is meant.
    [[nodiscard]] bool Has(const QString& name) const;

private:
    QSet<QString> parts_; ///< what a search for a text without a backslash finds, and all whole names
    QString text_;
};
