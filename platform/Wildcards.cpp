// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Wildcards.h"

#include "platform/RuntimeError.h"

#include <vector>

namespace {

bool SameLetter(QChar first, QChar second) {
    return first == second || first.toCaseFolded() == second.toCaseFolded();
}

/// What a pattern wants at one place.
struct Wanted {
    enum class Kind { Letter, Any, Digit, OneOf, NoneOf, Text };
    Kind What;
    QStringView Letters; ///< of Letter, OneOf and NoneOf
};

[[noreturn]] void RaiseInvalid(QStringView pattern) {
    throw RuntimeError(ErrorNumber::InvalidPattern, QStringLiteral("%1: not a pattern").arg(pattern));
}

/// Calls `range(first, last)` for each range of a bracket's inside, with the same letter twice for a single one.
template <typename Range>
void ForRanges(QStringView inside, Range range) {
    for (qsizetype at = 0; at < inside.size();) {
        const bool isRange = at + 2 < inside.size() && inside[at + 1] == u'-';
        range(inside[at], inside[isRange ? at + 2 : at]);
        at += isRange ? 3 : 1;
    }
}

bool Holds(QStringView inside, QChar letter) {
    bool found = false;
    ForRanges(inside, [&](QChar first, QChar last) { found = found || (first <= letter && letter <= last); });
    return found;
}

/// Appends what the inside of a bracket stands for.
void AppendBracket(std::vector<Wanted>& places, QStringView inside, QStringView pattern) {
    if (inside.isEmpty())
        return;
    const bool isNot = inside.size() > 1 && inside.front() == u'!';
    const QStringView letters = inside.sliced(isNot ? 1 : 0);
    ForRanges(letters, [&](QChar first, QChar last) {
        if (last < first)
            RaiseInvalid(pattern);
    });
    places.push_back({isNot ? Wanted::Kind::NoneOf : Wanted::Kind::OneOf, letters});
}

std::vector<Wanted> PlacesOf(QStringView pattern) {
    std::vector<Wanted> places;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const QChar letter = pattern[at];
        if (letter == u'[') {
            const qsizetype end = pattern.indexOf(u']', at);
            if (end < 0)
                RaiseInvalid(pattern);
            AppendBracket(places, pattern.sliced(at + 1, end - at - 1), pattern);
            at = end;
            continue;
        }
        const auto kind = letter == u'*'   ? Wanted::Kind::Text
                          : letter == u'?' ? Wanted::Kind::Any
                          : letter == u'#' ? Wanted::Kind::Digit
                                           : Wanted::Kind::Letter;
        places.push_back({kind, pattern.sliced(at, 1)});
    }
    return places;
}

bool Fits(QChar letter, const Wanted& wanted) {
    switch (wanted.What) {
    case Wanted::Kind::Letter:
        return letter == wanted.Letters.front();
    case Wanted::Kind::Any:
        return true;
    case Wanted::Kind::Digit:
        return letter >= u'0' && letter <= u'9';
    case Wanted::Kind::OneOf:
        return Holds(wanted.Letters, letter);
    case Wanted::Kind::NoneOf:
        return !Holds(wanted.Letters, letter);
    case Wanted::Kind::Text:
        break;
    }
    return false;
}

/// Whether `length` letters fit `count` places of a pattern: `isText(place)` tells a place that stands for any text,
/// `fits(letter, place)` whether the letter fits any other place.
template <typename IsText, typename Fits>
bool FitPlaces(qsizetype length, qsizetype count, IsText isText, Fits fits) {
    qsizetype at = 0;
    qsizetype place = 0;
    qsizetype star = -1;
    qsizetype resume = 0;
    while (at < length) {
        if (place < count && isText(place)) {
            star = place++;
            resume = at;
        } else if (place < count && fits(at, place)) {
            ++place;
            ++at;
        } else if (star >= 0) {
            place = star + 1;
            at = ++resume;
        } else {
            return false;
        }
    }
    while (place < count && isText(place))
        ++place;
    return place == count;
}

} // namespace

bool FitsPattern(QStringView name, QStringView pattern) {
    if (pattern.isEmpty() || pattern == u"*.*")
        return true;
    return FitPlaces(
        name.size(), pattern.size(), [&](qsizetype place) { return pattern[place] == u'*'; },
        [&](qsizetype at, qsizetype place) { return pattern[place] == u'?' || SameLetter(pattern[place], name[at]); });
}

bool IsPattern(QStringView text) {
    return text.contains(u'*') || text.contains(u'?');
}

bool IsLike(QStringView text, QStringView pattern) {
    const std::vector<Wanted> places = PlacesOf(pattern);
    const auto wanted = [&](qsizetype place) -> const Wanted& { return places[static_cast<std::size_t>(place)]; };
    return FitPlaces(
        text.size(), static_cast<qsizetype>(places.size()),
        [&](qsizetype place) { return wanted(place).What == Wanted::Kind::Text; },
        [&](qsizetype at, qsizetype place) { return Fits(text[at], wanted(place)); });
}
