// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Entries that are unpacked ahead of who extracts them: what comes out, and what fails, is the same.
#include "install/zip/ZipAhead.h"

#include "Places.h"
#include "tests/install/ZipSamples.h"
#include "tests/install/zip_fixture.h"
#include "tests/support/ScriptedHost.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;
using ZipBytes::Part;

namespace {

class ZipAheadTest : public ZipReadTest {
protected:
    /// An archive, of which entries are unpacked ahead by their places.
    struct Run {
        Run(const QByteArray& bytes, std::vector<qsizetype> places, bool hashes = true)
            : Archive(bytes),
              Directory(Archive),
              Ahead(Archive, Directory, std::move(places), hashes) {}

        /// "(none)" for an entry that is not to be had.
        QByteArray Take(qsizetype place) {
            const auto unpacked = Ahead.Take(place);
            return unpacked ? unpacked->Bytes.toByteArray() : QByteArray("(none)");
        }

        MemoryDevice Archive;
        ZipDirectory Directory;
        ZipAhead Ahead;
    };

    static QByteArray Taken(const Part& part) { return Run(ZipBytes::Archive({part}), {0}).Take(0); }

    struct Outcome {
        QList<qint32> Results;
        QStringList Told;
        std::map<QString, QByteArray> Files;

        bool operator==(const Outcome&) const = default;
    };

    /// What becomes of all entries of an archive.
    Outcome Extracted(const QByteArray& bytes, bool ahead) {
        Outcome outcome;
        Files::DeleteFolder(Out());
        Open(bytes);
        const QStringList names = zip_.Col;
        std::vector<qint32> indexes;
        for (const QString& name : names)
            indexes.push_back(zip_.Find(name));
        if (ahead)
            zip_.Ahead(indexes, false);
        for (const QString& name : names) {
            outcome.Results += Extract(name);
            outcome.Told += zip_.GetZipInfo();
        }
        for (const QString& name : Names())
            outcome.Files[name] = Got(name);
        return outcome;
    }
};

std::vector<Part> Many(int count, qsizetype size) {
    std::vector<Part> parts;
    parts.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number)
        parts.push_back({.Name = "f" + QByteArray::number(number),
                         .Content = QByteArray::number(number).leftJustified(size, 'x'),
                         .Method = number % 2 == 0 ? 8 : 0});
    return parts;
}

} // namespace

TEST_F(ZipAheadTest, EntriesComeInTheOrderAskedForWithTheirHashes) {
    const std::vector<Part> parts = Many(500, 3000);
    std::vector<qsizetype> places;
    for (qsizetype place = 499; place >= 0; --place)
        places.push_back(place);
    Run run(ZipBytes::Archive(parts), places);
    for (const qsizetype place : places) {
        const auto unpacked = run.Ahead.Take(place);
        ASSERT_TRUE(unpacked) << place;
        const QByteArray& content = parts[static_cast<std::size_t>(place)].Content;
        EXPECT_EQ(unpacked->Bytes, content);
        RunningHash hash;
        hash.Add(content);
        EXPECT_EQ(unpacked->Hashed.Hash, hash.Result().Hash);
        EXPECT_EQ(unpacked->Hashed.Length, content.size());
    }
}

TEST_F(ZipAheadTest, WithoutAWishNothingIsHashed) {
    Run run(ZipBytes::Archive({{.Name = "a", .Content = "1"}}), {0}, false);
    const auto unpacked = run.Ahead.Take(0);
    ASSERT_TRUE(unpacked);
    EXPECT_EQ(unpacked->Hashed.Hash, QByteArray());
}

TEST_F(ZipAheadTest, WhatWasPassedByOrNotAskedForIsNotToBeHad) {
    Run run(ZipBytes::Archive(Many(300, 10)), {0, 1, 2, 290, 298});
    EXPECT_TRUE(run.Take(1).startsWith("1"));
    EXPECT_EQ(run.Take(0), "(none)");
    EXPECT_EQ(run.Take(1), "(none)") << "it was taken";
    EXPECT_EQ(run.Take(5), "(none)");
    EXPECT_EQ(run.Take(299), "(none)") << "the last one was not asked for either";
    EXPECT_TRUE(run.Take(298).startsWith("298"));
    EXPECT_EQ(run.Take(290), "(none)");
}

TEST_F(ZipAheadTest, ShortEntriesOfEveryUsualKindAreUnpacked) {
    for (const int method : {0, 8}) {
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method}), "12345");
        EXPECT_EQ(Taken({.Name = "a", .Method = method}), "");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12", .Method = method, .HasDescriptor = true}), "12");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12", .Method = method, .LocalExtra = "\1\2\3\4", .IsWide = true}),
                  "12");
        const QByteArray longest(ZipAhead::Longest, 'x');
        EXPECT_EQ(Taken({.Name = "a", .Content = longest, .Method = method}), longest);
        EXPECT_EQ(Taken({.Name = "a", .Content = longest + 'x', .Method = method}), "(none)");
    }
}

TEST_F(ZipAheadTest, WhateverIsWrongWithAnEntryLeavesItOut) {
    for (const int method : {0, 8}) {
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Crc = 1}), "(none)");
        EXPECT_EQ(Taken({.Name = "a", .Method = method, .Crc = 1}), "(none)");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Size = 4}), "(none)");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Size = 6}), "(none)");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Packed = 3}), "(none)");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Packed = 9000}), "(none)");
        EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Offset = 1}), "(none)");
        for (const int flag : {0x1, 0x20, 0x40, 0x2000})
            EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = method, .Flags = flag}), "(none)") << flag;
    }
    EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = 12}), "(none)");
    EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = 8, .Bytes = QByteArray("\xFF\xFF\xFF")}), "(none)");
    const QByteArray packed = ZipBytes::Deflated("12345");
    EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = 8, .Bytes = packed + "more"}), "(none)");
    EXPECT_EQ(Taken({.Name = "a", .Content = "12345", .Method = 8, .Bytes = packed.chopped(1)}), "(none)");
}

TEST_F(ZipAheadTest, EntriesThatShareBytesAreLeftOut) {
    Run run(ZipBytes::Archive({{.Name = "a", .Content = "12345"}, {.Name = "b", .Content = "12345", .Offset = 0}}),
            {0, 1});
    EXPECT_EQ(run.Take(0), "(none)");
    EXPECT_EQ(run.Take(1), "(none)");
}

TEST_F(ZipAheadTest, NobodyWaitsForWhatIsNotWanted) {
    std::vector<qsizetype> places(400);
    std::iota(places.begin(), places.end(), 0);
    const QByteArray bytes = ZipBytes::Archive(Many(400, ZipAhead::Longest));
    const Run untouched(bytes, places); // more than is kept ready
    Run begun(bytes, places);
    EXPECT_TRUE(begun.Take(200).startsWith("200"));
}

TEST_F(ZipAheadTest, NobodyWaitsForAllThatFails) {
    struct Watched : MemoryDevice {
        using MemoryDevice::MemoryDevice;
        mutable std::atomic<qint64> Furthest = 0; ///< byte that was asked for

        qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const override {
            Furthest = std::max<qint64>(Furthest, offset);
            return MemoryDevice::ReadInto(offset, bytes, count);
        }
    };

    for (const auto& [count, size] : {std::pair{60, qsizetype{ZipAhead::Longest}}, {4000, 10}, {4000, 0}}) {
        std::vector<Part> parts = Many(count, size);
        for (Part& part : parts)
            part.Crc = 1;
        std::vector<qsizetype> places(parts.size());
        std::iota(places.begin(), places.end(), 0);
        const Watched archive(ZipBytes::Archive(parts));
        const ZipDirectory directory(archive);
        archive.Furthest = 0;
        {
            ZipAhead ahead(archive, directory, places, true);
            EXPECT_FALSE(ahead.Take(0));
        }
        EXPECT_LT(archive.Furthest, archive.Length() / 2) << size;
    }
}

TEST_F(ZipAheadTest, AnArchiveThatCanNotBeReadLeavesAllOut) {
    struct Failing : MemoryDevice {
        using MemoryDevice::MemoryDevice;
        bool Fails = false;

        qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const override {
            if (Fails)
                throw RuntimeError(ErrorNumber::DeviceError, u"gone"_s);
            return MemoryDevice::ReadInto(offset, bytes, count);
        }
    } archive(ZipBytes::Archive(Many(3, 10)));

    const ZipDirectory directory(archive);
    archive.Fails = true;
    ZipAhead ahead(archive, directory, {0, 1, 2}, true);
    for (qsizetype place = 0; place < 3; ++place)
        EXPECT_FALSE(ahead.Take(place));
}

TEST_F(ZipAheadTest, AllThatIsExtractedIsTheSame) {
    std::vector<Part> parts = Many(40, 5000);
    parts.push_back({.Name = "d/"});
    parts.push_back({.Name = "d/f1", .Content = "takes the place of the first"});
    parts.push_back({.Name = "F2", .Content = "likewise"});
    parts.push_back({.Name = "f3", .Content = "a second one of that name"});
    parts.push_back({.Name = "nul", .Content = "refused"});
    parts.push_back({.Name = "bad", .Content = "1", .Method = 8, .Crc = 1});
    parts.push_back({.Name = "long", .Content = QByteArray(300000, 'x'), .Method = 8});
    parts.push_back({.Name = "a.zip", .Content = "no more than a name"});
    const QByteArray bytes = ZipBytes::Archive(parts);
    const Outcome plain = Extracted(bytes, false);
    EXPECT_EQ(plain.Files.size(), std::size_t{42});
    EXPECT_EQ(Extracted(bytes, true), plain);
}

TEST_F(ZipAheadTest, WhatIsWrongFailsInTheSameWords) {
    const QByteArray lines = QByteArray("line\n").repeated(20);
    const QByteArray sample = ZipBytes::Archive({{.Name = "deflated.txt", .Content = lines, .Method = 8},
                                                 {.Name = "stored", .Content = "12345", .HasDescriptor = true},
                                                 {.Name = "wide", .Content = lines, .Method = 8, .IsWide = true}});
    std::mt19937 random(2005);
    constexpr int rounds = Places::SystemIsEmulated ? 200 : 2000;
    int failed = 0;
    for (int round = 0; round < rounds; ++round) {
        QByteArray bytes = sample;
        char& changed = bytes[static_cast<qsizetype>(random() % static_cast<quint32>(bytes.size()))];
        changed = static_cast<char>(static_cast<quint32>(changed) ^ random());
        const Outcome plain = Extracted(bytes, false);
        ASSERT_EQ(Extracted(bytes, true), plain) << round;
        failed += plain.Results.count(ZipResult::Done) < plain.Results.size() ? 1 : 0;
    }
    EXPECT_GT(failed, rounds / 4) << "many of the changes must be seen";
}

TEST_F(ZipAheadTest, PasswordsAreAskedForAsEver) {
    ScriptedHost host;
    host.InputTexts = {u"wrong"_s, u"secret"_s};
    Open(ZipSamples::Sample(ZipSamples::Traditional));
    std::vector<qint32> indexes;
    for (qint32 index = 1; index <= zip_.Count(); ++index)
        indexes.push_back(index);
    ASSERT_EQ(indexes.size(), std::size_t{2});
    zip_.Ahead(indexes, false);
    EXPECT_EQ(Extract(u"a.txt"_s), ZipResult::WrongPassword);
    EXPECT_EQ(host.InputTexts.size(), std::size_t{1}) << "one box each time";
    EXPECT_EQ(Extract(u"b.txt"_s), ZipResult::Done);
    EXPECT_TRUE(host.InputTexts.empty());
    EXPECT_EQ(Extract(u"a.txt"_s), ZipResult::Done) << "with the password at hand";
    EXPECT_EQ(Got(u"a.txt"_s), "hello");
}
