// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AnsiCodec.h"

#include "platform/AnsiPage.h"

#include <algorithm>
#include <vector>

AnsiPage Windows1252Page() {
    // The bytes 0x80 to 0x9F of the published table; all others stand for the character of the same number.
    static constexpr std::array<char16_t, 32> middle{
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    };
    AnsiPage page{};
    for (std::size_t byte = 0; byte < page.size(); ++byte)
        page.at(byte) = static_cast<char16_t>(byte);
    for (std::size_t i = 0; i < middle.size(); ++i)
        page.at(0x80 + i) = middle.at(i);
    return page;
}

namespace {

const AnsiPage& Page() {
    static const AnsiPage page = SystemAnsiPage();
    return page;
}

/// The byte of each UTF-16 unit; 0 for those that the page lacks (and for U+0000 itself).
const std::vector<unsigned char>& BytesOfUnits() {
    static const std::vector<unsigned char> bytes = [] {
        std::vector<unsigned char> table(0x10000, 0);
        const AnsiPage& page = Page();
        for (std::size_t byte = page.size(); byte-- > 0;)
            table[page.at(byte)] = static_cast<unsigned char>(byte);
        return table;
    }();
    return bytes;
}

/// For texts with units that the page lacks, which become question marks.
qsizetype EncodeWithMarks(QStringView text, char* bytes) {
    const std::vector<unsigned char>& table = BytesOfUnits();
    char* out = bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        const unsigned char byte = table[unit];
        *out++ = byte != 0 || unit == 0 ? static_cast<char>(byte) : '?';
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
    }
    return out - bytes;
}

} // namespace

namespace AnsiCodec {

QByteArray Encode(QStringView text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    bytes.truncate(EncodeInto(text, bytes.data()));
    return bytes;
}

qsizetype EncodeInto(QStringView text, char* bytes) {
    // As in Decode: letters of the lower half need no table.
    char16_t seen = 0;
    for (const QChar unit : text)
        seen = static_cast<char16_t>(seen | unit.unicode());
    if (seen < 0x80) {
        std::transform(text.begin(), text.end(), bytes, [](QChar unit) { return unit.toLatin1(); });
        return text.size();
    }
    const std::vector<unsigned char>& table = BytesOfUnits();
    bool lacks = false;
    std::transform(text.begin(), text.end(), bytes, [&](QChar unit) {
        const unsigned char byte = table[unit.unicode()];
        lacks |= byte == 0;
        return static_cast<char>(byte);
    });
    return lacks ? EncodeWithMarks(text, bytes) : text.size();
}

QString Decode(QByteArrayView bytes) {
    // Letters of the lower half are the same in every page; most texts have no others.
    unsigned char seen = 0;
    for (const char byte : bytes)
        seen = static_cast<unsigned char>(seen | static_cast<unsigned char>(byte));
    if (seen < 0x80)
        return QString::fromLatin1(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    const AnsiPage& page = Page();
    QChar* out = text.data();
    for (const char byte : bytes)
        *out++ = QChar(page[static_cast<unsigned char>(byte)]);
    return text;
}

} // namespace AnsiCodec
