// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/NameOrder.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

char16_t Capital(QChar letter) {
    const char16_t unit = letter.unicode();
    if (unit >= 0x80)
        return letter.toUpper().unicode();
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - (u'a' - u'A')) : unit;
}

/// A name and the capitals of its first letters as numbers, which mostly decide about its place.
class Keyed {
public:
    explicit Keyed(QString name) : name_(std::move(name)) {
        for (std::size_t at = 0; at < Letters; ++at) {
            quint64& part = begin_.at(at / LettersOfPart);
            const auto place = static_cast<qsizetype>(at);
            part = part << 16U | (place < name_.size() ? Capital(name_[place]) : 0U);
        }
    }

    bool operator<(const Keyed& other) const {
        if (begin_ != other.begin_)
            return begin_ < other.begin_;
        const auto order =
            std::lexicographical_compare_three_way(name_.begin(), name_.end(), other.name_.begin(), other.name_.end(),
                                                   [](QChar one, QChar two) { return Capital(one) <=> Capital(two); });
        return order == 0 ? name_ < other.name_ : order < 0;
    }

    QString Take() { return std::move(name_); }

private:
    static constexpr std::size_t LettersOfPart = 4;
    static constexpr std::size_t Letters = 4 * LettersOfPart;

    std::array<quint64, Letters / LettersOfPart> begin_{};
    QString name_;
};

} // namespace

void NameOrder::Sort(QStringList& names) {
    std::vector<Keyed> keyed;
    keyed.reserve(static_cast<std::size_t>(names.size()));
    for (QString& name : names)
        keyed.emplace_back(std::move(name));
    std::sort(keyed.begin(), keyed.end());
    std::ranges::transform(keyed, names.begin(), &Keyed::Take);
}
