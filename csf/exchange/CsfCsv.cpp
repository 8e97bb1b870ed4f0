// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfFormats.h"
#include "platform/AnsiCodec.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView LanguageHead("language ");

void AppendField(QString& line, const QString& text) {
    const bool plain = std::ranges::none_of(
        text, [](QChar letter) { return letter == u',' || letter == u'"' || letter == u'\r' || letter == u'\n'; });
    line += plain ? text : u'"' + QString(text).replace(u'"', u"\"\""_s) + u'"';
}

/// Takes records one by one; a record's last line end may be missing.
class Parser {
public:
    explicit Parser(QStringView text) : text_(text) {}

    [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }

    /// The line on which the last record began.
    [[nodiscard]] qsizetype Line() const { return recordLine_; }

    QStringList Record() {
        recordLine_ = line_;
        QStringList fields;
        do
            fields += text_.sliced(at_).startsWith(u'"') ? Quoted() : Plain();
        while (Take(u','));
        const bool carriageReturn = Take(u'\r');
        if (!Take(u'\n') && !carriageReturn && !AtEnd())
            CsfFormats::Refuse(line_, u"text behind a closing quote"_s);
        ++line_;
        return fields;
    }

private:
    bool Take(QChar letter) {
        const bool there = !AtEnd() && text_[at_] == letter;
        at_ += there ? 1 : 0;
        return there;
    }

    QString Plain() {
        const qsizetype from = at_;
        while (!AtEnd() && text_[at_] != u',' && text_[at_] != u'\r' && text_[at_] != u'\n')
            ++at_;
        return text_.sliced(from, at_ - from).toString();
    }

    QString Quoted() {
        QString field;
        do {
            const qsizetype from = at_ + 1;
            at_ = text_.indexOf(u'"', from);
            if (at_ < 0)
                CsfFormats::Refuse(recordLine_, u"a quote is not closed"_s);
            // Behind the first part the opening quote is the second of a pair, which stands for one.
            field += text_.sliced(from, at_ - from);
            line_ += text_.sliced(from, at_ - from).count(u'\n');
            ++at_;
            if (!AtEnd() && text_[at_] == u'"')
                field += u'"';
        } while (!AtEnd() && text_[at_] == u'"');
        return field;
    }

    QStringView text_;
    qsizetype at_ = 0;
    qsizetype line_ = 1;
    qsizetype recordLine_ = 1;
};

} // namespace

namespace CsfFormats {

QByteArray ToCsv(const CsfTable& table) {
    const bool hasExtra =
        std::ranges::any_of(table.Strings, [](const CsfString& entry) { return entry.Extra.has_value(); });
    QString text = u"name,"_s + LanguageHead + QString::number(table.Language);
    text += hasExtra ? u",extra\r\n"_s : u"\r\n"_s;
    for (const CsfString& entry : table.Strings) {
        AppendField(text, entry.Name);
        text += u',';
        AppendField(text, entry.Value);
        if (entry.Extra) { // a row without has two fields
            text += u',';
            AppendField(text, AnsiCodec::Decode(*entry.Extra));
        }
        text += u"\r\n"_s;
    }
    return text.toUtf8();
}

CsfTable FromCsv(const QString& text) {
    Parser parser(text);
    const QStringList head = parser.AtEnd() ? QStringList() : parser.Record();
    const bool hasExtra = head.size() == 3 && head[2] == u"extra"_s;
    if ((head.size() != 2 && !hasExtra) || head[0] != u"name"_s)
        Refuse(1, u"the head is not \"name,value\" or \"name,language\" and a number"_s);
    CsfTable table;
    if (head[1].startsWith(LanguageHead))
        table.Language = LanguageNumber(QStringView(head[1]).sliced(LanguageHead.size()), 1);
    while (!parser.AtEnd()) {
        const QStringList fields = parser.Record();
        if (fields == QStringList{QString()}) // a blank line
            continue;
        if (fields.size() != 2 && !(hasExtra && fields.size() == 3))
            Refuse(parser.Line(), u"%1 fields, not 2"_s.arg(fields.size()));
        table.Strings.push_back({fields[1], fields[0]});
        if (fields.size() == 3)
            table.Strings.back().Extra = AnsiCodec::Encode(fields[2]);
    }
    return table;
}

} // namespace CsfFormats
