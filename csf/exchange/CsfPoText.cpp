// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfPoText.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t LoweredZero = u'\u2080';
constexpr char16_t LoweredNine = u'\u2089';

struct Language {
    int Number;
    QLatin1StringView Code;
};

constexpr std::array<Language, 4> Languages{{{0, QLatin1StringView("en")},
                                             {2, QLatin1StringView("de")},
                                             {3, QLatin1StringView("fr")},
                                             {8, QLatin1StringView("ko")}}};

struct Picture {
    char16_t Control;
    char16_t Shown;
};

constexpr std::array<Picture, 2> Pictures{{{u'\0', u'\u2400'}, {u'\4', u'\u2404'}}};
constexpr QChar EscapePicture = u'\u241B';

bool IsPicture(QChar letter) {
    return letter == EscapePicture || std::ranges::find(Pictures, letter.unicode(), &Picture::Shown) != Pictures.end();
}

/// The letter itself where it needs none.
QChar PictureOf(QChar letter) {
    const auto* const found = std::ranges::find(Pictures, letter.unicode(), &Picture::Control);
    return found == Pictures.end() ? letter : QChar(found->Shown);
}

QChar ControlOf(QChar picture) {
    const auto* const found = std::ranges::find(Pictures, picture.unicode(), &Picture::Shown);
    return found == Pictures.end() ? picture : QChar(found->Control);
}

bool HasPictureOrControl(const QString& text) {
    return std::ranges::any_of(text, [](QChar letter) { return IsPicture(letter) || PictureOf(letter) != letter; });
}

} // namespace

namespace CsfPo {

QString LanguageCode(int language) {
    const auto* const found = std::ranges::find(Languages, language, &Language::Number);
    return found == Languages.end() ? QString() : QString(found->Code);
}

std::optional<int> LanguageOf(QStringView code) {
    const auto isLetter = [](QChar letter) { return letter.isLetter(); };
    const auto* const end = std::ranges::find_if_not(code, isLetter);
    const QStringView plain = code.first(end - code.begin());
    const auto* const found =
        std::ranges::find_if(Languages, [&](const Language& language) { return plain == language.Code; });
    return found == Languages.end() ? std::nullopt : std::optional(found->Number);
}

bool IsCFormat(const QString& text) {
    // The sizes that gettext accepts before each letter.
    static const QRegularExpression placeholder(
        u"\\G%(?:%|(?:\\d+\\$)?[-+ #0']*(?:\\*(?:\\d+\\$)?|\\d+)?(?:\\.(?:\\*(?:\\d+\\$)?|\\d*))?"
        "(?:(?:hh|h|ll|l|q|j|z|t)?[diouxXn]|[lL]?[eEfFgGaA]|l?[cs]|[CSp]))"_s);
    bool has = false;
    for (qsizetype at = text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', at)) {
        const QRegularExpressionMatch match = placeholder.match(text, at);
        if (!match.hasMatch())
            return false;
        has = has || match.capturedLength() > 2 || text[at + 1] != u'%';
        at = match.capturedEnd();
    }
    return has;
}

QString ContextOf(const QString& name, int occurrence) {
    QString context = name;
    if (occurrence > 1) {
        for (const QChar digit : QString::number(occurrence))
            context += QChar(static_cast<char16_t>(LoweredZero + digit.digitValue()));
    }
    return context;
}

QString NameOf(const QString& context) {
    const auto isLowered = [](QChar letter) { return letter >= QChar(LoweredZero) && letter <= QChar(LoweredNine); };
    qsizetype length = context.size();
    while (length > 0 && isLowered(context[length - 1]))
        --length;
    return context.first(length);
}

QString WithPictures(QString text) {
    if (!HasPictureOrControl(text))
        return text;
    QString shown;
    for (const QChar letter : text) {
        if (IsPicture(letter))
            shown += EscapePicture;
        shown += PictureOf(letter);
    }
    return shown;
}

QString WithoutPictures(QString text) {
    if (std::ranges::none_of(text, IsPicture))
        return text;
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isEscaped = text[i] == EscapePicture && i + 1 < text.size();
        plain += isEscaped ? text[++i] : ControlOf(text[i]);
    }
    return plain;
}

} // namespace CsfPo
