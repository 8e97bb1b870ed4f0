// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The ways in which entries are packed and archives are laid out.
#include "tests/install/zip_fixture.h"

#include "tests/install/ZipSamples.h"

using namespace Qt::StringLiterals;
using ZipBytes::Part;

namespace {

class ZipMethods : public ZipReadTest {
protected:
    static QByteArray Lines() { return QByteArray("the same line again and again\n").repeated(40); }

    void ExpectExtracted(const QString& name, const QByteArray& content) {
        EXPECT_EQ(Extract(name), 0) << zip_.GetZipInfo().toStdString();
        EXPECT_EQ(Got(name), content);
    }
};

} // namespace

TEST_F(ZipMethods, StoredAndDeflatedEntriesAreRead) {
    Open({{.Name = "stored", .Content = Lines()},
          {.Name = "deflated", .Content = Lines(), .Method = 8},
          {.Name = "nothing"},
          {.Name = "nothing deflated", .Method = 8}});
    ExpectExtracted(u"stored"_s, Lines());
    ExpectExtracted(u"deflated"_s, Lines());
    ExpectExtracted(u"nothing"_s, "");
    ExpectExtracted(u"nothing deflated"_s, "");
}

TEST_F(ZipMethods, EntriesWithADescriptorAreRead) {
    Open({{.Name = "a", .Content = Lines(), .Method = 8, .HasDescriptor = true},
          {.Name = "b", .Content = "stored", .HasDescriptor = true},
          {.Name = "c", .Content = "1"}});
    ExpectExtracted(u"a"_s, Lines());
    ExpectExtracted(u"b"_s, "stored");
    ExpectExtracted(u"c"_s, "1");
}

TEST_F(ZipMethods, NumbersOfZip64AreRead) {
    Open(
        {{.Name = "a", .Content = Lines(), .Method = 8, .IsWide = true}, {.Name = "b", .Content = "1", .IsWide = true}},
        {.Comment = "wide", .IsWide = true});
    EXPECT_EQ(zip_.Comm, u"wide"_s);
    EXPECT_EQ(zip_.Size(1), Lines().size());
    ExpectExtracted(u"a"_s, Lines());
    ExpectExtracted(u"b"_s, "1");
}

TEST_F(ZipMethods, AnExtraFieldOfTheLocalHeaderIsPassedOver) {
    Open({{.Name = "a", .Content = "12345", .LocalExtra = ZipBytes::Field(0x5455, "123456789")}});
    ExpectExtracted(u"a"_s, "12345");
}

TEST_F(ZipMethods, WhatStandsBeforeAnArchiveOrBehindItIsPassedOver) {
    const std::vector<Part> parts{{.Name = "a", .Content = "12345"}, {.Name = "b", .Content = "6"}};
    Open(parts, {.Before = QByteArray(1000, 'p')});
    ExpectExtracted(u"b"_s, "6");
    Open(ZipBytes::Archive(parts, {.Comment = "comment"}) + "and more");
    EXPECT_EQ(zip_.Comm, u"comment"_s);
    ExpectExtracted(u"a"_s, "12345");
}

TEST_F(ZipMethods, AnArchiveInAnArchiveIsAnEntry) {
    const QByteArray inner = ZipBytes::Archive({{.Name = "inner", .Content = "1"}});
    Open({{.Name = "in.zip", .Content = inner}}, {.Comment = inner});
    EXPECT_EQ(zip_.Col, QStringList{u"in.zip"_s}) << "nor is one in the comment";
    ExpectExtracted(u"in.zip"_s, inner);
    Open({{.Name = "a", .Content = "1"}}, {.Comment = ZipBytes::Archive({}) + "more"});
    EXPECT_EQ(zip_.Col, QStringList{u"a"_s});
}

TEST_F(ZipMethods, OtherMethodsAreReadAsFarAsTheLibraryHasThem) {
    Open(ZipSamples::Sample(ZipSamples::Bzip2));
    const qint32 result = Extract(u"b.txt"_s);
    if (result == 0) {
        EXPECT_EQ(Got(u"b.txt"_s), Lines());
    } else {
        EXPECT_EQ(result, ZipResult::NotSupported);
        EXPECT_TRUE(zip_.GetZipInfo().contains(u"method 12"_s));
    }
}

TEST_F(ZipMethods, AMethodThatTheLibraryLacksFailsThatEntryOnly) {
    Open({{.Name = "packed", .Content = "1", .Method = 6}, {.Name = "plain", .Content = "2"}});
    EXPECT_EQ(Extract(u"packed"_s), ZipResult::NotSupported);
    EXPECT_EQ(zip_.GetZipInfo(), u"packed: is packed by method 6, which is not supported"_s);
    ExpectExtracted(u"plain"_s, "2");
    EXPECT_EQ(Names(), QStringList{u"plain"_s});
    Open(ZipSamples::Sample(ZipSamples::Lzma));
    EXPECT_EQ(Extract(u"b.txt"_s), ZipResult::NotSupported);
}

TEST_F(ZipMethods, PatchesMasksAndStrongEncryptionAreRefused) {
    for (const int flags : {0x20, 0x2000, 0x41}) {
        Open({{.Name = "a", .Content = "1", .Flags = flags}});
        EXPECT_EQ(Extract(u"a"_s), ZipResult::NotSupported) << flags;
    }
}

TEST_F(ZipMethods, EncryptionThatIsToldWrongIsRefused) {
    const QByteArray good("\2\0AE\3\0\0", 7);
    const std::vector<QByteArray> fields{{},
                                         good.chopped(1),
                                         good + '\0',
                                         QByteArray("\3\0AE\3\0\0", 7),
                                         QByteArray("\2\0XE\3\0\0", 7),
                                         QByteArray("\2\0AE\4\0\0", 7)};
    for (const QByteArray& field : fields) {
        Open({{.Name = "a",
               .Content = QByteArray(50, 'x'),
               .Method = 99,
               .Flags = 1,
               .Extra = field.isEmpty() ? field : ZipBytes::Field(0x9901, field)},
              {.Name = "b", .Content = "1"}});
        EXPECT_EQ(Extract(u"a"_s), ZipResult::NotSupported) << field.toHex().constData();
        ExpectExtracted(u"b"_s, "1");
    }
}
