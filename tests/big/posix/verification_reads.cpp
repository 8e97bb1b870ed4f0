// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Verifying reads no byte of an archive once an entry, however many entries claim it.
#include "big/format/Verification.h"

#include "platform/File.h"
#include "platform/Files.h"
#include "tests/big/Archives.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class VerificationReads : public ArchiveTest {
protected:
    /// Bytes that this process has read from files so far.
    static qint64 BytesRead() {
        QFile counters(u"/proc/self/io"_s);
        EXPECT_TRUE(counters.open(QIODevice::ReadOnly));
        const QByteArrayList words = counters.readAll().simplified().split(' ');
        const qsizetype name = words.indexOf("rchar:");
        EXPECT_GE(name, 0);
        return words.value(name + 1).toLongLong();
    }
};

} // namespace

TEST_F(VerificationReads, BytesThatManyEntriesShareAreReadOnce) {
    constexpr int count = 32768;
    QByteArray archive = HeaderOf("BIGF", count, 0);
    for (int i = 0; i < count; ++i)
        archive += Record(16, 0x7FFFFFF0, QByteArray::number(i));
    archive += "L225";
    const QString path = Put(u"x.big"_s, archive);
    ASSERT_TRUE(mBIG::ReadBigFile(path));
    const qint64 before = BytesRead();
    EXPECT_GT(Verification::Verify(mBIG::Open(), File::Open(path, File::Access::Read)).size(), 3U * count);
    const qint64 read = BytesRead() - before;
    EXPECT_GE(read, Files::FileLength(path)) << "the counter counts";
    EXPECT_LT(read, 3 * Files::FileLength(path)) << "the directory's numbers, and all bytes once";
}
