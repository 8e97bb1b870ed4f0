// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfFormats.h"
#include "csf/exchange/CsfPoText.h"
#include "platform/AnsiCodec.h"
#include "platform/AnsiPage.h"

#include <QByteArrayList>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// How the bytes of a catalogue become text.
enum class Charset { Utf8, Windows1252, Unknown };

/// "CHARSET" is what a template has in place of a name.
Charset CharsetOf(const QByteArray& name) {
    static const QByteArrayList utf8{"UTF-8", "UTF8", "ASCII", "US-ASCII", "CHARSET"};
    static const QByteArrayList windows1252{"WINDOWS-1252", "CP1252", "ISO-8859-1", "ISO8859-1", "LATIN1"};
    const QByteArray upper = name.toUpper();
    return utf8.contains(upper) ? Charset::Utf8 : windows1252.contains(upper) ? Charset::Windows1252 : Charset::Unknown;
}

QString FromWindows1252(const QByteArray& bytes) {
    static const AnsiPage page = Windows1252Page();
    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(),
                           [](char byte) { return QChar(page.at(static_cast<unsigned char>(byte))); });
    return text;
}

bool IsFuzzy(QByteArrayView comment) {
    return comment.startsWith("#,") &&
           std::ranges::any_of(comment.sliced(2).toByteArray().split(','),
                               [](const QByteArray& flag) { return flag.trimmed() == "fuzzy"; });
}

/// Takes a catalogue line by line. Texts are bytes until their entry ends: an escape sequence stands for a byte.
class Reader {
public:
    explicit Reader(QStringList* notes) : notes_(notes) {}

    CsfTable Read(QByteArrayView bytes) {
        if (bytes.startsWith("\xEF\xBB\xBF"))
            bytes = bytes.sliced(3);
        while (!bytes.isEmpty()) {
            const qsizetype lineFeed = bytes.indexOf('\n');
            const qsizetype length = lineFeed < 0 ? bytes.size() : lineFeed;
            ++line_;
            Line(bytes.first(length).trimmed());
            bytes = bytes.sliced(std::min(length + 1, bytes.size()));
        }
        EndEntry();
        return std::move(table_);
    }

private:
    struct Entry {
        qsizetype Line = 0; ///< where it began
        std::optional<QByteArray> Context;
        std::optional<QByteArray> Source;
        std::optional<QByteArray> Translation;
        std::optional<QByteArray> Extra;
        bool Fuzzy = false;
        bool IsMore = false;
        bool IsEmpty = false;    ///< without a translation it is the empty text
        bool IsOptional = false; ///< without a translation it is none
    };

    void Line(QByteArrayView line) {
        if (line.startsWith('"'))
            return Append(line);
        if (line.isEmpty() || line.startsWith('#'))
            return PassOver(line);
        qsizetype length = 0;
        while (length < line.size() && !QByteArrayView(" \t\"").contains(line[length]))
            ++length;
        Begin(line.first(length));
        Append(line.sliced(length).trimmed());
    }

    /// A blank line or a comment.
    void PassOver(QByteArrayView line) {
        if (entry_.Translation)
            EndEntry();
        if (line.startsWith("#~")) // an entry that is out of use, and the flags before it were its own
            entry_.Fuzzy = false;
        else if (IsFuzzy(line))
            entry_.Fuzzy = true;
        else if (line == CsfPo::MoreComment)
            entry_.IsMore = true;
        else if (line == CsfPo::EmptyComment)
            entry_.IsEmpty = true;
        else if (line == CsfPo::SourceOnlyComment)
            entry_.IsOptional = true;
        else if (line.startsWith(CsfPo::ExtraComment))
            ReadExtra(line.sliced(CsfPo::ExtraComment.size()).trimmed());
    }

    /// Other programs' comments of such a beginning have no quoted text.
    void ReadExtra(QByteArrayView quoted) {
        if (!exported_ || !quoted.startsWith('"'))
            return;
        current_ = &entry_.Extra;
        current_->emplace();
        AppendQuoted(quoted);
        current_ = nullptr;
    }

    /// A keyword: what follows belongs to that part of the entry.
    void Begin(QByteArrayView keyword) {
        if (entry_.Translation && (keyword == "msgctxt" || keyword == "msgid"))
            EndEntry();
        std::optional<QByteArray>* const part = keyword == "msgctxt"  ? &entry_.Context
                                                : keyword == "msgid"  ? &entry_.Source
                                                : keyword == "msgstr" ? &entry_.Translation
                                                                      : nullptr;
        if (keyword == "msgid_plural")
            CsfFormats::Refuse(line_, u"a string table has no plural forms"_s);
        if (part == nullptr || part->has_value())
            CsfFormats::Refuse(line_, u"\"%1\" is not expected here"_s.arg(QString::fromUtf8(keyword)));
        if (!entry_.Context && !entry_.Source)
            entry_.Line = line_;
        part->emplace();
        current_ = part;
    }

    /// Appends one quoted text or more to the current part.
    void Append(QByteArrayView line) {
        do
            line = AppendQuoted(line).trimmed();
        while (!line.isEmpty());
    }

    /// Returns what stands behind the closing quote.
    QByteArrayView AppendQuoted(QByteArrayView line) {
        if (current_ == nullptr || !line.startsWith('"'))
            CsfFormats::Refuse(line_, u"a quoted text is expected"_s);
        QByteArray& text = **current_;
        qsizetype at = 1;
        while (at < line.size() && line[at] != '"')
            text += line[at] == '\\' ? Unescape(line, at) : line[at++];
        if (at == line.size())
            CsfFormats::Refuse(line_, u"a quote is not closed"_s);
        return line.sliced(at + 1);
    }

    /// The byte of an escape sequence at `at`, which moves behind it.
    char Unescape(QByteArrayView text, qsizetype& at) const {
        ++at;
        for (const CsfPo::Escape& escape : CsfPo::Escapes) {
            if (at < text.size() && text[at] == escape.Letter) {
                ++at;
                return escape.Code;
            }
        }
        const bool hexadecimal = at < text.size() && text[at] == 'x';
        at += hexadecimal ? 1 : 0;
        const int base = hexadecimal ? 16 : 8;
        qsizetype count = 0;
        int code = 0;
        for (bool isDigit = true; count < (hexadecimal ? 2 : 3) && at < text.size(); ++count, ++at) {
            const int digit = text.sliced(at, 1).toByteArray().toInt(&isDigit, base);
            if (!isDigit)
                break;
            code = code * base + digit;
        }
        if (count == 0)
            CsfFormats::Refuse(line_, u"an unknown escape sequence"_s);
        return static_cast<char>(code);
    }

    void EndEntry() {
        const Entry entry = std::exchange(entry_, {});
        current_ = nullptr;
        if (!entry.Source && !entry.Context && !entry.Translation)
            return;
        if (!entry.Source || !entry.Translation)
            CsfFormats::Refuse(entry.Line, u"an entry without msgid or msgstr"_s);
        if (!entry.Context && entry.Source->isEmpty())
            return Head(*entry.Translation, entry.Line);
        if (!entry.Context)
            CsfFormats::Refuse(entry.Line, u"an entry without msgctxt would have no name"_s);
        const bool translated = !entry.Fuzzy && !entry.Translation->isEmpty();
        if (!translated && exported_ && entry.IsOptional)
            return;
        const QByteArray value = translated                   ? *entry.Translation
                                 : exported_ && entry.IsEmpty ? QByteArray()
                                                              : *entry.Source;
        const QString context = Text(*entry.Context, entry.Line);
        table_.Strings.push_back({Text(value, entry.Line), exported_ ? CsfPo::NameOf(context) : context});
        if (entry.Extra)
            table_.Strings.back().Extra = AnsiCodec::Encode(Text(*entry.Extra, entry.Line));
        table_.Strings.back().IsMore = entry.IsMore;
    }

    [[nodiscard]] QString Text(const QByteArray& bytes, qsizetype line) const {
        if (charset_ == Charset::Utf8 && !QByteArrayView(bytes).isValidUtf8())
            CsfFormats::Refuse(line, u"not UTF-8"_s);
        const QString text = charset_ == Charset::Utf8 ? QString::fromUtf8(bytes) : FromWindows1252(bytes);
        return exported_ ? CsfPo::WithoutPictures(text) : text;
    }

    void Head(const QByteArray& text, qsizetype line) {
        QString code;
        for (const QByteArray& field : text.split('\n')) {
            const QString plain = QString::fromUtf8(field);
            if (plain.startsWith(CsfPo::LanguageField, Qt::CaseInsensitive)) {
                const QStringView number = QStringView(plain).sliced(CsfPo::LanguageField.size());
                table_.Language = CsfFormats::LanguageNumber(number, line);
                exported_ = true;
            }
            if (plain.startsWith("Language:"_L1, Qt::CaseInsensitive))
                code = plain.sliced("Language:"_L1.size()).trimmed();
            const qsizetype name = field.toLower().indexOf("charset=");
            if (name >= 0 && plain.startsWith("Content-Type:"_L1, Qt::CaseInsensitive))
                UseCharset(field.sliced(name + 8).trimmed(), line);
        }
        UseLanguage(code);
    }

    /// Programs for translators give the language by its code: another one than that of the number counts.
    void UseLanguage(const QString& code) {
        if (code.isEmpty() || (exported_ && code == CsfPo::LanguageCode(table_.Language)))
            return;
        if (const auto number = CsfPo::LanguageOf(code))
            table_.Language = *number;
        else if (notes_ != nullptr)
            *notes_ += u"the language \"%1\" has no number that is known: it stays %2"_s.arg(code).arg(table_.Language);
    }

    void UseCharset(const QByteArray& name, qsizetype line) {
        charset_ = CharsetOf(name);
        if (charset_ == Charset::Unknown)
            CsfFormats::Refuse(line,
                               u"the character set %1 is not read; \"msgconv --to-code=UTF-8\" converts the file"_s.arg(
                                   QString::fromUtf8(name)));
    }

    QStringList* notes_;
    CsfTable table_;
    Entry entry_;
    std::optional<QByteArray>* current_ = nullptr;
    Charset charset_ = Charset::Utf8;
    bool exported_ = false; ///< the head is ours: numbers and pictures stand for something
    qsizetype line_ = 0;
};

} // namespace

namespace CsfFormats {

CsfTable FromPo(const QByteArray& bytes, QStringList* notes) {
    return Reader(notes).Read(bytes);
}

} // namespace CsfFormats
