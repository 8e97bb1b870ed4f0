// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfFormats.h"
#include "csf/exchange/CsfPoText.h"
#include "platform/AnsiCodec.h"

#include <QHash>

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

/// The code that the name of a gettext language has; none for the numbers without a known language.
QString LanguageCode(int language) {
    static const QHash<int, QString> codes{{0, u"en"_s}, {2, u"de"_s}, {3, u"fr"_s}, {8, u"ko"_s}};
    return codes.value(language);
}

} // namespace

namespace CsfFormats {

QByteArray ToPo(const CsfTable& table) {
    QString head = u"MIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\nContent-Transfer-Encoding: 8bit\n"_s;
    if (const QString code = LanguageCode(table.Language); !code.isEmpty())
        head += u"Language: "_s + code + u'\n';
    head += CsfPo::LanguageField + u' ' + QString::number(table.Language) + u'\n';
    QString po = u"msgid \"\"\n"_s;
    AppendText(po, "msgstr"_L1, head);
    QHash<QString, int> occurrences;
    for (const CsfString& entry : table.Strings) {
        po += u'\n';
        if (entry.IsMore)
            po += CsfPo::MoreComment + u'\n';
        if (entry.Extra)
            AppendQuoted(po, CsfPo::ExtraComment, AnsiCodec::Decode(*entry.Extra));
        AppendText(po, "msgctxt"_L1, CsfPo::ContextOf(entry.Name, ++occurrences[entry.Name]));
        AppendText(po, "msgid"_L1, entry.Value);
        po += u"msgstr \"\"\n"_s;
    }
    return po.toUtf8();
}

} // namespace CsfFormats
