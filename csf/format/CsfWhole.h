// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A well-formed CSF file with all that is in it: every character with its 16 bits, data besides the strings, labels of
/// no or several strings, the header as it stands. What is read and written again is the same, byte for byte.
///
/// The file is walked by each label's own count of strings. A string record with the mark "WRTS" (as it stands in the
/// file, "STRW" read as a number) has its length in bytes and bytes of extra data behind the characters.
#pragma once

#include "csf/format/CsfTable.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <array>
#include <cstddef>
#include <vector>

class CsfWhole {
public:
    /// Raises 13 for what is not well formed, with the offset and the reason.
    static CsfWhole Read(QByteArrayView bytes);

    /// A fresh table in the form that the suite writes.
    static CsfWhole Of(const CsfTable& table);

    /// The strings in the file's order; those behind the first of a label have IsMore. The language is the number in
    /// the file. What has more than 31 bits comes out as a negative number.
    [[nodiscard]] CsfTable Table() const;

    /// Takes a changed table over: each string goes with the name, so that it keeps what stands around it; others are
    /// new. Labels without strings stay where they stand.
    void Take(const CsfTable& table);

    /// The same for who knows which string each one was: its number in the Table() of before, -1 for a new one. A
    /// string that has another name now keeps its place.
    void Take(const CsfTable& table, const std::vector<int>& strings);

    /// Where in the file the record of each string begins, in bytes.
    [[nodiscard]] std::vector<qsizetype> StringOffsets() const;

    /// The names of the labels without strings.
    [[nodiscard]] QStringList BareLabels() const;

    [[nodiscard]] quint32 Language() const { return language_; }

    /// Whether the header is one that the suite writes, whatever its counts: a version, a reserved field and a language
    /// that come through its own reading and writing.
    [[nodiscard]] bool HasPlainHeader() const;

    /// The file. Raises 6 for a text that no length of 32 bits holds.
    [[nodiscard]] QByteArray Bytes() const;

private:
    using Mark = std::array<char, 4>;
    static constexpr Mark MarkWithExtra{'W', 'R', 'T', 'S'};

    /// A label, a string, or both.
    struct Record {
        CsfString Entry; ///< of a label without a string the name alone
        Mark LabelMark{' ', 'L', 'B', 'L'};
        Mark StringMark{' ', 'R', 'T', 'S'};
        bool HasString = true;

        /// What was read, with the string that it has now.
        void Take(const CsfString& entry);
    };

    struct Placed {
        std::size_t Order = 0;
        Record Is;
    };

    struct Counts {
        quint32 Labels = 0;
        quint32 Strings = 0;
    };

    [[nodiscard]] std::vector<std::size_t> PlacesOfStrings() const;
    [[nodiscard]] std::vector<std::size_t> OriginsOf(const CsfTable& table) const;
    void TakeFrom(const CsfTable& table, const std::vector<std::size_t>& origins);
    void Arrange(const std::vector<std::size_t>& origins);
    [[nodiscard]] Counts Counted() const;

    Mark mark_{' ', 'F', 'S', 'C'};
    quint32 version_ = 3;
    Counts extra_; ///< how much more the header tells than there is, modulo 2^32
    quint32 reserved_ = 0;
    quint32 language_ = 0;
    std::vector<Record> records_;

    friend class CsfWholeReader;
};
