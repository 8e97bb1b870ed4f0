// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A text that is looked for in bytes, in one encoding and without regard to case.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <array>
#include <utility>
#include <vector>

class TextPattern {
public:
    /// In one byte a character of the ANSI code page, and in UTF-8 where that differs.
    static std::vector<TextPattern> OfPlainText(const QString& text);

    /// As the values of a string table stand: two bytes a character, each bit turned round.
    static TextPattern OfTableValue(const QString& text);

    /// In bytes; 0 for what no bytes can be, which is found nowhere.
    [[nodiscard]] qsizetype Length() const { return length_; }

    /// The first place where the text begins; -1 for none.
    [[nodiscard]] qsizetype IndexIn(QByteArrayView bytes) const;

private:
    /// A letter's bytes in either case, of one length.
    using Letter = std::pair<QByteArray, QByteArray>;

    /// A byte of the pattern that is looked at before the others, in either case.
    struct Probe {
        qsizetype At = 0;
        uchar One = 0;
        uchar Other = 0;
    };

    explicit TextPattern(std::vector<Letter> letters);

    void MakeSkips();
    [[nodiscard]] qsizetype IndexBySkips(QByteArrayView bytes) const;
    [[nodiscard]] bool MayStartIn(const uchar* bytes) const;
    [[nodiscard]] bool StartsAt(const uchar* bytes) const;

    std::vector<Letter> letters_;
    qsizetype length_ = 0;
    std::array<Probe, 3> probes_{};
    /// For a long text, by the byte that stands under its last one: how far on it may begin at the earliest.
    std::vector<qsizetype> skips_;
};
