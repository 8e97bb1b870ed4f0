// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Records that are shown without a table are those that a table would hold.
#include "tests/big/Archives.h"
#include "tests/support/Printing.h"

#include "platform/File.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;
using mBIG::BigEntries;

namespace {

class ListRecords : public ArchiveTest {
protected:
    static QString Told(const BigEntry& entry) {
        return u"%1 at %2, %3 bytes"_s.arg(entry.Name).arg(entry.Offset).arg(entry.Size);
    }

    /// The lines of an archive's records; "refused" for one that is not listed.
    static QStringList ListOf(const QString& path) {
        QStringList lines;
        const bool listed = Ignoring([&] {
            Archives::List(File::Open(path, File::Access::Read), 0,
                           [&](const BigEntry& entry, qint32) { lines += Told(entry); });
        });
        EXPECT_TRUE(listed || lines.isEmpty());
        return listed ? lines : QStringList{u"refused"_s};
    }

    /// The same by way of the table.
    static QStringList TableOf(const QString& path) {
        if (!mBIG::ReadBigFile(path))
            return {u"refused"_s};
        QStringList lines;
        for (const BigEntry& entry : BigEntries)
            lines += Told(entry);
        return lines;
    }
};

} // namespace

TEST_F(ListRecords, TheTableStaysAndTheVariantIsKnownBeforeTheFirstRecord) {
    BigEntries = {{u"mine"_s, 1, 2, false, false, {}}};
    mBIG::BigVersion = 0;
    const QString path = Put(u"in.big"_s, HeaderOf("BIG4", 2, 44) + Record(44, 5, "a") + Record(49, 2, "b") + "L219");
    std::vector<int> versions;
    Archives::List(File::Open(path, File::Access::Read), 0,
                   [&](const BigEntry&, qint32 version) { versions.push_back(version); });
    EXPECT_EQ(versions, (std::vector<int>{2, 2}));
    EXPECT_EQ(ListOf(path), (QStringList{u"a at 44, 5 bytes"_s, u"b at 49, 2 bytes"_s}));
    ASSERT_EQ(BigEntries.size(), 1U);
    EXPECT_EQ(BigEntries[0].Name, u"mine"_s);
}

TEST_F(ListRecords, AnArchiveCutOffAtAnyByteIsListedAsItIsRead) {
    const QByteArray whole =
        HeaderOf("BIGF", 3, 60) + Record(60, 5, "a.ini") + Record(0, 0, "") + Record(0x90000001, 2, "\xE9") + "L231";
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        const QString path = Put(u"in.big"_s, whole.first(length));
        EXPECT_EQ(ListOf(path), TableOf(path)) << length;
    }
}

TEST_F(ListRecords, ALongDirectoryIsReadPieceByPieceWithoutLosingAByte) {
    QByteArray archive = HeaderOf("BIGF", 5001, 60);
    for (quint32 i = 0; i < 5000; ++i)
        archive += Record(i + 1, i, QByteArray(i % 60, 'n') + QByteArray::number(i));
    archive += Record(7, 8, QByteArray(300'000, 'x')) + "L231";
    const QString path = Put(u"in.big"_s, archive);
    const QStringList lines = ListOf(path);
    ASSERT_EQ(lines.size(), 5001);
    for (int i = 0; i < 5000; ++i)
        ASSERT_EQ(lines[i], u"%1%2 at %3, %2 bytes"_s.arg(QString(i % 60, u'n')).arg(i).arg(i + 1));
    EXPECT_EQ(lines.last(), QString(300'000, u'x') + u" at 7, 8 bytes"_s);
    EXPECT_EQ(TableOf(path), lines);
    EXPECT_EQ(mBIG::BigVersion, 1);
}

TEST_F(ListRecords, WhatIsRaisedWhileARecordIsShownEndsTheListAndClosesTheArchive) {
    const QString path = Put(u"in.big"_s, HeaderOf("BIGF", 2, 44) + Record(44, 5, "a") + Record(49, 2, "b") + "L225");
    int shown = 0;
    const auto fail = [&](const BigEntry&, qint32) {
        ++shown;
        throw RuntimeError(ErrorNumber::PathFileAccess, u"full"_s);
    };
    EXPECT_THROW(Archives::List(File::Open(path, File::Access::Read), 0, fail), RuntimeError);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(ListOf(path).size(), 2);
}
