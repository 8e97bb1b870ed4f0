// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfExchange.h"

#include "csf/exchange/CsfFormats.h"
#include "platform/AnsiCodec.h"
#include "platform/RuntimeError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString DecodeUtf8(const QByteArray& bytes) {
    qsizetype line = 1;
    for (qsizetype at = 0; at < bytes.size(); ++line) {
        const qsizetype lineFeed = bytes.indexOf('\n', at);
        const qsizetype end = lineFeed < 0 ? bytes.size() : lineFeed;
        if (!QByteArrayView(bytes).sliced(at, end - at).isValidUtf8())
            CsfFormats::Refuse(line, u"not UTF-8"_s);
        at = end + 1;
    }
    return QString::fromUtf8(bytes);
}

/// UTF-16 where its mark begins the bytes.
QString DecodeMarked(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return QStringDecoder(QStringDecoder::Utf16)(bytes);
    return DecodeUtf8(bytes);
}

[[noreturn]] void RefuseJson(const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, reason);
}

QString TextOf(const QJsonValue& entry, const QString& key, qsizetype index) {
    const QJsonValue text = entry[key];
    if (!text.isString())
        RefuseJson(u"strings[%1] has no text \"%2\""_s.arg(index).arg(key));
    return text.toString();
}

} // namespace

namespace CsfFormats {

void Refuse(qsizetype line, const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, u"line %1: %2"_s.arg(line).arg(reason));
}

int LanguageNumber(QStringView text, qsizetype line) {
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    if (!isNumber || number < 0)
        Refuse(line, u"\"%1\" is no language number"_s.arg(text));
    return number;
}

QByteArray ToJson(const CsfTable& table) {
    QJsonArray strings;
    for (const CsfString& entry : table.Strings) {
        QJsonObject told{{u"name"_s, entry.Name}, {u"value"_s, entry.Value}};
        if (entry.Extra)
            told.insert(u"extra"_s, AnsiCodec::Decode(*entry.Extra));
        if (entry.IsMore)
            told.insert(u"more"_s, true);
        strings.append(told);
    }
    return QJsonDocument(QJsonObject{{u"language"_s, table.Language}, {u"strings"_s, strings}}).toJson();
}

CsfTable FromJson(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        Refuse(QByteArrayView(bytes).first(std::clamp<qsizetype>(error.offset, 0, bytes.size())).count('\n') + 1,
               error.errorString());
    const QJsonValue language = document[u"language"_s];
    if (!document[u"strings"_s].isArray())
        RefuseJson(u"there is no list \"strings\""_s);
    if (!language.isUndefined() && language.toInt(-1) < 0)
        RefuseJson(u"\"language\" is no language number"_s);
    CsfTable table{language.toInt(), {}};
    const QJsonArray strings = document[u"strings"_s].toArray();
    table.Strings.reserve(static_cast<std::size_t>(strings.size()));
    qsizetype index = 0;
    for (const auto& entry : strings) {
        CsfString read{TextOf(entry, u"value"_s, index), TextOf(entry, u"name"_s, index)};
        if (!entry[u"extra"_s].isUndefined())
            read.Extra = AnsiCodec::Encode(TextOf(entry, u"extra"_s, index));
        read.IsMore = entry[u"more"_s].toBool();
        table.Strings.push_back(std::move(read));
        ++index;
    }
    return table;
}

} // namespace CsfFormats

namespace {

constexpr char16_t Deletion = 0x7F;
constexpr int Hexadecimal = 16;
constexpr int HexadecimalDigits = 2;

/// What stands behind a backslash for a letter that a line has no room for.
constexpr std::array<std::pair<char16_t, char16_t>, 4> Marks{
    {{u'\n', u'n'}, {u'\t', u't'}, {u'\r', u'r'}, {u'\\', u'\\'}}};

bool IsHexadecimal(QChar letter) {
    const QChar lower = letter.toLower();
    return (lower >= u'0' && lower <= u'9') || (lower >= u'a' && lower <= u'f');
}

/// Null where the letter has none.
QChar MarkOf(QChar letter) {
    const auto* const found = std::ranges::find(Marks, letter.unicode(), &std::pair<char16_t, char16_t>::first);
    return found == Marks.end() ? QChar() : QChar(found->second);
}

/// Null for a mark that stands for none.
QChar LetterOf(QChar mark) {
    const auto* const found = std::ranges::find(Marks, mark.unicode(), &std::pair<char16_t, char16_t>::second);
    return found == Marks.end() ? QChar() : QChar(found->first);
}

} // namespace

namespace CsfExchange {

std::optional<Format> FormatOf(const QString& path) {
    if (path.endsWith(u".json"_s, Qt::CaseInsensitive))
        return Format::Json;
    if (path.endsWith(u".csv"_s, Qt::CaseInsensitive))
        return Format::Csv;
    if (path.endsWith(u".po"_s, Qt::CaseInsensitive))
        return Format::Po;
    if (path.endsWith(u".str"_s, Qt::CaseInsensitive))
        return Format::Str;
    return std::nullopt;
}

QByteArray Export(const CsfTable& table, Format format, const Wishes& wishes) {
    switch (format) {
    case Format::Json:
        return CsfFormats::ToJson(table);
    case Format::Csv:
        return CsfFormats::ToCsv(table, wishes.Separator);
    case Format::Str:
        return CsfFormats::ToStr(table, wishes.Page);
    case Format::Po:
        break;
    }
    return CsfFormats::ToPo(table, wishes.Source);
}

CsfTable Import(const QByteArray& bytes, Format format, QStringList* notes, const Wishes& wishes) {
    switch (format) {
    case Format::Json:
        return CsfFormats::FromJson(bytes);
    case Format::Csv:
        return CsfFormats::FromCsv(DecodeMarked(bytes), notes);
    case Format::Str:
        return CsfFormats::FromStr(bytes, wishes.Page);
    case Format::Po:
        break;
    }
    return CsfFormats::FromPo(bytes, notes);
}

QString Escaped(const QString& text) {
    const auto special = [](QChar letter) { return letter < u' ' || letter == Deletion || letter == u'\\'; };
    if (std::ranges::none_of(text, special))
        return text;
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar letter : text) {
        if (!special(letter))
            escaped += letter;
        else if (const QChar mark = MarkOf(letter); !mark.isNull())
            escaped += QString(u'\\') + mark;
        else
            escaped += u"\\x%1"_s.arg(QString::number(letter.unicode(), Hexadecimal), HexadecimalDigits, u'0');
    }
    return escaped;
}

QString Unescaped(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : QChar();
        const QStringView digits = QStringView(text).sliced(std::min(i + 2, text.size())).left(HexadecimalDigits);
        if (next == u'x' && digits.size() == HexadecimalDigits && std::ranges::all_of(digits, IsHexadecimal)) {
            plain += QChar(digits.toUShort(nullptr, Hexadecimal));
            i += 1 + HexadecimalDigits;
        } else if (const QChar letter = LetterOf(next); !letter.isNull()) {
            plain += letter;
            ++i;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

} // namespace CsfExchange
