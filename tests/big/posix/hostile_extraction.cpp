// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives that mean harm, extracted into a folder with links that lead out of it and around in circles.
#include "tests/big/Archives.h"
#include "tests/big/document_support.h"

#include "big/document/Extraction.h"
#include "core/FolderGateway.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <random>

using namespace Qt::StringLiterals;
using Extraction::DoExtract;

namespace {

const QStringList NastyNames{u"..\\evil"_s,
                             u"..\\..\\evil"_s,
                             u"a\\..\\..\\evil"_s,
                             u"../evil"_s,
                             u".."_s,
                             u"."_s,
                             u"\\evil"_s,
                             u"/evil"_s,
                             u"\\\\host\\x\\y"_s,
                             u"C:\\evil"_s,
                             u"c:evil"_s,
                             u"CON"_s,
                             u"nul.txt"_s,
                             u"Data\\aux.ini"_s,
                             u"com1"_s,
                             u"LPT9.x"_s,
                             u"conin$"_s,
                             u"dot."_s,
                             u"blank "_s,
                             u"dir.\\x"_s,
                             u"dir \\x"_s,
                             u"a:stream"_s,
                             u"star*"_s,
                             u"what?"_s,
                             u"less<"_s,
                             u"pipe|"_s,
                             u"quote\""_s,
                             u"tab\t"_s,
                             u"bell\a\\x"_s,
                             u"a\\\\b"_s,
                             u"Folder\\"_s,
                             u"out\\x"_s,
                             u"way\\evil"_s,
                             u"WAY\\evil"_s,
                             u"way\\in\\x"_s,
                             u"file"_s,
                             u"File"_s,
                             u"nowhere"_s,
                             u"loop\\x"_s,
                             u"loop"_s,
                             u"up\\x"_s,
                             u"up\\up\\keep"_s,
                             u"circle\\circle"_s,
                             u"pipe"_s,
                             u"sub\\self\\y"_s,
                             u"~brindock-1-1"_s,
                             u"\u00E9t\u00E9"_s,
                             QString(300, u'n'),
                             QString(5000, u'p')};

class HostileExtraction : public ArchiveTest {
protected:
    HostileExtraction() {
        Put(u"outside\\keep"_s, "keep");
        Put(u"out\\sub\\stays"_s, "stays");
        Link(u"way"_s, u"../outside"_s);
        Link(u"file"_s, u"../outside/keep"_s);
        Link(u"nowhere"_s, u"../outside/new"_s);
        Link(u"loop"_s, u"loop"_s);
        Link(u"circle"_s, u"."_s);
        Link(u"up"_s, u".."_s);
        Link(u"sub/self"_s, u"../sub"_s);
        ::mkfifo((Native(u"out\\pipe"_s)).constData(), 0600);
    }

    QByteArray Native(const QString& name) const { return Paths::EncodeNative(Paths::ToNative(At(name))); }

    void Link(const QString& name, const QString& target) const {
        const QByteArray place = Native(u"out"_s) + '/' + name.toUtf8();
        ASSERT_EQ(::symlink(target.toUtf8().constData(), place.constData()), 0);
    }

    void Extract(bool recreateFolders) {
        // The button would be pressed at some time; here a run of answers stands for the person.
        host_.Answers.assign(mBIG::BigEntries.size(), Host::Answer::Yes);
        std::vector<qint32> list;
        Extraction::TakeAll(list);
        DoExtract(list,
                  {.ExtractFolder = At(u"out\\"_s), .ExtractCancelled = false, .RecreateFolders = recreateFolders},
                  true);
        EXPECT_EQ(host_.Messages.back().Text, u"ExtractionComplete"_s) << "the run comes to its end";
    }

    /// Nothing outside the folder is new, gone or different.
    void ExpectNothingOutside() const {
        EXPECT_EQ(Sorted(Files::ListFolder(world_.Root() + u"\\*.*"_s, true)), Sorted(roots_));
        EXPECT_EQ(Files::ListFolder(At(u"outside\\*.*"_s), true), QStringList{u"keep"_s});
        EXPECT_EQ(World::ReadFile(At(u"outside\\keep"_s)), "keep");
    }

    static QStringList Sorted(QStringList names) {
        names.sort();
        return names;
    }

    void Open(const QByteArray& archive) {
        mBIG::BigFileName = Put(u"my.big"_s, archive);
        roots_ = Files::ListFolder(world_.Root() + u"\\*.*"_s, true);
        mBIG::BigEntries.clear();
        mBIG::ReadBigFile(mBIG::BigFileName);
    }

    static std::vector<NamedBytes> Nasty() {
        std::vector<NamedBytes> entries;
        for (const QString& name : NastyNames)
            entries.emplace_back(name, "evil");
        entries.emplace_back(u"good"_s, "good");
        return entries;
    }

    QStringList roots_;
};

} // namespace

TEST_F(HostileExtraction, NoNastyNameLeavesTheFolder) {
    Open(ArchiveOf(Nasty()));
    ASSERT_EQ(mBIG::BigEntries.size(), static_cast<std::size_t>(NastyNames.size()) + 1);
    for (const bool recreateFolders : {true, false}) {
        Extract(recreateFolders);
        ExpectNothingOutside();
        EXPECT_EQ(World::ReadFile(At(u"out\\good"_s)), "good");
    }
}

TEST_F(HostileExtraction, NoNastyNameOfAnAddedFileLeavesTheFolder) {
    for (const auto& [name, bytes] : Nasty())
        AddNew(name, bytes);
    roots_ = Files::ListFolder(world_.Root() + u"\\*.*"_s, true);
    for (const bool recreateFolders : {true, false}) {
        Extract(recreateFolders);
        ExpectNothingOutside();
        EXPECT_EQ(World::ReadFile(At(u"out\\good"_s)), "good");
    }
}

TEST_F(HostileExtraction, ARefusedNameIsNotAskedAbout) {
    Open(ArchiveOf({{u"..\\outside\\keep"_s, "x"}, {u"file"_s, "x"}, {u"way\\keep"_s, "x"}}));
    Extract(true);
    EXPECT_EQ(host_.Messages.size(), 1U);
    ExpectNothingOutside();
}

TEST_F(HostileExtraction, AFolderWithoutItsBackslashLeadsNoFurtherOut) {
    Open(ArchiveOf({{u"\\..\\evil"_s, "x"}, {u"\\fine"_s, "y"}, {u".\\..\\evil"_s, "x"}}));
    std::vector<qint32> list{0, 1, 2};
    DoExtract(list, {.ExtractFolder = At(u"out"_s), .ExtractCancelled = false, .RecreateFolders = true}, true);
    EXPECT_EQ(World::ReadFile(At(u"out\\fine"_s)), "y");
    ExpectNothingOutside();
}

TEST_F(HostileExtraction, AnArchiveCutOffAtEveryByteIsExtractedAsFarAsItGoes) {
    const QByteArray whole = ArchiveOf({{u"a.ini"_s, "hello"}, {u"Data\\b"_s, "hi"}, {u"..\\evil"_s, "evil"}});
    for (qsizetype length = 0; length < whole.size(); ++length) {
        Open(whole.first(length));
        Extract(true);
        ExpectNothingOutside();
    }
}

TEST_F(HostileExtraction, EntriesThatOverlapAreCopiesOfTheSameBytes) {
    Open(HeaderOf("BIGF", 3, 60) + Record(16, 20, "a") + Record(20, 20, "b") + Record(16, 20, "c") + "L225");
    Extract(true);
    EXPECT_EQ(World::ReadFile(At(u"out\\a"_s)), World::ReadFile(At(u"out\\c"_s)));
    EXPECT_EQ(World::ReadFile(At(u"out\\a"_s)).sliced(4), World::ReadFile(At(u"out\\b"_s)).first(16));
}

TEST_F(HostileExtraction, ManyRecordsBehindTheEndOfTheFileArePassedOver) {
    Open(HeaderOf("BIGF", 32768, 16) + Record(16, 1, "a"));
    ASSERT_EQ(mBIG::BigEntries.size(), 32768U);
    Extract(true);
    ExpectNothingOutside();
}

TEST_F(HostileExtraction, RandomChangesNeverLeaveTheFolderNorEndTheProgram) {
    const QByteArray whole =
        ArchiveOf({{u"a.ini"_s, "hello"}, {u"Data\\b"_s, "hi"}, {u"way\\c"_s, "x"}, {u"d"_s, "y"}});
    std::mt19937 random(20051121);
    for (int round = 0; round < 300; ++round) {
        QByteArray changed = whole;
        for (int change = 0; change < 4; ++change)
            changed[static_cast<qsizetype>(random() % static_cast<unsigned>(whole.size()))] =
                static_cast<char>(random() % 256);
        Open(changed);
        // Sizes of gigabytes behind the end are told by the system's sparse files; a small disk is enough here.
        for (BigEntry& entry : mBIG::BigEntries)
            entry.Size = std::min(entry.Size, qint32{1} << 20);
        mBIG::BigEntries.resize(std::min<std::size_t>(mBIG::BigEntries.size(), 64));
        Extract(round % 2 == 0);
        ExpectNothingOutside();
    }
}

TEST_F(HostileExtraction, AFullDiskEndsTheEntryAndNeverTheProgram) {
    Open(ArchiveOf({{u"small"_s, "1"}, {u"large"_s, QByteArray(100'000, 'x')}, {u"last"_s, "3"}}));
    AddNew(u"new"_s, QByteArray(100'000, 'y'));
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limited{50'000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limited);
    Extract(true);
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(World::ReadFile(At(u"out\\small"_s)), "1");
    EXPECT_EQ(World::ReadFile(At(u"out\\last"_s)), "3");
    EXPECT_FALSE(Files::FileExists(At(u"out\\new"_s)));
    EXPECT_EQ(Files::ListFolder(At(u"out\\~brindock*"_s)), QStringList{}) << "nothing is left aside";
}
