// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the bytes of a name become text.
#include "tests/install/zip_fixture.h"

#include "platform/AnsiCodec.h"

#include <QSet>

using namespace Qt::StringLiterals;
using ZipBytes::Part;
using ZipBytes::UnicodeName;

namespace {

constexpr int Utf8Flag = 0x800;
constexpr int Unix = 3;

class ZipNamesRead : public ZipReadTest {
protected:
    QString NameOf(const Part& part) {
        Open({part});
        return zip_.GetFile(1);
    }
};

} // namespace

TEST_F(ZipNamesRead, WhatIsFlaggedIsUtf8OnEveryHost) {
    for (const int host : {0, Unix, 10, 19})
        EXPECT_EQ(NameOf({.Name = "\xD0\x96.map", .Flags = Utf8Flag, .Host = host, .Attributes = 32}), u"Ж.map"_s);
}

TEST_F(ZipNamesRead, AFieldThatTellsTheNameInUtf8IsTaken) {
    EXPECT_EQ(
        NameOf({.Name = "?.map", .Extra = ZipBytes::Field(0x5455, "12345") + UnicodeName("?.map", "\xD0\x96.map")}),
        u"Ж.map"_s);
}

TEST_F(ZipNamesRead, SuchAFieldThatBelongsToAnotherNameOrIsBrokenIsNot) {
    EXPECT_EQ(NameOf({.Name = "a.map", .Extra = UnicodeName("b.map", "\xD0\x96.map")}), u"a.map"_s);
    EXPECT_EQ(NameOf({.Name = "a.map", .Extra = UnicodeName("a.map", "\xD0.map")}), u"a.map"_s);
    EXPECT_EQ(NameOf({.Name = "a.map", .Extra = UnicodeName("a.map", "")}), u"a.map"_s);
    EXPECT_EQ(NameOf({.Name = "a.map", .Extra = UnicodeName("a.map", "x").chopped(1)}), u"a.map"_s);
    QByteArray second = UnicodeName("a.map", "x");
    second[4] = 2;
    EXPECT_EQ(NameOf({.Name = "a.map", .Extra = second}), u"a.map"_s);
}

TEST_F(ZipNamesRead, WhatFatMadeWithoutAttributesIsInTheAnsiCodePage) {
    EXPECT_EQ(NameOf({.Name = "\xC9t\xE9 \x81.map"}), AnsiCodec::Decode("\xC9t\xE9 \x81.map"));
    EXPECT_EQ(NameOf({.Name = "\xD0\x96.map"}), AnsiCodec::Decode("\xD0\x96.map")) << "also where it could be UTF-8";
}

TEST_F(ZipNamesRead, WhatOtherDosHostsMadeIsInCodePage437) {
    EXPECT_EQ(NameOf({.Name = "\x90t\x82 \xE1\xFF.map", .Attributes = 32}), u"Été ß\u00A0.map"_s);
    for (const int host : {6, 10, 11, 14})
        EXPECT_EQ(NameOf({.Name = "\x90t\x82.map", .Host = host}), u"Été.map"_s) << host;
}

TEST_F(ZipNamesRead, WhatUnixMadeIsUtf8WhereThatIsValid) {
    EXPECT_EQ(NameOf({.Name = "\xD0\x96.map", .Host = Unix}), u"Ж.map"_s);
    EXPECT_EQ(NameOf({.Name = "\xEF\xBB\xBF"
                              "a",
                      .Host = Unix}),
              u"\uFEFFa"_s)
        << "a mark belongs to the name";
    EXPECT_EQ(NameOf({.Name = "\xC9t\xE9.map", .Host = Unix}), AnsiCodec::Decode("\xC9t\xE9.map"));
    EXPECT_EQ(NameOf({.Name = "\xC0\xAF", .Host = Unix}), AnsiCodec::Decode("\xC0\xAF")) << "too long a form";
}

TEST_F(ZipNamesRead, WhatIsFlaggedAndNoUtf8IsTakenByteForByteAndCostsNoOtherEntry) {
    Open({{.Name = "\xD0.map", .Flags = Utf8Flag, .Host = Unix}, {.Name = "good", .Content = "1"}});
    EXPECT_EQ(zip_.Col, (QStringList{AnsiCodec::Decode("\xD0.map"), u"good"_s}));
    EXPECT_EQ(Extract(u"good"_s), 0);
}

TEST_F(ZipNamesRead, BackslashesOfFatBecomeSlashesWhereThereIsNoSlash) {
    EXPECT_EQ(NameOf({.Name = "Maps\\One\\One.map"}), u"Maps/One/One.map"_s);
    EXPECT_EQ(NameOf({.Name = "Maps\\One\\One.map", .Attributes = 32}), u"Maps/One/One.map"_s);
    EXPECT_EQ(NameOf({.Name = "Maps/One\\One.map"}), u"Maps/One\\One.map"_s);
    EXPECT_EQ(NameOf({.Name = "Maps\\One.map", .Host = Unix}), u"Maps\\One.map"_s);
    EXPECT_EQ(NameOf({.Name = "Maps\\One.map", .Host = 10}), u"Maps\\One.map"_s);
}

TEST_F(ZipNamesRead, AnEntryIsExtractedByTheNameThatIsGiven) {
    Open({{.Name = "Maps\\\xC9.map", .Content = "map"}});
    EXPECT_EQ(Extract(u"Maps\\\u00C9.map"_s), ZipResult::NoEntry);
    EXPECT_EQ(Extract(zip_.GetFile(1), true), 0);
    EXPECT_EQ(Got(u"Maps\\"_s + AnsiCodec::Decode("\xC9.map")), "map");
}

TEST_F(ZipNamesRead, NoTwoBytesOfOneKindBecomeOneLetter) {
    std::vector<Part> parts;
    for (const quint32 attributes : {0U, 32U}) {
        parts.clear();
        for (int code = 1; code < 256; ++code) {
            if (code != '/' && code != '\\')
                parts.push_back({.Name = QByteArray(1, static_cast<char>(code)), .Attributes = attributes});
        }
        Open(parts);
        EXPECT_EQ(QSet<QString>(zip_.Col.begin(), zip_.Col.end()).size(), 253);
    }
}

TEST_F(ZipNamesRead, TwoNamesNeverBecomeOne) {
    const QString one = AnsiCodec::Decode("\x81");
    Open({{.Name = "a/b", .Content = "1"},
          {.Name = "a\\b", .Content = "2"},
          {.Name = "\xC3\xBC", .Content = "3", .Flags = Utf8Flag},
          {.Name = "\x81", .Content = "4", .Attributes = 32},
          {.Name = one.toUtf8(), .Content = "5", .Flags = Utf8Flag}});
    EXPECT_EQ(zip_.Col, (QStringList{u"a/b"_s, u"a\\b"_s, u"ü"_s, one, AnsiCodec::Decode(one.toUtf8())}));
    for (int entry = 1; entry <= 5; ++entry) {
        const QString folder = u"out%1"_s.arg(entry);
        EXPECT_EQ(zip_.Decompress(At(folder), zip_.GetFile(entry), true), 0);
        const QString path = folder + u'\\' + zip_.GetFile(entry).replace(u'/', u'\\');
        EXPECT_EQ(BytesOf(path), QByteArray::number(entry));
    }
}

TEST_F(ZipNamesRead, NamesOfOneUtf8FieldStayApart) {
    Open({{.Name = "x", .Content = "1", .Extra = UnicodeName("x", "same")},
          {.Name = "y", .Content = "2", .Extra = UnicodeName("y", "same")},
          {.Name = "k", .Content = "3", .Extra = UnicodeName("k", "t")},
          {.Name = "t", .Content = "4"},
          {.Name = "y", .Content = "5", .Extra = UnicodeName("y", "same")}});
    EXPECT_EQ(zip_.Col, (QStringList{u"same"_s, u"y"_s, u"t"_s, u"t\uFFFD"_s, u"y"_s})) << "one name twice stays one";
    EXPECT_EQ(Extract(u"y"_s), 0);
    EXPECT_EQ(Got(u"y"_s), "2");
}

TEST_F(ZipNamesRead, ANameIsListedUpToAZeroAndTo256Characters) {
    Open({{.Name = QByteArray("a.map\0.exe", 10), .Content = "1"},
          {.Name = QByteArray(300, 'n'), .Content = "2"},
          {.Name = QByteArray(256, 'm'), .Content = "3"}});
    EXPECT_EQ(zip_.Col, (QStringList{u"a.map"_s, u"n"_s.repeated(256), u"m"_s.repeated(256)}));
    EXPECT_EQ(Extract(u"a.map"_s), ZipResult::NoEntry) << "no entry is named exactly so";
    EXPECT_EQ(Extract(u"n"_s.repeated(256)), ZipResult::NoEntry);
    EXPECT_EQ(Extract(u"n"_s.repeated(300)), ZipResult::NoTarget) << "too long for a file";
}

TEST_F(ZipNamesRead, TwoHundredLettersOfAnyKindAreOneName) {
    const QString name = u"Ж"_s.repeated(100) + u"ü"_s.repeated(96) + u".map"_s;
    Open({{.Name = name.toUtf8(), .Content = "1", .Flags = Utf8Flag}});
    EXPECT_EQ(zip_.GetFile(1), name);
}

TEST_F(ZipNamesRead, ALetterOfTwoUnitsIsNotCutInTwo) {
    const QString name = u"n"_s.repeated(255) + u"\U0001F600"_s;
    Open({{.Name = name.toUtf8(), .Flags = Utf8Flag}});
    EXPECT_EQ(zip_.GetFile(1), u"n"_s.repeated(255));
}
