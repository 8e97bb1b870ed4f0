// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/options/LossText.h"

#include "core/mTraduction.h"
#include "core/options/GamePage.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qsizetype LoadLength = 4;

/// A stored text may be of any length.
QString Shortened(const QString& text) {
    constexpr qsizetype longest = 60;
    return text.size() <= longest ? text : text.first(longest) + u'…';
}

/// A mode as a person would say it.
QString Named(const QString& mode) {
    if (mode.isEmpty() || mode == u"NoShellMap")
        return GetText(u"ShellMapNone"_s);
    if (mode == u"Random")
        return GetText(u"ShellMapRandom"_s);
    const QString number = mode.sliced(std::min(LoadLength, mode.size()));
    return Shortened(number.isEmpty() ? mode : number);
}

} // namespace

QString LossText::Of(const GamePage& page) {
    const GamePage::Losses losses = page.Replaced();
    QStringList parts;
    if (!losses.Options.isEmpty())
        parts += GetText(u"ReplacesOptions"_s).arg(Shortened(losses.Options.join(u' ')));
    if (!losses.Mod.isEmpty())
        parts += GetText(u"ReplacesMod"_s).arg(Shortened(losses.Mod));
    if (losses.Mode)
        parts +=
            GetText(u"ReplacesShellMap"_s).arg(Named(page.Before().ShellMapMode), Named(page.Choices().ShellMapMode));
    return parts.isEmpty() ? QString() : GetText(u"PageReplaces"_s).arg(parts.join(u"; "_s));
}
