// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfFormats.h"
#include "csf/exchange/CsfPoText.h"
#include "csf/exchange/KeyedEntries.h"
#include "platform/AnsiCodec.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void AppendLetter(QString& text, QChar letter) {
    for (const CsfPo::Escape& escape : CsfPo::Escapes) {
        if (letter == QLatin1Char(escape.Code)) {
            text += u'\\';
            text += QLatin1Char(escape.Letter);
            return;
        }
    }
    if (letter < u' ' || letter == QChar(0x7F))
        text += u"\\%1"_s.arg(letter.unicode(), 3, 8, QChar(u'0'));
    else
        text += letter;
}

/// A keyword and its text; a text of several lines begins with an empty one, as gettext writes it.
void AppendText(QString& po, QLatin1StringView keyword, const QString& plain) {
    const QString text = CsfPo::WithPictures(plain);
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

/// A comment with a text on one line.
void AppendQuoted(QString& po, QLatin1StringView comment, const QString& plain) {
    po += comment + " \""_L1;
    for (const QChar letter : CsfPo::WithPictures(plain))
        AppendLetter(po, letter);
    po += u"\"\n"_s;
}

/// Builds a catalogue entry by entry.
class Catalogue {
public:
    explicit Catalogue(int language) {
        QString head = u"MIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\n"_s
                       u"Content-Transfer-Encoding: 8bit\n"_s;
        if (const QString code = CsfPo::LanguageCode(language); !code.isEmpty())
            head += u"Language: "_s + code + u'\n';
        head += CsfPo::LanguageField + u' ' + QString::number(language) + u'\n';
        text_ = u"msgid \"\"\n"_s;
        AppendText(text_, "msgstr"_L1, head);
    }

    /// An entry whose value is its source text.
    void Add(const CsfString& entry) {
        Begin(entry);
        End(entry.Name, entry.Value, {});
    }

    /// An entry that is a translation; `source` is null for one that only the table has.
    void AddTranslation(const CsfString& entry, const CsfString* source) {
        Begin(entry);
        if (source == nullptr)
            text_ += CsfPo::TableOnlyComment + u'\n';
        const QString& from = source == nullptr ? entry.Value : source->Value;
        if (entry.Value.isEmpty() && !from.isEmpty())
            text_ += CsfPo::EmptyComment + u'\n';
        Refer(entry.Name, from, entry.Value);
        End(entry.Name, from, entry.Value);
    }

    /// An entry that is not translated yet.
    void AddSource(const CsfString& source) {
        text_ += u'\n' + CsfPo::SourceOnlyComment + u'\n';
        Refer(source.Name, source.Value, {});
        End(source.Name, source.Value, {});
    }

    [[nodiscard]] QByteArray Bytes() const { return text_.toUtf8(); }

private:
    void Begin(const CsfString& entry) {
        text_ += u'\n';
        if (entry.IsMore)
            text_ += CsfPo::MoreComment + u'\n';
        if (entry.Extra)
            AppendQuoted(text_, CsfPo::ExtraComment, AnsiCodec::Decode(*entry.Extra));
    }

    /// A reference ends at a blank, so that names with one have none.
    void Refer(const QString& name, const QString& from, const QString& to) {
        if (!name.isEmpty() && std::ranges::all_of(name, [](QChar letter) { return letter > u' '; }))
            text_ += u"#: "_s + name + u'\n';
        if (CsfPo::IsCFormat(from) && (to.isEmpty() || !to.contains(u'%') || CsfPo::IsCFormat(to)))
            text_ += u"#, c-format\n"_s;
    }

    void End(const QString& name, const QString& from, const QString& to) {
        AppendText(text_, "msgctxt"_L1, CsfPo::ContextOf(name, ++occurrences_[name]));
        AppendText(text_, "msgid"_L1, from);
        AppendText(text_, "msgstr"_L1, to);
    }

    QString text_;
    QHash<QString, int> occurrences_;
};

} // namespace

namespace CsfFormats {

QByteArray ToPo(const CsfTable& table, const CsfTable* source) {
    Catalogue catalogue(table.Language);
    if (source == nullptr) {
        for (const CsfString& entry : table.Strings)
            catalogue.Add(entry);
        return catalogue.Bytes();
    }
    const KeyedEntries entries(table, Qt::CaseInsensitive);
    const KeyedEntries sources(*source, Qt::CaseInsensitive);
    for (std::size_t place = 0; place < table.Strings.size(); ++place)
        catalogue.AddTranslation(table.Strings[place], sources.Find(entries.Keys()[place]));
    for (const KeyedEntries::Key& key : sources.Keys())
        if (!entries.PlaceOf(key))
            catalogue.AddSource(*sources.Find(key));
    return catalogue.Bytes();
}

} // namespace CsfFormats
