// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The games' own text form: a label on a line of its own, its text in quotes, and END. Comments begin with "//". A text
// may go over several lines, which are its line breaks then.

#include "csf/exchange/CsfFormats.h"
#include "platform/CodePage.h"
#include "platform/RuntimeError.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView Utf8Mark("\xEF\xBB\xBF");
constexpr int Utf8Page = 65001;

void RequirePage(int page) {
    if (!CodePage::Decode(page, {}))
        throw RuntimeError(ErrorNumber::InvalidCall, u"the system has no code page %1"_s.arg(page));
}

bool IsBlank(QChar letter) {
    return letter == u' ' || letter == u'\t' || letter == u'\r' || letter == u'\n';
}

/// Takes a text apart into words and quoted texts.
class Scanner {
public:
    explicit Scanner(const QString& text) : text_(text) {}

    [[nodiscard]] qsizetype Line() const { return line_; }

    /// False at the end of the text.
    bool FindNext() {
        while (at_ < text_.size()) {
            if (text_.sliced(at_).startsWith(u"//"_s))
                PassLine();
            else if (IsBlank(text_[at_]))
                Pass();
            else
                return true;
        }
        return false;
    }

    [[nodiscard]] bool IsAtQuote() const { return text_[at_] == u'"'; }

    /// The rest of the line up to a comment, without the blanks behind it: a label may hold blanks.
    QString Word() {
        const qsizetype begin = at_;
        while (at_ < text_.size() && text_[at_] != u'\n' && !text_.sliced(at_).startsWith(u"//"_s))
            Pass();
        return text_.sliced(begin, at_ - begin).trimmed().toString();
    }

    QString Quoted() {
        const qsizetype begin = line_;
        QString value;
        for (Pass(); at_ < text_.size() && text_[at_] != u'"'; Pass()) {
            if (text_[at_] == u'\\' && at_ + 1 < text_.size())
                value += Escaped();
            else if (text_[at_] != u'\r')
                value += text_[at_];
        }
        if (at_ >= text_.size())
            CsfFormats::Refuse(begin, u"a quote is not closed"_s);
        Pass();
        return value;
    }

private:
    void Pass() { line_ += text_[at_++] == u'\n' ? 1 : 0; }

    void PassLine() {
        while (at_ < text_.size() && text_[at_] != u'\n')
            Pass();
    }

    /// Leaves the scanner on the last letter of the escape.
    QString Escaped() {
        const QChar mark = text_[at_ + 1];
        if (mark == u'n' || mark == u'"' || mark == u'\\') {
            Pass();
            return mark == u'n' ? u"\n"_s : QString(mark);
        }
        return QString(text_[at_]);
    }

    QStringView text_;
    qsizetype at_ = 0;
    qsizetype line_ = 1;
};

QString Quoted(const QString& value) {
    return u'"' + QString(value).replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'"', u"\\\""_s) + u'"';
}

} // namespace

namespace CsfFormats {

QByteArray ToStr(const CsfTable& table, int page) {
    RequirePage(page);
    QString text;
    for (auto entry = table.Strings.begin(); entry != table.Strings.end(); ++entry) {
        if (!entry->IsMore)
            text += entry->Name + u"\r\n"_s;
        text += Quoted(entry->Value) + u"\r\n"_s;
        const auto next = entry + 1;
        if (next == table.Strings.end() || !next->IsMore)
            text += u"END\r\n\r\n"_s;
    }
    const auto bytes = CodePage::Encode(page, text);
    return bytes && page != Utf8Page ? *bytes : Utf8Mark.toByteArray() + text.toUtf8();
}

CsfTable FromStr(const QByteArray& bytes, int page) {
    RequirePage(page);
    const bool isUtf8 = bytes.startsWith(Utf8Mark);
    const QString text =
        isUtf8 ? QString::fromUtf8(bytes.sliced(Utf8Mark.size())) : CodePage::Decode(page, bytes).value_or(QString());
    Scanner scanner(text);
    CsfTable table;
    while (scanner.FindNext()) {
        const qsizetype line = scanner.Line();
        if (scanner.IsAtQuote())
            Refuse(line, u"a text without a label"_s);
        const QString name = scanner.Word();
        bool hasValue = false;
        while (scanner.FindNext() && scanner.IsAtQuote()) {
            table.Strings.push_back({scanner.Quoted(), name});
            table.Strings.back().IsMore = std::exchange(hasValue, true);
        }
        if (!scanner.FindNext() || scanner.Word().compare(u"END"_s, Qt::CaseInsensitive) != 0)
            Refuse(line, u"%1: no END"_s.arg(name));
    }
    return table;
}

} // namespace CsfFormats
