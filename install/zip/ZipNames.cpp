// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipNames.h"

#include "platform/AnsiCodec.h"

#include <QStringDecoder>
#include <QtEndian>

#include <algorithm>
#include <optional>
#include <string_view>

#include <zlib.h>

namespace {

namespace Host {
constexpr int Fat = 0;
constexpr int Hpfs = 6;
constexpr int Ntfs = 10;
constexpr int NtfsOfOld = 11; ///< as the older tools number it
constexpr int Vfat = 14;
} // namespace Host

constexpr quint16 UnicodeName = 0x7075;

/// Code page 437 from 0x80 on; what is below stands for itself.
constexpr std::u16string_view UpperHalf = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
                                          u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
static_assert(UpperHalf.size() == 128);

bool IsDos(int host) {
    return host == Host::Fat || host == Host::Hpfs || host == Host::Ntfs || host == Host::NtfsOfOld ||
           host == Host::Vfat;
}

QString DecodeDos(QByteArrayView raw) {
    QString text(raw.size(), Qt::Uninitialized);
    std::transform(raw.begin(), raw.end(), text.begin(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < 0x80 ? QChar(char16_t{code}) : QChar(UpperHalf[code - 0x80U]);
    });
    return text;
}

/// Nothing for bytes that would not come back from the text.
std::optional<QString> DecodeUtf8(QByteArrayView raw) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(raw);
    if (decoder.hasError() || text.toUtf8() != raw)
        return std::nullopt;
    return text;
}

/// The name out of the field that holds it in UTF-8, as long as it belongs to this very name.
std::optional<QString> NameOfField(QByteArrayView raw, QByteArrayView extraFields) {
    constexpr qsizetype head = 5;
    const QByteArrayView field = ZipNames::Field(extraFields, UnicodeName);
    if (field.size() <= head || field[0] != 1)
        return std::nullopt;
    const auto sum = ::crc32(0, reinterpret_cast<const Bytef*>(raw.data()), static_cast<uInt>(raw.size()));
    if (qFromLittleEndian<quint32>(field.data() + 1) != sum)
        return std::nullopt;
    return DecodeUtf8(field.sliced(head));
}

QString DecodeEightBit(QByteArrayView raw, const ZipNames::Origin& origin) {
    if (origin.Host == Host::Fat && origin.Attributes == 0)
        return AnsiCodec::Decode(raw);
    if (IsDos(origin.Host))
        return DecodeDos(raw);
    return DecodeUtf8(raw).value_or(AnsiCodec::Decode(raw));
}

QString Text(QByteArrayView raw, const ZipNames::Origin& origin) {
    if (const auto named = NameOfField(raw, origin.ExtraFields))
        return *named;
    if (std::ranges::all_of(raw, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; }))
        return QString::fromLatin1(raw);
    if (!origin.IsUtf8)
        return DecodeEightBit(raw, origin);
    return DecodeUtf8(raw).value_or(AnsiCodec::Decode(raw));
}

} // namespace

QByteArrayView ZipNames::Field(QByteArrayView extraFields, quint16 number) {
    constexpr qsizetype head = 4;
    while (extraFields.size() >= head) {
        const auto found = qFromLittleEndian<quint16>(extraFields.data());
        const qsizetype length = qFromLittleEndian<quint16>(extraFields.data() + 2);
        extraFields = extraFields.sliced(head);
        if (length > extraFields.size())
            break;
        if (found == number)
            return extraFields.first(length);
        extraFields = extraFields.sliced(length);
    }
    return {};
}

QString ZipNames::Decode(QByteArrayView raw, const Origin& origin) {
    QString text = Text(raw, origin);
    if (origin.Host == Host::Fat && !text.contains(u'/'))
        text.replace(u'\\', u'/');
    return text;
}
