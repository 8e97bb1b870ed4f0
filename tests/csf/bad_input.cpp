// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that are broken in every way: refused or read as told, never a crash, a hang or memory without bound.
#include "tests/csf/Tables.h"

#include "platform/NumberedFiles.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

class CsfBadInput : public TableTest {
protected:
    static QByteArray Sample() {
        return CsfHeader(4, 3) + EntryRecords("GUI:OK", "Yes") + LabelRecord("lost") + EntryRecords("", "") + "123456" +
               EntryRecords("OBJECT:Tank", "T\xE9 %d\n") + StringRecord("second");
    }

    /// Refused with its message, or a table that fits into the bytes.
    void ExpectReadOrRefused(const QByteArray& bytes) {
        host_.Messages.clear();
        if (Read(bytes) == mCSF::Refused) {
            ASSERT_EQ(host_.Messages.size(), 1U);
        } else {
            ASSERT_TRUE(host_.Messages.empty());
            qsizetype length = 24;
            for (const CsfString& entry : mCSF::CsfStrings)
                length += 8 + 2 * entry.Value.size();
            ASSERT_LE(length, bytes.size());
        }
        ASSERT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
    }
};

} // namespace

TEST_F(CsfBadInput, EveryCutOfAFileIsReadOrRefused) {
    const QByteArray sample = Sample();
    for (qsizetype length = 0; length <= sample.size(); ++length)
        ExpectReadOrRefused(sample.first(length));
}

TEST_F(CsfBadInput, TenThousandRandomChangesAreReadOrRefused) {
    std::mt19937 random(2005);
    const auto below = [&](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(bound));
    };
    for (int round = 0; round < 10000; ++round) {
        QByteArray bytes = Sample();
        for (qsizetype changes = below(4) + 1; changes > 0; --changes) {
            const qsizetype at = below(bytes.size());
            switch (below(4)) {
            case 0:
                bytes[at] = static_cast<char>(below(256));
                break;
            case 1:
                bytes.remove(at, below(8) + 1);
                bytes += ' ';
                break;
            case 2:
                bytes.insert(at, QByteArray(below(8) + 1, static_cast<char>(below(256))));
                break;
            default:
                bytes.replace(at, 4, Little(static_cast<quint32>(random())));
                break;
            }
        }
        ExpectReadOrRefused(bytes);
        if (HasFatalFailure())
            FAIL() << "round " << round << ": " << bytes.toPercentEncoding().constData();
    }
}

TEST_F(CsfBadInput, LengthsThatTheFileDoesNotHaveAreRefused) {
    for (const quint32 length : {0xFFFFFFFFU, 0x80000000U, 0x7FFFFFFFU, 0x40000000U, 100U, 2U}) {
        ExpectRefused(CsfHeader(1) + EntryRecords("a", "b") + " LBL" + Little(1) + Little(length) + "x");
        ExpectRefused(CsfHeader(1) + EntryRecords("a", "b") + " RTS" + Little(length) + "x\xFFy");
    }
}

TEST_F(CsfBadInput, ALengthThatWouldLeadBackIsRefused) {
    // Taken as negative numbers these would begin the same record over and over.
    ExpectRefused(CsfHeader(1) + EntryRecords("a", "b") + " LBL" + Little(1) + Little(0xFFFFFFF4) + "name");
    ExpectRefused(CsfHeader(1) + EntryRecords("a", "b") + " RTS" + Little(0xFFFFFFFC) + "name");
}

TEST_F(CsfBadInput, AFileOfUnknownMarksIsRefused) {
    ExpectRefused(CsfHeader(1) + QByteArray(1000000, '?'));
    ExpectRefused(CsfHeader(1) + QByteArray(100000, '\0'));
    ExpectRefused(CsfHeader(1) + QByteArray(" LB").repeated(10000));
}

TEST_F(CsfBadInput, AFolderIsRefused) {
    world_.WriteFile(u"folder\\x"_s, "x");
    EXPECT_EQ(mCSF::ReadCSF(At(u"folder"_s)), mCSF::Refused);
    EXPECT_EQ(host_.Messages.size(), 1U);
}
