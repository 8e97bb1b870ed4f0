// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/TextPattern.h"

#include "platform/AnsiCodec.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace {

/// Places that are tried in one go: a fixed number, so that the compiler can take many of them in one step.
constexpr qsizetype stride = 64;

/// From so many bytes on, looking at the last one and going on by what it allows beats looking at each place.
constexpr qsizetype longText = 32;

QByteArray InAnsi(const QString& letter) {
    const QByteArray bytes = AnsiCodec::Encode(letter);
    return AnsiCodec::Decode(bytes) == letter ? bytes : QByteArray();
}

QByteArray InTable(const QString& letter) {
    QByteArray bytes;
    for (const QChar unit : letter) {
        bytes += static_cast<char>(~unit.unicode() & 0xFF);
        bytes += static_cast<char>((~unit.unicode() >> 8) & 0xFF);
    }
    return bytes;
}

/// Letter by letter; none at all when one of them has no bytes. A letter whose other case takes another number of bytes
/// stands for itself only.
std::vector<std::pair<QByteArray, QByteArray>> Letters(const QString& text,
                                                       const std::function<QByteArray(const QString&)>& encode) {
    std::vector<std::pair<QByteArray, QByteArray>> letters;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype units = text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
        const QString letter = text.sliced(at, units);
        const QByteArray given = encode(letter);
        if (given.isEmpty())
            return {};
        QByteArray one = encode(letter.toLower());
        QByteArray other = encode(letter.toUpper());
        for (QByteArray* bytes : {&one, &other})
            if (bytes->size() != given.size())
                *bytes = given;
        letters.emplace_back(std::move(one), std::move(other));
        at += units;
    }
    return letters;
}

} // namespace

std::vector<TextPattern> TextPattern::OfPlainText(const QString& text) {
    std::vector<TextPattern> patterns{TextPattern(Letters(text, InAnsi))};
    const bool isPlain = std::ranges::all_of(text, [](QChar letter) { return letter.unicode() < 0x80; });
    if (!isPlain)
        patterns.push_back(TextPattern(Letters(text, [](const QString& letter) { return letter.toUtf8(); })));
    std::erase_if(patterns, [](const TextPattern& pattern) { return pattern.Length() == 0; });
    for (TextPattern& pattern : patterns)
        if (pattern.Length() >= longText)
            pattern.MakeSkips();
    return patterns;
}

// Every second byte of a table is the same there, so that nothing would be skipped.
TextPattern TextPattern::OfTableValue(const QString& text) {
    return TextPattern(Letters(text, InTable));
}

TextPattern::TextPattern(std::vector<Letter> letters) : letters_(std::move(letters)) {
    QByteArray one;
    QByteArray other;
    for (const Letter& letter : letters_) {
        one += letter.first;
        other += letter.second;
    }
    length_ = one.size();
    if (length_ == 0)
        return;
    const auto probe = [&](qsizetype at) {
        return Probe{at, static_cast<uchar>(one.at(at)), static_cast<uchar>(other.at(at))};
    };
    probes_ = {probe(0), probe(length_ / 2), probe(length_ - 1)};
}

/// After Horspool, with both cases of each letter.
void TextPattern::MakeSkips() {
    skips_.assign(256, length_);
    qsizetype left = length_ - 1;
    for (const Letter& letter : letters_) {
        for (qsizetype i = 0; i < letter.first.size() && left > 0; ++i, --left) {
            skips_[static_cast<uchar>(letter.first.at(i))] = left;
            skips_[static_cast<uchar>(letter.second.at(i))] = left;
        }
    }
}

qsizetype TextPattern::IndexBySkips(QByteArrayView bytes) const {
    const auto* const from = reinterpret_cast<const uchar*>(bytes.data());
    for (qsizetype place = 0; place <= bytes.size() - length_; place += skips_[from[place + length_ - 1]])
        if (StartsAt(from + place))
            return place;
    return -1;
}

bool TextPattern::MayStartIn(const uchar* bytes) const {
    const auto& [first, middle, last] = probes_;
    const uchar* const firsts = bytes + first.At;
    const uchar* const middles = bytes + middle.At;
    const uchar* const lasts = bytes + last.At;
    unsigned char may = 0;
    for (qsizetype i = 0; i < stride; ++i) {
        const bool begins = (firsts[i] == first.One) | (firsts[i] == first.Other);
        const bool goesOn = (middles[i] == middle.One) | (middles[i] == middle.Other);
        const bool ends = (lasts[i] == last.One) | (lasts[i] == last.Other);
        may |= static_cast<unsigned char>(begins & goesOn & ends);
    }
    return may != 0;
}

bool TextPattern::StartsAt(const uchar* bytes) const {
    const bool may = std::ranges::all_of(probes_, [bytes](const Probe& probe) {
        return bytes[probe.At] == probe.One || bytes[probe.At] == probe.Other;
    });
    if (!may)
        return false;
    return std::ranges::all_of(letters_, [&bytes](const Letter& letter) {
        const auto size = static_cast<std::size_t>(letter.first.size());
        const bool is = std::memcmp(bytes, letter.first.constData(), size) == 0 ||
                        std::memcmp(bytes, letter.second.constData(), size) == 0;
        bytes += size;
        return is;
    });
}

qsizetype TextPattern::IndexIn(QByteArrayView bytes) const {
    if (!skips_.empty())
        return IndexBySkips(bytes);
    const auto* const from = reinterpret_cast<const uchar*>(bytes.data());
    const qsizetype places = length_ == 0 ? 0 : bytes.size() - length_ + 1;
    for (qsizetype place = 0; place < places; place += stride) {
        const qsizetype ahead = std::min(stride, places - place);
        if (ahead == stride && !MayStartIn(from + place))
            continue;
        for (qsizetype i = 0; i < ahead; ++i)
            if (StartsAt(from + place + i))
                return place + i;
    }
    return -1;
}
