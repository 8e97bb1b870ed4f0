// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfFormats.h"
#include "platform/AnsiCodec.h"

#include <QStringList>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView LanguageHead("language ");

void AppendField(QString& line, const QString& text, QChar separator, bool isQuoted = false) {
    const auto needsQuotes = [separator](QChar letter) {
        return letter == separator || letter == u'"' || letter == u'\r' || letter == u'\n';
    };
    const bool plain = !isQuoted && std::ranges::none_of(text, needsQuotes);
    line += plain ? text : u'"' + QString(text).replace(u'"', u"\"\""_s) + u'"';
}

struct Field {
    QString Text;
    bool IsQuoted = false;

    [[nodiscard]] bool IsNothing() const { return Text.isEmpty() && !IsQuoted; }
};

using Record = std::vector<Field>;

/// Takes records one by one; a record's last line end may be missing.
class Parser {
public:
    Parser(QStringView text, QChar separator) : text_(text), separator_(separator) {}

    [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }

    /// The line on which the last record began.
    [[nodiscard]] qsizetype Line() const { return recordLine_; }

    /// How many fields the last record had, those of nothing too.
    [[nodiscard]] std::size_t Count() const { return count_; }

    /// The next record without the fields of nothing at its end.
    Record Next() {
        recordLine_ = line_;
        Record fields;
        do
            fields.push_back(text_.sliced(at_).startsWith(u'"') ? Quoted() : Plain());
        while (Take(separator_));
        const bool carriageReturn = Take(u'\r');
        if (!Take(u'\n') && !carriageReturn && !AtEnd())
            CsfFormats::Refuse(line_, u"text behind a closing quote"_s);
        ++line_;
        count_ = fields.size();
        while (!fields.empty() && fields.back().IsNothing())
            fields.pop_back();
        return fields;
    }

private:
    bool Take(QChar letter) {
        const bool there = !AtEnd() && text_[at_] == letter;
        at_ += there ? 1 : 0;
        return there;
    }

    Field Plain() {
        const qsizetype from = at_;
        while (!AtEnd() && text_[at_] != separator_ && text_[at_] != u'\r' && text_[at_] != u'\n')
            ++at_;
        return {text_.sliced(from, at_ - from).toString(), false};
    }

    Field Quoted() {
        Field field{{}, true};
        do {
            const qsizetype from = at_ + 1;
            at_ = text_.indexOf(u'"', from);
            if (at_ < 0)
                CsfFormats::Refuse(recordLine_, u"a quote is not closed"_s);
            // Behind the first part the opening quote is the second of a pair, which stands for one.
            field.Text += text_.sliced(from, at_ - from);
            line_ += text_.sliced(from, at_ - from).count(u'\n');
            ++at_;
            if (!AtEnd() && text_[at_] == u'"')
                field.Text += u'"';
        } while (!AtEnd() && text_[at_] == u'"');
        return field;
    }

    QStringView text_;
    QChar separator_;
    qsizetype at_ = 0;
    qsizetype line_ = 1;
    qsizetype recordLine_ = 1;
    std::size_t count_ = 0;
};

bool IsName(const Record& head) {
    return !head.empty() && head[0].Text.trimmed().compare(u"name"_s, Qt::CaseInsensitive) == 0;
}

/// The one by which the first line begins with the column of the names.
QChar SeparatorOf(const QString& text) {
    for (const QChar separator : {u',', u';', u'\t'}) {
        const qsizetype end = text.indexOf(u'\n');
        Parser parser(QStringView(text).first(end < 0 ? text.size() : end), separator);
        if (!parser.AtEnd() && !text.startsWith(u'"') && IsName(parser.Next()))
            return separator;
        if (text.startsWith(u"\"name\""_s + separator, Qt::CaseInsensitive))
            return separator;
    }
    return u',';
}

/// What the head tells of the columns.
struct Columns {
    int Language = 0;
    std::size_t Extra = 0; ///< the place of extra data; 0 for none
    std::size_t Count = 2;
};

Columns ReadHead(const Record& head, QStringList* notes) {
    constexpr std::size_t firstOptional = 2;
    if (!IsName(head) || head.size() < firstOptional)
        CsfFormats::Refuse(1, u"the head is not \"name,value\" or \"name,language\" and a number"_s);
    Columns columns;
    columns.Count = head.size();
    if (head[1].Text.startsWith(LanguageHead, Qt::CaseInsensitive))
        columns.Language = CsfFormats::LanguageNumber(QStringView(head[1].Text).sliced(LanguageHead.size()), 1);
    for (std::size_t place = firstOptional; place < head.size(); ++place) {
        if (head[place].Text.compare(u"extra"_s, Qt::CaseInsensitive) == 0)
            columns.Extra = place;
        else if (notes != nullptr)
            notes->append(u"the column \"%1\" is left out"_s.arg(head[place].Text));
    }
    return columns;
}

} // namespace

namespace CsfFormats {

QByteArray ToCsv(const CsfTable& table, QChar separator) {
    const bool hasExtra =
        std::ranges::any_of(table.Strings, [](const CsfString& entry) { return entry.Extra.has_value(); });
    QString text = u"name"_s + separator + LanguageHead + QString::number(table.Language);
    text += hasExtra ? separator + u"extra\r\n"_s : u"\r\n"_s;
    for (const CsfString& entry : table.Strings) {
        const bool isAllEmpty = entry.Name.isEmpty() && entry.Value.isEmpty() && !entry.Extra;
        AppendField(text, entry.Name, separator, isAllEmpty); // in quotes it is no blank row
        text += separator;
        AppendField(text, entry.Value, separator);
        if (entry.Extra) {
            text += separator;
            AppendField(text, AnsiCodec::Decode(*entry.Extra), separator, entry.Extra->isEmpty());
        }
        text += u"\r\n"_s;
    }
    return "\xEF\xBB\xBF" + text.toUtf8(); // by the mark spreadsheets know what it is
}

CsfTable FromCsv(const QString& text, QStringList* notes) {
    Parser parser(text, SeparatorOf(text));
    const Columns columns = ReadHead(parser.AtEnd() ? Record() : parser.Next(), notes);
    CsfTable table{columns.Language, {}};
    int blankRows = 0;
    while (!parser.AtEnd()) {
        Record fields = parser.Next();
        if (fields.empty()) {
            ++blankRows;
            continue;
        }
        if (parser.Count() < 2 || fields.size() > columns.Count)
            Refuse(parser.Line(), u"%1 fields, not %2"_s.arg(parser.Count()).arg(columns.Count));
        fields.resize(columns.Count);
        table.Strings.push_back({fields[1].Text, fields[0].Text});
        if (columns.Extra > 0 && !fields[columns.Extra].IsNothing())
            table.Strings.back().Extra = AnsiCodec::Encode(fields[columns.Extra].Text);
    }
    if (blankRows > 0 && notes != nullptr)
        notes->append(u"%1 blank rows are passed over"_s.arg(blankRows));
    return table;
}

} // namespace CsfFormats
