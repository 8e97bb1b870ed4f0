// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/replay/Replay.h"

#include "tests/personal/replay_bytes.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

Replay MatchRead(const QByteArray& header) {
    Replay replay;
    Replays::ReadMatch(header, replay);
    return replay;
}

QString VersionRead(const QByteArray& header) {
    Replay replay;
    Replays::ReadVersion(header, replay);
    return replay.Version;
}

QString MapRead(const QByteArray& map) {
    return MatchRead(ReplayBytes(MatchOf(map, "X:X:X:X:X:X:X:X:"))).Map;
}

int PlayersRead(const QByteArray& slotEntry) {
    return MatchRead(ReplayBytes(MatchOf("m/m", slotEntry))).Players;
}

int NumberOfMatch(const QByteArray& header) {
    return NumberRaisedBy([&] { MatchRead(header); });
}

/// A header of full length that ends with these bytes.
QByteArray EndingIn(const QByteArray& end, const QByteArray& begin = "GENREP") {
    return begin + QByteArray(Replays::HeaderLength - begin.size() - end.size(), '.') + end;
}

} // namespace

TEST(ReplayNames, TheLastThreeLettersOrTheLastElevenTellAReplay) {
    for (const QString& name : {u"a.rep"_s, u"A.REP"_s, u"a.Rep"_s, u"a.BfME2Replay"_s, u"a.bfme2replay"_s, u"rep"_s})
        EXPECT_TRUE(Replays::IsFileName(name)) << name.toStdString();
    for (const QString& name : {u""_s, u"ep"_s, u"a.rep1"_s, u"a.replay"_s, u"a.rep "_s, u"BfME2Replays"_s})
        EXPECT_FALSE(Replays::IsFileName(name)) << name.toStdString();
}

TEST(ReplayNames, ANameNeedsNoDotBeforeItsLastLetters) {
    EXPECT_TRUE(Replays::IsFileName(u"NOTES.PREP"_s));
    EXPECT_EQ(Replays::NameOf(u"NOTES.PREP"_s), u"NOTES."_s);
}

TEST(ReplayNames, FourCharactersAreCutOrTwelve) {
    EXPECT_EQ(Replays::NameOf(u"Last Replay.rep"_s), u"Last Replay"_s);
    EXPECT_EQ(Replays::NameOf(u"Last Replay.BfME2Replay"_s), u"Last Replay"_s);
    EXPECT_EQ(Replays::NameOf(u".rep"_s), QString());
    EXPECT_EQ(Replays::NameOf(u"xBFME2REPLAY"_s), QString());
}

TEST(ReplayNames, ANameThatIsTooShortToBeCutIsError5) {
    EXPECT_EQ(NumberRaisedBy([] { Replays::NameOf(u"rep"_s); }), 5);
    EXPECT_EQ(NumberRaisedBy([] { Replays::NameOf(u"BfME2Replay"_s); }), 5);
}

TEST(ReplayNames, TheLastGameHasAnExtensionOfItsOwn) {
    for (GameIndex game = 0; game < 3; ++game)
        EXPECT_EQ(Replays::Extension(game), u".rep"_s);
    EXPECT_EQ(Replays::Extension(3), u".BfME2Replay"_s);
}

TEST(ReplayHeader, ThreeMarksTellAReplayExactlyAsGiven) {
    for (const QByteArray mark : {"GENREP", "BFMEREPL", "BFME2RPL"})
        EXPECT_TRUE(Replays::HasMark(mark + "rest")) << mark.constData();
    for (const QByteArray mark : {"", "GENRE", "genrep", "BFMEREP", "BFME2RP", " GENREP", "BFME2REPL"})
        EXPECT_FALSE(Replays::HasMark(mark + ".")) << mark.constData();
}

TEST(ReplayHeader, ARealHeaderGivesMapSlotsPlayersAndVersion) {
    const QByteArray header = SampleReplay();
    const Replay replay = MatchRead(header);
    EXPECT_EQ(replay.Map, u"Alpine assault"_s);
    EXPECT_EQ(replay.Slots, u"HPlayer,0,0,TT,1,8,1,0,1:X:X:X:X:X:X:X:"_s);
    EXPECT_EQ(replay.Players, 1);
    EXPECT_EQ(VersionRead(header), u"1.0"_s);
}

TEST(ReplayHeader, TheMapIsWhatStandsBehindTheFirstSlash) {
    EXPECT_EQ(MapRead("077maps/tournament desert"), u"Tournament desert"_s);
    EXPECT_EQ(MapRead("data/maps/official/map wor rhun/map wor rhun.map"),
              u"Maps/official/map wor rhun/map wor rhun.map"_s);
    EXPECT_EQ(MapRead("maps/"), QString());
}

TEST(ReplayHeader, AMapWithoutASlashKeepsAllOfItsText) {
    EXPECT_EQ(MapRead("desert fury"), u"Desert fury"_s);
    EXPECT_EQ(MapRead(""), QString());
}

TEST(ReplayHeader, AMapInCapitalsKeepsOnlyItsFirstOne) {
    EXPECT_EQ(MapRead("maps/TOURNAMENT DESERT"), u"Tournament desert"_s);
    EXPECT_EQ(MapRead("maps/\xC9T\xC9"), u"Été"_s);
    EXPECT_EQ(MapRead("maps/\xE9T\xC9"), u"Été"_s);
    EXPECT_EQ(MapRead("maps/\xDF\x80"), u"ß€"_s);
}

TEST(ReplayHeader, TheFirstMThatAnEqualsSignFollowsIsTheMap) {
    EXPECT_EQ(MatchRead("GENREP MM=x/One;M=x/two;S=X:X:X:X:X:X:X:X:;").Map, u"One"_s);
    EXPECT_EQ(MatchRead("GENREP m=x/zero;M;=M=one;;S=X:X:X:X:X:X:X:X:;").Map, u"One"_s);
}

TEST(ReplayHeader, TheSlotsNeedASemicolonBeforeThem) {
    EXPECT_EQ(MatchRead("GENREP S=no;M=m;MS=no;S=X:X:X:X:X:X:X:yes;S=no;").Slots, u"X:X:X:X:X:X:X:yes"_s);
    EXPECT_EQ(NumberOfMatch("GENREP S=X:X:X:X:X:X:X:X:;M=m; S=X:X:X:X:X:X:X:X:;"), 5);
}

TEST(ReplayHeader, EverySlotThatIsNotClosedIsAPlayerObserversIncluded) {
    EXPECT_EQ(PlayersRead("HAlice,1:CE,-1:O:X:X:X:X:X:"), 3);
    EXPECT_EQ(PlayersRead("X:X:X:X:X:X:X:X:"), 0);
    EXPECT_EQ(PlayersRead("x:X :::X:X:X:X"), 4) << "only the letter alone is closed";
    EXPECT_EQ(PlayersRead("X:X:X:X:X:X:X:X:O:O:O:"), 0) << "the first eight count";
}

TEST(ReplayHeader, FewerThanEightSlotsAreError9AndLeaveTheSlots) {
    Replay replay;
    EXPECT_EQ(NumberRaisedBy([&] { Replays::ReadMatch(ReplayBytes(MatchOf("a/b", "X:X:X:X:X:X:X")), replay); }), 9);
    EXPECT_EQ(replay.Slots, u"X:X:X:X:X:X:X"_s);
    EXPECT_EQ(replay.Map, u"B"_s);
    EXPECT_EQ(NumberOfMatch(ReplayBytes(MatchOf("a/b", ""))), 9);
    EXPECT_EQ(NumberOfMatch(ReplayBytes(MatchOf("a/b", "X:X:X:X:X:X:X:"))), 0) << "the eighth is empty, and there";
}

TEST(ReplayHeader, WithoutSlotsTheSearchRunsOffTheTextWithError5) {
    Replay replay;
    EXPECT_EQ(NumberRaisedBy([&] { Replays::ReadMatch("GENREP M=maps/desert;MS=1;", replay); }), 5);
    EXPECT_EQ(replay.Map, u"Desert"_s) << "what stands before it was read";
}

TEST(ReplayHeader, WithoutAMapTheSearchThatWouldNeverEndEndsAsThatForTheSlots) {
    EXPECT_EQ(NumberOfMatch("GENREP MC=1;m=x;S=X:X:X:X:X:X:X:X:;"), 5);
    EXPECT_EQ(NumberOfMatch("GENREP"), 5);
    EXPECT_EQ(NumberOfMatch(EndingIn("M")), 5) << "the letter stands last";
}

TEST(ReplayHeader, AnEntryWithoutItsSemicolonIsError5) {
    EXPECT_EQ(NumberOfMatch("GENREP M=maps/desert"), 5);
    EXPECT_EQ(NumberOfMatch("GENREP M=maps/desert;S=X:X:X:X:X:X:X:X:"), 5);
    EXPECT_EQ(NumberOfMatch(EndingIn("M=")), 5);
    EXPECT_EQ(NumberOfMatch(EndingIn(";S=", "GENREP M=m")), 5);
}

TEST(ReplayHeader, NothingBehindTheFirst2048BytesIsRead) {
    const QByteArray slots8 = "X:X:X:X:X:X:X:X";
    EXPECT_EQ(NumberOfMatch(EndingIn(";S=" + slots8 + ";", "GENREP M=m")), 0);
    EXPECT_EQ(NumberOfMatch(EndingIn(";S=" + slots8, "GENREP M=m") + ";"), 5);
    EXPECT_EQ(NumberRaisedBy([] { VersionRead(EndingIn(Wide("Version 1").chopped(2)) + Bytes("\0\0")); }), 9);
}

TEST(ReplayHeader, TheVersionIsWhatStandsBehindItsWordAndABlank) {
    EXPECT_EQ(VersionRead(ReplayBytes({}, "Version 1.04")), u"1.04"_s);
    EXPECT_EQ(VersionRead(ReplayBytes({}, "Version")), u"Aug 30 2003 20:55:29"_s) << "beyond its end";
    EXPECT_EQ(VersionRead("GENREP" + Bytes("V\0e\0r\0s\0i\0o\0n???\xE9?\x80?\0")), u"\u00E9\u20AC"_s);
}

TEST(ReplayHeader, WithoutTheVersionsWordWhatStandsAtByte15IsShown) {
    EXPECT_EQ(VersionRead("GENREP12345678" + QByteArray("9A.B.C") + Bytes("\0\0\0")), u"ABC"_s);
    EXPECT_EQ(VersionRead("GENREP"), QString()) << "zeros stand there";
    EXPECT_EQ(VersionRead("GENREP         x.y.z.Version 1.0"), u"xyzVrin10"_s) << "the word in 8 bits is none";
}

TEST(ReplayHeader, AVersionThatRunsToTheEndIsError9) {
    EXPECT_EQ(NumberRaisedBy([] { VersionRead("GENREP" + QByteArray(3000, '1')); }), 9);
    const QByteArray word = Bytes("V\0e\0r\0s\0i\0o\0n");
    EXPECT_EQ(NumberRaisedBy([&] { VersionRead(EndingIn(word)); }), 9) << "its text would begin behind the end";
    EXPECT_EQ(NumberRaisedBy([&] { VersionRead(EndingIn(word + "...")); }), 9);
    EXPECT_EQ(VersionRead(EndingIn(word + "..." + Bytes("\0"))), QString()) << "a zero at the last byte";
    EXPECT_EQ(NumberRaisedBy([&] { VersionRead(EndingIn(word + "...1" + Bytes("\0"))); }), 9)
        << "the last zero is a high byte";
}

TEST(ReplayHeader, TheDateIsTheSystemsShortOne) {
    const QDateTime time(QDate(2003, 8, 30), QTime(20, 55));
    EXPECT_EQ(Replays::Dates().Of(time), QLocale::system().toString(time.date(), QLocale::ShortFormat));
    EXPECT_FALSE(Replays::Dates().Of(time).isEmpty());
}
