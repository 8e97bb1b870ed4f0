// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a mere visit to a game's page would replace, and how it is kept.

#include "core/options/GamePage.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LoadLength = 4;
constexpr qsizetype DigitsLength = 3;

/// A mode as what the page takes it for: empty, "Random", or "Load" and a number of at least three digits.
QString Meaning(const QString& mode) {
    if (mode == u"NoShellMap")
        return {};
    if (mode.isEmpty() || mode == u"Random")
        return mode;
    return u"Load"_s + mode.sliced(std::min(LoadLength, mode.size())).rightJustified(DigitsLength, u'0');
}

/// The words of a command line, as they stand there. A blank between quotes parts none.
std::vector<QStringView> WordsOf(const QString& text) {
    std::vector<QStringView> words;
    const QStringView all(text);
    bool quoted = false;
    qsizetype begin = 0;
    for (qsizetype at = 0; at <= all.size(); ++at) {
        if (at < all.size() && all[at] == u'"')
            quoted = !quoted;
        if (at < all.size() && (all[at] != u' ' || quoted))
            continue;
        if (at > begin)
            words.push_back(all.sliced(begin, at - begin));
        begin = at + 1;
    }
    return words;
}

bool Holds(const QString& text, const QString& word) {
    const std::vector<QStringView> words = WordsOf(text);
    return std::ranges::find(words, QStringView(word)) != words.end();
}

/// Takes a word out wherever it stands, with the blanks before it.
void TakeOut(const QString& word, QString& text) {
    QString rest;
    const QChar* from = text.cbegin();
    for (const QStringView& found : WordsOf(text)) {
        if (found != word)
            rest.append(from, found.cend() - from);
        from = found.cend();
    }
    text = rest.append(from, text.cend() - from);
}

bool IsPartOf(const QStringList& words, const QString& name) {
    return std::ranges::any_of(words, [&](const QString& word) { return word.contains(name); });
}

} // namespace

GamePage::Losses GamePage::Replaced() const {
    const GameChoices choices = Choices();
    Losses losses;
    if (!keptOptions_) {
        for (const QStringView& word : WordsOf(stored_.StartupOptions))
            losses.Options += word.toString();
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
    keptOptions_ = stored_.StartupOptions;
    for (Option& option : Options)
        option.Checked = option.Checked && (Holds(*keptOptions_, u'-' + option.Name) || !IsPartOf(words, option.Name));
}

// Only the words that are checked otherwise than they stand there change.
QString GamePage::KeptOptions() const {
    QString text = *keptOptions_;
    for (const Option& option : Options) {
        const QString word = u'-' + option.Name;
        if (!option.Checked)
            TakeOut(word, text);
        else if (!Holds(text, word))
            text += u' ' + word;
    }
    return text;
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
