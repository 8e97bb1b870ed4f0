// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a mere visit to a game's page would replace, and how it is kept.

#include "core/options/GamePage.h"

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LoadLength = 4;
constexpr qsizetype DigitsLength = 3;

/// A mode as what it means to a game: empty, "Random", or "Load" and a number of at least three digits.
QString Meaning(const QString& mode) {
    if (mode == u"NoShellMap")
        return {};
    if (mode.isEmpty() || mode == u"Random")
        return mode;
    return u"Load"_s + mode.sliced(std::min(LoadLength, mode.size())).rightJustified(DigitsLength, u'0');
}

bool IsPartOf(const QStringList& words, const QString& name) {
    return std::ranges::any_of(words, [&](const QString& word) { return word.contains(name); });
}

} // namespace

GamePage::Losses GamePage::Replaced() const {
    const GameChoices choices = Choices();
    Losses losses;
    if (keptOptions_.isEmpty()) {
        losses.Options = stored_.StartupOptions.split(u' ', Qt::SkipEmptyParts);
        for (const Option& option : Options)
            losses.Options.removeAll(u'-' + option.Name);
    }
    if (!modTouched_ && stored_.LoadMod.compare(choices.LoadMod, Qt::CaseInsensitive) != 0)
        losses.Mod = stored_.LoadMod;
    losses.Mode = !modeTouched_ && Meaning(stored_.ShellMapMode) != Meaning(choices.ShellMapMode);
    return losses;
}

void GamePage::KeepStored() {
    const Losses losses = Replaced();
    if (!losses.Options.isEmpty())
        KeepOptions(losses.Options);
    if (!losses.Mod.isEmpty())
        KeepMod();
    if (losses.Mode)
        KeepMode();
}

// An option that was checked for being a part of one of these words is not stored.
void GamePage::KeepOptions(const QStringList& words) {
    const QStringList stored = stored_.StartupOptions.split(u' ', Qt::SkipEmptyParts);
    for (Option& option : Options)
        option.Checked = option.Checked && (stored.contains(u'-' + option.Name) || !IsPartOf(words, option.Name));
    keptOptions_ = words.join(u' ');
}

void GamePage::KeepMod() {
    keptMod_ = stored_.LoadMod;
    const auto isStored = [&](const QString& name) { return name.compare(*keptMod_, Qt::CaseInsensitive) == 0; };
    const auto found = std::ranges::find_if(ModBigFiles, isStored);
    if (found == ModBigFiles.end())
        return;
    Mod = static_cast<int>(found - ModBigFiles.begin());
    LoadsMod = true;
}

void GamePage::KeepMode() {
    const QString meant = Meaning(stored_.ShellMapMode);
    keptMode_ = stored_.ShellMapMode;
    if (ShellMaps.isEmpty())
        return;
    if (meant.isEmpty() || meant == u"Random") {
        Choice = meant.isEmpty() ? ShellMapChoice::None : ShellMapChoice::Random;
        return;
    }
    const QString begin = meant.sliced(LoadLength) + u" - "_s;
    const auto found = std::ranges::find_if(ShellMaps, [&](const QString& shown) { return shown.startsWith(begin); });
    Choice = ShellMapChoice::Load;
    ShellMap = found == ShellMaps.end() ? -1 : static_cast<int>(found - ShellMaps.begin());
}
