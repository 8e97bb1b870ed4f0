// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegistryText.h"

#include "platform/AnsiCodec.h"

#include <QByteArray>
#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace RegistryText {

namespace {

struct Digits {
    int Base;
    qsizetype Most;
};

/// Reads a number of at most so many digits from `at` on and moves behind it. Nothing without a digit.
std::optional<quint32> ReadNumber(QStringView text, qsizetype& at, Digits digits) {
    const qsizetype start = at;
    quint32 number = 0;
    for (; at < text.size() && at - start < digits.Most; ++at) {
        bool isDigit = false;
        const uint digit = text.sliced(at, 1).toUInt(&isDigit, digits.Base);
        if (!isDigit)
            break;
        number = number * static_cast<quint32>(digits.Base) + digit;
    }
    return at == start ? std::nullopt : std::optional(number);
}

/// One escape of a Wine hive; `at` stands behind the backslash and is moved behind the escape.
QChar ReadWineEscape(QStringView text, qsizetype& at) {
    static constexpr QStringView Letters = u"abtnvfre";
    static constexpr QStringView Controls = u"\a\b\t\n\v\f\r\x1B";
    const QChar letter = text[at];
    if (letter == u'x') {
        qsizetype digits = at + 1;
        const auto number = ReadNumber(text, digits, {16, 4});
        at = number ? digits : at + 1;
        return number ? QChar(static_cast<char16_t>(*number)) : letter;
    }
    if (const auto octal = ReadNumber(text, at, {8, 3}))
        return QChar(static_cast<char16_t>(*octal));
    ++at;
    const qsizetype control = Letters.indexOf(letter);
    return control < 0 ? letter : Controls[control];
}

/// An escape of an export: a backslash before anything but a backslash or a quote stands for itself.
QChar ReadExportEscape(QStringView text, qsizetype& at) {
    if (text[at] != u'\\' && text[at] != u'"')
        return u'\\';
    return text[at++];
}

/// The text between quotes, from the opening one at `at` on, which is moved behind the closing one.
std::optional<QString> ReadQuoted(QStringView text, qsizetype& at, Flavour flavour) {
    QString content;
    for (++at; at < text.size();) {
        const QChar character = text[at++];
        if (character == u'"')
            return content;
        if (character == u'\\' && at < text.size())
            content += flavour == Flavour::WineHive ? ReadWineEscape(text, at) : ReadExportEscape(text, at);
        else
            content += character;
    }
    return std::nullopt;
}

bool EndsHere(QStringView rest) {
    rest = rest.trimmed();
    return rest.isEmpty() || rest.startsWith(u';');
}

std::optional<QByteArray> ReadBytes(QStringView list) {
    QByteArray bytes;
    for (QStringView item : list.split(u',')) {
        item = item.trimmed();
        if (item.startsWith(u'\\'))
            item = item.sliced(1).trimmed();
        if (item.isEmpty())
            continue;
        qsizetype at = 0;
        const auto number = ReadNumber(item, at, {16, 2});
        if (!number || at != item.size())
            return std::nullopt;
        bytes += static_cast<char>(*number);
    }
    return bytes;
}

RegistryValue TextOfBytes(const QByteArray& bytes, Flavour flavour) {
    if (flavour == Flavour::AnsiExport)
        return {RegistryValue::Kind::Text, AnsiCodec::Decode(bytes), 0};
    QString text;
    for (qsizetype at = 0; at + 1 < bytes.size(); at += 2)
        text += QChar(static_cast<uchar>(bytes[at]), static_cast<uchar>(bytes[at + 1]));
    return {RegistryValue::Kind::Text, text, 0};
}

RegistryValue ValueOfHex(QStringView data, Flavour flavour) {
    RegistryValue other{RegistryValue::Kind::Other, {}, 0};
    const qsizetype colon = data.indexOf(u':');
    const QStringView type = data.first(qMax<qsizetype>(colon, 0));
    const auto bytes = ReadBytes(data.sliced(colon + 1));
    if (!bytes)
        return other;
    if (type.compare(u"hex(1)"_s, Qt::CaseInsensitive) == 0)
        return TextOfBytes(*bytes, flavour);
    if (type.compare(u"hex(4)"_s, Qt::CaseInsensitive) != 0 || bytes->size() != 4)
        return other;
    quint32 number = 0;
    for (qsizetype at = 3; at >= 0; --at)
        number = number << 8 | static_cast<uchar>(bytes->at(at));
    return {RegistryValue::Kind::Number, {}, number};
}

/// Where the line from `at` on ends, without and with its line end.
struct Extent {
    qsizetype TextEnd;
    qsizetype End;
};

Extent LineAt(QStringView text, qsizetype at) {
    const qsizetype feed = text.indexOf(u'\n', at);
    const qsizetype end = feed < 0 ? text.size() : feed + 1;
    const qsizetype textEnd = feed < 0 ? end : feed;
    return {textEnd > at && text[textEnd - 1] == u'\r' ? textEnd - 1 : textEnd, end};
}

void ReadKeyLine(QStringView text, Line& line, Flavour flavour) {
    const qsizetype close = text.lastIndexOf(u']');
    line.Key.clear();
    if (close < 0)
        return;
    QStringView name = text.sliced(1, close - 1);
    const bool deleted = name.startsWith(u'-');
    name = deleted ? name.sliced(1) : name;
    line.Type = deleted ? Line::Kind::DeletedKey : Line::Kind::Key;
    line.Key = flavour == Flavour::WineHive ? UnescapedKey(name) : name.toString();
    while (line.Key.endsWith(u'\\'))
        line.Key.chop(1);
}

void ReadValueLine(QStringView text, Line& line, Flavour flavour) {
    qsizetype at = 1;
    if (text.startsWith(u'"')) {
        at = 0;
        const auto name = ReadQuoted(text, at, flavour);
        if (!name)
            return;
        line.Name = *name;
    }
    const QStringView rest = text.sliced(at).trimmed();
    if (!rest.startsWith(u'='))
        return;
    line.Data = rest.sliced(1).trimmed();
    const bool deletion = line.Data.startsWith(u'-') && EndsHere(line.Data.sliced(1));
    line.Type = deletion ? Line::Kind::DeletedValue : Line::Kind::Value;
}

/// Takes in the lines that go on with a hexadecimal list.
void ReadContinuation(QStringView text, Line& line) {
    if (!line.Data.startsWith(u"hex", Qt::CaseInsensitive))
        return;
    const qsizetype dataStart = line.Data.begin() - text.begin();
    for (bool goesOn = line.Data.endsWith(u'\\'); goesOn && line.End < text.size();) {
        const Extent next = LineAt(text, line.End);
        // A blank line ends the list, whatever stands before it.
        goesOn = text.sliced(line.End, next.TextEnd - line.End).trimmed().endsWith(u'\\');
        line.Data = text.sliced(dataStart, next.TextEnd - dataStart).trimmed();
        line.End = next.End;
    }
}

QString Quoted(QString text) {
    return u'"' + text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

/// A text with control characters has no place between quotes: its bytes as a list.
QString HexText(const QString& text, Flavour flavour) {
    QByteArray bytes;
    if (flavour == Flavour::AnsiExport)
        bytes = AnsiCodec::Encode(text);
    else
        for (const QChar character : text)
            bytes.append(static_cast<char>(character.cell())).append(static_cast<char>(character.row()));
    return u"hex(1):"_s + QString::fromLatin1(bytes.toHex(','));
}

} // namespace

std::vector<Line> Parse(QStringView text, Flavour flavour) {
    std::vector<Line> lines;
    QString key;
    for (qsizetype at = 0; at < text.size(); at = lines.back().End) {
        const Extent extent = LineAt(text, at);
        const QStringView content = text.sliced(at, extent.TextEnd - at).trimmed();
        Line line{Line::Kind::Other, at, extent.End, key, {}, {}};
        if (content.startsWith(u'[')) {
            ReadKeyLine(content, line, flavour);
            key = line.Type == Line::Kind::Key ? line.Key : QString();
        } else if (content.startsWith(u'"') || content.startsWith(u'@')) {
            ReadValueLine(content, line, flavour);
            ReadContinuation(text, line);
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

RegistryValue ValueOf(const Line& line, Flavour flavour) {
    const RegistryValue other{RegistryValue::Kind::Other, {}, 0};
    const QStringView data = line.Data;
    qsizetype at = 0;
    if (data.startsWith(u'"')) {
        const auto text = ReadQuoted(data, at, flavour);
        return text ? RegistryValue{RegistryValue::Kind::Text, *text, 0} : other;
    }
    if (data.startsWith(u"dword:", Qt::CaseInsensitive)) {
        at = 6;
        const auto number = ReadNumber(data, at, {16, 8});
        return number && EndsHere(data.sliced(at)) ? RegistryValue{RegistryValue::Kind::Number, {}, *number} : other;
    }
    return data.startsWith(u"hex", Qt::CaseInsensitive) ? ValueOfHex(data, flavour) : other;
}

QString Format(const QString& name, const RegistryValue& value, Flavour flavour) {
    const auto isControl = [](QChar character) { return character.unicode() < 0x20; };
    const QString start = (name.isEmpty() ? u"@"_s : Quoted(name)) + u'=';
    if (value.Type == RegistryValue::Kind::Number)
        return start + u"dword:%1"_s.arg(value.Number, 8, 16, QChar(u'0'));
    if (std::any_of(value.Text.begin(), value.Text.end(), isControl))
        return start + HexText(value.Text, flavour);
    return start + Quoted(value.Text);
}

QString UnescapedKey(QStringView text) {
    QString key;
    for (qsizetype at = 0; at < text.size();) {
        const QChar character = text[at++];
        key += character == u'\\' && at < text.size() ? ReadWineEscape(text, at) : character;
    }
    return key;
}

} // namespace RegistryText
