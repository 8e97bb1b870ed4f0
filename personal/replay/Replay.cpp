// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/replay/Replay.h"

#include "platform/AnsiCodec.h"
#include "platform/RuntimeError.h"

#include <QByteArrayView>
#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr GameIndex SecondMiddleEarth = 3;
constexpr int CountedSlots = 8;

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
    return fileName.right(NewExtension().size()).toLower() == QLatin1StringView(NewExtension());
}

[[noreturn]] void RaiseInvalid(const QString& reason) {
    throw RuntimeError(ErrorNumber::InvalidCall, reason);
}

/// What stands behind a key, up to the first ";".
QByteArrayView EntryBehind(QByteArrayView header, QByteArrayView key, const QString& name) {
    const qsizetype found = header.indexOf(key);
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
    std::ranges::transform(name, name.begin(), [](QChar letter) { return letter.toLower(); });
    if (!name.isEmpty())
        name[0] = name[0].toUpper();
    return name;
}

int OpenSlots(const QString& slotEntry) {
    const QStringList slotTexts = slotEntry.split(u':');
    if (slotTexts.size() < CountedSlots)
        throw RuntimeError(ErrorNumber::Subscript, u"the replay has fewer than 8 slots"_s);
    return static_cast<int>(std::count_if(slotTexts.begin(), slotTexts.begin() + CountedSlots,
                                          [](const QString& slot) { return slot != u'X'; }));
}

QByteArray Filled(const QByteArray& header) {
    return header.leftJustified(Replays::HeaderLength, '\0', true);
}

} // namespace

bool Replays::IsFileName(const QString& fileName) {
    // The letters count and not the dot before them. This is meant.
    return fileName.right(3).toLower() == "rep"_L1 || HasNewExtension(fileName);
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

QString Replays::DateText(const QDateTime& modified) {
    return QLocale::system().toString(modified.date(), QLocale::ShortFormat);
}

void Replays::ReadMatch(const QByteArray& header, Replay& replay) {
    const QByteArray filled = Filled(header);
    replay.Map = MapName(EntryBehind(filled, "M=", u"map"_s));
    replay.Slots = AnsiCodec::Decode(EntryBehind(filled, ";S=", u"slots"_s));
    replay.Players = OpenSlots(replay.Slots);
}

void Replays::ReadVersion(const QByteArray& header, Replay& replay) {
    const QByteArray filled = Filled(header);
    const qsizetype word = filled.indexOf(VersionWord);
    // Without the word, what stands there is shown. This is meant.
    qsizetype at = word < 0 ? VersionWithoutWord : word + VersionWordLength;
    QByteArray text;
    for (; at < HeaderLength && filled[at] != '\0'; at += 2)
        text += filled[at];
    replay.Version = AnsiCodec::Decode(text);
    if (at >= HeaderLength)
        throw RuntimeError(ErrorNumber::Subscript, u"the version of the replay has no end"_s);
}
