// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// All that a table's file holds, behind the rows of an editor that may show 8 bits of it: what of it those lose, the
/// whole rows that they turn into, and the file that whole rows make.
#pragma once

#include "csf/document/LabelList.h"
#include "csf/format/CsfWhole.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class TableBehind {
public:
    /// Of a table that has no file yet.
    TableBehind() = default;

    /// Of a file's bytes. Raises 13 for what is not well formed.
    static TableBehind Read(const QByteArray& bytes);

    /// The same, nothing for what can't be read or is not well formed.
    static std::optional<TableBehind> ReadFile(const QString& path);

    /// The table as 8 bits show it; no strings where they show none.
    [[nodiscard]] const std::vector<CsfString>& Told() const { return told_; }

    /// As it was read or made last.
    [[nodiscard]] const QByteArray& Bytes() const { return bytes_; }

    /// The header's language, with all 32 bits.
    [[nodiscard]] quint32 Language() const { return whole_.Language(); }

    [[nodiscard]] bool HasPlainHeader() const { return whole_.HasPlainHeader(); }

    /// The names of the texts that would lose something if these rows, whose Index counts in Told(), were saved in 8
    /// bits. What the user has changed or deleted in them is not lost.
    [[nodiscard]] QStringList LostNames(const std::vector<LabelRow>& rows) const;

    /// A row of 8 bits as the whole one that it is in the file, with the changes made so far. Its Index is the string's
    /// number in the file.
    [[nodiscard]] LabelRow WholeRow(const LabelRow& told) const;

    /// The same for all rows, with those that 8 bits don't show. What 8 bits took for a string and is none is left out.
    [[nodiscard]] std::vector<LabelRow> WholeRows(const std::vector<LabelRow>& told) const;

    /// The rows of the file as it stands.
    [[nodiscard]] std::vector<LabelRow> AllRows() const;

    /// Makes the file of whole rows, in the file's order, new ones last. Returns the number of each in it.
    std::vector<int> Take(const std::vector<LabelRow>& rows, quint32 language);

private:
    void ReadAsTold();
    [[nodiscard]] std::vector<LabelRow> HiddenRows() const;
    [[nodiscard]] bool IsUntouched(const LabelRow& told) const;
    [[nodiscard]] int NumberOf(const LabelRow& told) const;

    CsfWhole whole_;
    QByteArray bytes_;
    std::vector<CsfString> strings_; ///< of whole_
    std::vector<CsfString> told_;
    std::vector<int> numbers_; ///< of each in told_: which of strings_ it is; -1 for what is none
};

/// What was typed, with what is behind the part that was shown and stays: `shown` stands for `behind` letter by letter,
/// where a letter of two units may show as one.
[[nodiscard]] QString TypedOver(const QString& behind, const QString& shown, const QString& typed);
