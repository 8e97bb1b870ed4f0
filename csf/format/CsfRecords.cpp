// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfRecords.h"

#include "big/format/BaseConvert.h"
#include "platform/AnsiCodec.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype CountOffset = 8;
constexpr qsizetype LanguageOffset = 20;

} // namespace

CsfRecords::CsfRecords(QByteArrayView file) : file_(file) {
    if (file.isEmpty())
        throw RuntimeError(ErrorNumber::Subscript, u"the file is empty"_s);
    if (!HasMark(0, " fsc"))
        throw RuntimeError(ErrorNumber::TypeMismatch, u"not a CSF file"_s);
    static_cast<void>(Number(CountOffset)); // read and dropped: the file has to be that long
}

std::optional<CsfString> CsfRecords::Next() {
    if (HasMark(position_, " rts"))
        return String();
    if (HasMark(position_, " lbl"))
        Label();
    else
        position_ += 3; // Unknown data is passed in steps of three, over whatever lies between. This is meant.
    return std::nullopt;
}

qint32 CsfRecords::Language() const {
    const int byte = static_cast<unsigned char>(At(LanguageOffset, 1).front());
    // The number's decimal text is read as a hexadecimal one. This is meant.
    return mBIG::BaseConvert(QString::number(byte), 16, 0).toInt();
}

void CsfRecords::CheckCount(std::size_t strings) {
    if (strings > std::size_t{CsfTable::MaximumStrings})
        throw RuntimeError(ErrorNumber::Overflow, u"more than 32,767 strings"_s);
}

/// Reading beyond the end raises.
QByteArrayView CsfRecords::At(qsizetype offset, quint64 count) const {
    if (offset > file_.size() || count > static_cast<quint64>(file_.size() - offset))
        throw RuntimeError(ErrorNumber::Subscript, u"the file ends too early"_s);
    return file_.sliced(offset, static_cast<qsizetype>(count));
}

quint32 CsfRecords::Number(qsizetype offset) const {
    return qFromLittleEndian<quint32>(At(offset, sizeof(quint32)).data());
}

/// Any mix of upper and lower case.
bool CsfRecords::HasMark(qsizetype offset, QByteArrayView lowerCase) const {
    const QByteArrayView mark = At(offset, static_cast<quint64>(lowerCase.size()));
    return std::ranges::equal(mark, lowerCase, {}, [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
}

void CsfRecords::Label() {
    const quint32 length = Number(position_ + 8);
    name_ = AnsiCodec::Decode(At(position_ + 12, length));
    position_ += 12 + static_cast<qsizetype>(length);
}

CsfString CsfRecords::String() {
    const quint32 length = Number(position_ + 4);
    const QByteArrayView units = At(position_ + 8, quint64{2} * length);
    low_.resize(static_cast<qsizetype>(length));
    char* low = low_.data();
    const char* unit = units.data();
    for (quint32 i = 0; i < length; ++i) // The high byte is never looked at. This is meant.
        low[i] = static_cast<char>(~unit[std::size_t{2} * i]);
    position_ += 8 + units.size();
    return {AnsiCodec::Decode(low_), name_};
}
