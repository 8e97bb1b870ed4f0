// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bytes of a CSF file, walked record by record. What refuses a file raises.
#pragma once

#include "csf/format/CsfTable.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// Goes by the marks; the counts in the header are not asked. The first round is always walked.
class CsfRecords {
public:
    /// The bytes outlive the walk. Raises 13 for another file mark and 9 for bytes that are too few for the counts.
    explicit CsfRecords(QByteArrayView file);

    /// Walks one record; the entry when it was a string. Raises 9 when the record runs over the end.
    std::optional<CsfString> Next();

    /// Where the next record begins, in bytes.
    [[nodiscard]] qsizetype Position() const { return position_; }

    [[nodiscard]] bool AtEnd() const { return file_.size() <= position_; }

    /// The header's language.
    [[nodiscard]] qint32 Language() const;

    /// Raises 6 when so many strings are more than a file may hold.
    static void CheckCount(std::size_t strings);

private:
    [[nodiscard]] QByteArrayView At(qsizetype offset, quint64 count) const;
    [[nodiscard]] quint32 Number(qsizetype offset) const;
    [[nodiscard]] bool HasMark(qsizetype offset, QByteArrayView lowerCase) const;
    void Label();
    CsfString String();

    QByteArrayView file_;
    qsizetype position_ = 24;
    QString name_;
    QByteArray low_;
};
