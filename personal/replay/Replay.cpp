// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/replay/Replay.h"

#include "platform/AnsiCodec.h"
#include "platform/Clock.h"
#include "platform/RuntimeError.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;
using Replays::CountedSlots;

namespace {

constexpr GameIndex SecondMiddleEarth = 3;

/// "Version" in 16-bit characters, without the last one's zero byte.
constexpr QByteArrayView VersionWord("V\0e\0r\0s\0i\0o\0n", 13);
/// From its beginning to the text behind it and a blank.
constexpr qsizetype VersionWordLength = 16;
/// Where a header without the word is read from.
constexpr qsizetype VersionWithoutWord = 15;

QByteArrayView NewExtension() {
    return "bfme2replay";
}

bool HasNewExtension(const QString& fileName) {
    return fileName.endsWith(QLatin1StringView(NewExtension()), Qt::CaseInsensitive);
}

[[noreturn]] void RaiseInvalid(const QString& reason) {
    throw RuntimeError(ErrorNumber::InvalidCall, reason);
}

/// What counts of a header. Zeros that fill one up hold no entry, so that they need not stand there to be searched.
QByteArrayView Searched(QByteArrayView header) {
    return header.first(std::min(header.size(), Replays::HeaderLength));
}

qsizetype Find(QByteArrayView bytes, QByteArrayView wanted) {
    const auto view = [](QByteArrayView each) {
        return std::string_view(each.data(), static_cast<std::size_t>(each.size()));
    };
    const std::size_t found = view(bytes).find(view(wanted));
    return found == std::string_view::npos ? -1 : static_cast<qsizetype>(found);
}

/// What stands behind a key, up to the first ";".
QByteArrayView EntryBehind(QByteArrayView header, QByteArrayView key, const QString& name) {
    const qsizetype found = Find(header, key);
    // A search for the map that finds nothing would begin anew without end; it ends as the one for the slots does.
    // This is meant.
    if (found < 0)
        RaiseInvalid(u"the replay has no entry of the %1"_s.arg(name));
    const QByteArrayView entry = header.sliced(found + key.size());
    const qsizetype end = entry.indexOf(';');
    if (end < 0)
        RaiseInvalid(u"the entry of the %1 has no end"_s.arg(name));
    return entry.first(end);
}

/// The name behind the first "/", its first letter a capital and all others small.
QString MapName(QByteArrayView entry) {
    // Without a "/" all of it is kept, and of several folders only the first goes. This is meant.
    QString name = AnsiCodec::Decode(entry.sliced(entry.indexOf('/') + 1));
    std::ranges::transform(name, name.begin(), [](QChar letter) {
        return letter < u'\x80' && (letter < u'A' || letter > u'Z') ? letter : letter.toLower();
    });
    if (!name.isEmpty())
        name[0] = name[0].toUpper();
    return name;
}

int OpenSlots(QByteArrayView slotEntry) {
    int players = 0;
    for (int slot = 0; slot < CountedSlots; ++slot) {
        const qsizetype end = slotEntry.indexOf(':');
        if (end < 0 && slot + 1 < CountedSlots)
            throw RuntimeError(ErrorNumber::Subscript, u"the replay has fewer than 8 slots"_s);
        players += slotEntry.first(end < 0 ? slotEntry.size() : end) == "X" ? 0 : 1;
        slotEntry = slotEntry.sliced(end + 1);
    }
    return players;
}

} // namespace

bool Replays::IsFileName(const QString& fileName) {
    // The letters count and not the dot before them. This is meant.
    return fileName.endsWith("rep"_L1, Qt::CaseInsensitive) || HasNewExtension(fileName);
}

QString Replays::NameOf(const QString& fileName) {
    const qsizetype extension = HasNewExtension(fileName) ? NewExtension().size() + 1 : 4;
    if (fileName.size() < extension)
        RaiseInvalid(u"the name is too short for a replay's"_s);
    return fileName.chopped(extension);
}

QString Replays::Extension(GameIndex game) {
    return game == SecondMiddleEarth ? u".BfME2Replay"_s : u".rep"_s;
}

bool Replays::HasMark(const QByteArray& header) {
    return header.startsWith("GENREP") || header.startsWith("BFMEREPL") || header.startsWith("BFME2RPL");
}

QString Replays::Dates::Of(const QDateTime& time) {
    const QDate day = Clock::LocalDay(time);
    QString& text = texts_[day.toJulianDay()];
    if (text.isEmpty())
        text = locale_.toString(day, QLocale::ShortFormat);
    return text;
}

void Replays::ReadMatch(const QByteArray& header, Replay& replay) {
    const QByteArrayView searched = Searched(header);
    replay.Map = MapName(EntryBehind(searched, "M=", u"map"_s));
    const QByteArrayView slotEntry = EntryBehind(searched, ";S=", u"slots"_s);
    replay.Slots = AnsiCodec::Decode(slotEntry);
    replay.Players = OpenSlots(slotEntry);
}

void Replays::ReadVersion(const QByteArray& header, Replay& replay) {
    const QByteArrayView searched = Searched(header);
    const qsizetype word = Find(searched, VersionWord);
    // Without the word, what stands there is shown. This is meant.
    qsizetype at = word < 0 ? VersionWithoutWord : word + VersionWordLength;
    std::array<char, HeaderLength / 2> text{};
    qsizetype length = 0;
    for (; at < searched.size() && searched[at] != '\0'; at += 2)
        text.at(static_cast<std::size_t>(length++)) = searched[at];
    replay.Version = AnsiCodec::Decode({text.data(), length});
    if (at >= HeaderLength)
        throw RuntimeError(ErrorNumber::Subscript, u"the version of the replay has no end"_s);
}
