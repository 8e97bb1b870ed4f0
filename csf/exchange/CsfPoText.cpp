// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/exchange/CsfPoText.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t LoweredZero = u'\u2080';
constexpr char16_t LoweredNine = u'\u2089';

struct Picture {
    char16_t Control;
    char16_t Shown;
};

constexpr std::array<Picture, 2> Pictures{{{u'\0', u'\u2400'}, {u'\4', u'\u2404'}}};

} // namespace

namespace CsfPo {

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
    for (const Picture& picture : Pictures)
        text.replace(QChar(picture.Control), QChar(picture.Shown));
    return text;
}

QString WithoutPictures(QString text) {
    for (const Picture& picture : Pictures)
        text.replace(QChar(picture.Shown), QChar(picture.Control));
    return text;
}

} // namespace CsfPo
