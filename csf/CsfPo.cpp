// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/CsfFormats.h"

#include <QHash>

#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView LanguageField("X-CSF-Language:");

struct Escape {
    char16_t Letter;
    char16_t Code;
};

constexpr std::array<Escape, 9> Escapes{{{u'n', u'\n'},
                                         {u't', u'\t'},
                                         {u'r', u'\r'},
                                         {u'a', u'\a'},
                                         {u'b', u'\b'},
                                         {u'f', u'\f'},
                                         {u'v', u'\v'},
                                         {u'\\', u'\\'},
                                         {u'"', u'"'}}};

void AppendLetter(QString& text, QChar letter) {
    for (const Escape& escape : Escapes) {
        if (letter == QChar(escape.Code)) {
            text += u'\\';
            text += QChar(escape.Letter);
            return;
        }
    }
    if (letter < u' ' || letter == QChar(0x7F))
        text += u"\\%1"_s.arg(letter.unicode(), 3, 8, QChar(u'0'));
    else
        text += letter;
}

/// A keyword and its text; a text of several lines begins with an empty one, as gettext writes it.
void AppendText(QString& po, QLatin1StringView keyword, const QString& text) {
    po += keyword + " \""_L1;
    const qsizetype lineFeed = text.indexOf(u'\n');
    if (lineFeed >= 0 && lineFeed + 1 < text.size())
        po += u"\"\n\""_s;
    for (qsizetype i = 0; i < text.size(); ++i) {
        AppendLetter(po, text[i]);
        if (text[i] == u'\n' && i + 1 < text.size())
            po += u"\"\n\""_s;
    }
    po += u"\"\n"_s;
}

/// Where the number at the end of "name#2" begins; -1 when there is none.
qsizetype NumberMark(QStringView text) {
    qsizetype digits = text.size();
    while (digits > 0 && text[digits - 1] >= u'0' && text[digits - 1] <= u'9')
        --digits;
    return digits > 0 && digits < text.size() && text[digits - 1] == u'#' ? digits - 1 : -1;
}

/// Contexts have to differ: a name that comes again gets "#2" and so on, and one that ends so itself gets a number too.
QString ContextOf(const QString& name, int occurrence) {
    return occurrence > 1 || NumberMark(name) >= 0 ? name + u'#' + QString::number(occurrence) : name;
}

QString NameOf(const QString& context) {
    const qsizetype mark = NumberMark(context);
    return mark < 0 ? context : context.first(mark);
}

/// The code that the name of a gettext language has; none for the numbers without a known language.
QString LanguageCode(int language) {
    static const QHash<int, QString> codes{{0, u"en"_s}, {2, u"de"_s}, {3, u"fr"_s}, {8, u"ko"_s}};
    return codes.value(language);
}

class Parser {
public:
    CsfTable Parse(QStringView text) {
        for (const QStringView line : text.tokenize(u'\n')) {
            ++line_;
            Line(line.trimmed());
        }
        EndEntry();
        return std::move(table_);
    }

private:
    struct Entry {
        std::optional<QString> Context;
        std::optional<QString> Source;
        std::optional<QString> Translation;
        bool Fuzzy = false;
    };

    void Line(QStringView line) {
        if (line.startsWith(u'"'))
            return Continue(line);
        if (line.isEmpty() || line.startsWith(u'#')) {
            if (entry_.Translation)
                EndEntry();
            if (line.startsWith(u"#,"_s) && line.contains(u"fuzzy"_s))
                entry_.Fuzzy = true;
            return;
        }
        const qsizetype blank = line.indexOf(u' ');
        const QStringView keyword = line.first(blank < 0 ? line.size() : blank);
        if (entry_.Translation && (keyword == u"msgctxt"_s || keyword == u"msgid"_s))
            EndEntry();
        std::optional<QString>* const part = keyword == u"msgctxt"_s  ? &entry_.Context
                                             : keyword == u"msgid"_s  ? &entry_.Source
                                             : keyword == u"msgstr"_s ? &entry_.Translation
                                                                      : nullptr;
        if (part == nullptr || part->has_value())
            CsfFormats::Refuse(line_, u"\"%1\" is not expected here"_s.arg(keyword));
        part->emplace();
        current_ = part;
        Continue(line.sliced(keyword.size()).trimmed());
    }

    /// Appends a quoted text to the current part.
    void Continue(QStringView quoted) {
        if (current_ == nullptr || quoted.size() < 2 || !quoted.startsWith(u'"') || !quoted.endsWith(u'"'))
            CsfFormats::Refuse(line_, u"a quoted text is expected"_s);
        const QStringView text = quoted.sliced(1, quoted.size() - 2);
        for (qsizetype at = 0; at < text.size();) {
            if (text[at] == u'"')
                CsfFormats::Refuse(line_, u"text behind a closing quote"_s);
            **current_ += text[at] == u'\\' ? Unescape(text, at) : text[at++];
        }
    }

    /// The letter of an escape sequence at `at`, which moves behind it.
    QChar Unescape(QStringView text, qsizetype& at) const {
        ++at;
        for (const Escape& escape : Escapes) {
            if (at < text.size() && text[at] == QChar(escape.Letter)) {
                ++at;
                return QChar(escape.Code);
            }
        }
        const bool hexadecimal = at < text.size() && text[at] == u'x';
        at += hexadecimal ? 1 : 0;
        const int base = hexadecimal ? 16 : 8;
        qsizetype count = 0;
        int code = 0;
        for (bool isDigit = true; count < (hexadecimal ? 2 : 3) && at < text.size(); ++count, ++at) {
            const int digit = text.sliced(at, 1).toInt(&isDigit, base);
            if (!isDigit)
                break;
            code = code * base + digit;
        }
        if (count == 0)
            CsfFormats::Refuse(line_, u"an unknown escape sequence"_s);
        return QChar(static_cast<char16_t>(code));
    }

    void EndEntry() {
        const Entry entry = std::exchange(entry_, {});
        current_ = nullptr;
        if (!entry.Source && !entry.Context)
            return;
        if (!entry.Source || !entry.Translation)
            CsfFormats::Refuse(line_, u"an entry without msgid or msgstr ends here"_s);
        if (entry.Context)
            table_.Strings.push_back({entry.Fuzzy || entry.Translation->isEmpty() ? *entry.Source : *entry.Translation,
                                      NameOf(*entry.Context)});
        else if (entry.Source->isEmpty())
            Head(*entry.Translation);
        else
            CsfFormats::Refuse(line_, u"an entry without msgctxt ends here; it would have no name"_s);
    }

    void Head(const QString& text) {
        for (const QStringView field : QStringView(text).tokenize(u'\n')) {
            if (field.startsWith(LanguageField, Qt::CaseInsensitive))
                table_.Language = CsfFormats::LanguageNumber(field.sliced(LanguageField.size()), line_);
        }
    }

    CsfTable table_;
    Entry entry_;
    std::optional<QString>* current_ = nullptr;
    qsizetype line_ = 0;
};

} // namespace

namespace CsfFormats {

QByteArray ToPo(const CsfTable& table) {
    QString head = u"MIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\nContent-Transfer-Encoding: 8bit\n"_s;
    if (const QString code = LanguageCode(table.Language); !code.isEmpty())
        head += u"Language: "_s + code + u'\n';
    head += LanguageField + u' ' + QString::number(table.Language) + u'\n';
    QString po = u"msgid \"\"\n"_s;
    AppendText(po, "msgstr"_L1, head);
    QHash<QString, int> occurrences;
    for (const CsfString& entry : table.Strings) {
        po += u'\n';
        AppendText(po, "msgctxt"_L1, ContextOf(entry.Name, ++occurrences[entry.Name]));
        AppendText(po, "msgid"_L1, entry.Value);
        po += u"msgstr \"\"\n"_s;
    }
    return po.toUtf8();
}

CsfTable FromPo(const QString& text) {
    return Parser().Parse(text);
}

} // namespace CsfFormats
