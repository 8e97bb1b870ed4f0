// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Entries that are encrypted.
#include "tests/install/zip_fixture.h"

#include "tests/install/ZipSamples.h"
#include "tests/support/ScriptedHost.h"

using namespace Qt::StringLiterals;
using namespace ZipSamples;

namespace {

/// Records what the box was asked.
class AskedHost : public ScriptedHost {
public:
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) override {
        Asked.append(prompt + u'|' + title + u'|' + text);
        return ScriptedHost::InputBox(prompt, title, text);
    }

    QStringList Asked;
};

class ZipPasswords : public ZipReadTest {
protected:
    static QByteArray Lines() { return QByteArray("the same line again and again\n").repeated(40); }

    void ExpectBoth(const char* sample) {
        Open(Sample(sample));
        host_.InputTexts = {u"secret"_s};
        EXPECT_EQ(Extract(u"a.txt"_s), 0) << zip_.GetZipInfo().toStdString();
        EXPECT_EQ(Got(u"a.txt"_s), "hello");
        EXPECT_EQ(Extract(u"b.txt"_s), 0) << zip_.GetZipInfo().toStdString();
        EXPECT_EQ(Got(u"b.txt"_s), Lines());
    }

    AskedHost host_;
};

} // namespace

TEST_F(ZipPasswords, TheBoxAsksOnceForAnArchiveThatItFits) {
    ExpectBoth(Traditional);
    EXPECT_EQ(host_.Asked, QStringList{u"Please Enter The Password!|Brindock 2005|"_s});
    EXPECT_EQ(zip_.Password, u"secret"_s);
}

TEST_F(ZipPasswords, AesOfEveryStrengthIsRead) {
    for (const char* sample : {Aes128, Aes192, Aes256}) {
        zip_.Password.reset();
        ExpectBoth(sample);
    }
}

TEST_F(ZipPasswords, AesOfEitherKindIsReadStoredAndPacked) {
    zip_.Password = u"secret"_s;
    Open(Sample(AesStored));
    EXPECT_EQ(Extract(u"c.txt"_s), 0) << zip_.GetZipInfo().toStdString();
    EXPECT_EQ(Got(u"c.txt"_s), Lines().first(45));
    for (const char kind : {'\1', '\2'}) {
        QByteArray bytes = Sample(AesOther);
        bytes.replace(QByteArray("\2\0AE", 4), QByteArray(1, kind) + QByteArray("\0AE", 3));
        Open(bytes);
        EXPECT_EQ(Extract(u"b.txt"_s), 0) << zip_.GetZipInfo().toStdString();
        EXPECT_EQ(Got(u"b.txt"_s), Lines());
    }
    EXPECT_TRUE(host_.Asked.isEmpty());
}

TEST_F(ZipPasswords, AWrongPasswordFailsTheEntryAndTheNextOneAsksAgain) {
    for (const char* sample : {Traditional, Aes256}) {
        zip_.Password.reset();
        Open(Sample(sample));
        host_.InputTexts = {u"wrong"_s, u"wrong too"_s, u"secret"_s};
        EXPECT_EQ(Extract(u"b.txt"_s), ZipResult::WrongPassword) << zip_.GetZipInfo().toStdString();
        EXPECT_EQ(Extract(u"b.txt"_s), ZipResult::WrongPassword);
        EXPECT_FALSE(Files::FileExists(At(u"out\\b.txt"_s)));
        EXPECT_EQ(Extract(u"b.txt"_s), 0);
        Files::DeleteFolder(Out());
    }
    EXPECT_EQ(host_.Asked.size(), 6);
}

TEST_F(ZipPasswords, AWrongPasswordThatLooksRightFailsAllTheSame) {
    Open(Sample(Traditional));
    int seenByTheData = 0;
    for (int number = 0; number < 600; ++number) {
        zip_.Password.reset();
        host_.InputTexts = {QString::number(number)};
        const qint32 result = Extract(u"b.txt"_s);
        EXPECT_NE(result, 0) << number;
        seenByTheData += result == ZipResult::WrongPassword ? 0 : 1;
    }
    EXPECT_GT(seenByTheData, 0);
    EXPECT_FALSE(Files::FileExists(At(u"out\\b.txt"_s)));
}

TEST_F(ZipPasswords, ACancelledBoxFailsAllEntriesAndIsNotShownAgain) {
    Open(Sample(Aes256));
    host_.InputTexts = {std::nullopt};
    EXPECT_EQ(Extract(u"a.txt"_s), ZipResult::WrongPassword);
    EXPECT_EQ(Extract(u"b.txt"_s), ZipResult::WrongPassword);
    EXPECT_EQ(host_.Asked.size(), 1);
    EXPECT_FALSE(Files::FolderExists(Out())) << "nothing is made";
    Open(Sample(Aes256));
    host_.InputTexts = {u"secret"_s};
    EXPECT_EQ(Extract(u"a.txt"_s), 0) << "until the archive is opened anew";
}

TEST_F(ZipPasswords, AnEmptyAnswerIsAPasswordLikeAnyOther) {
    Open(Sample(Traditional));
    host_.InputTexts = {QString()};
    EXPECT_NE(Extract(u"b.txt"_s), 0);
}

TEST_F(ZipPasswords, ThePasswordAtHandIsTriedFirstThenTheUserIsAsked) {
    zip_.Password = u"wrong"_s;
    Open(Sample(Aes128));
    host_.InputTexts = {u"secret"_s};
    EXPECT_EQ(Extract(u"a.txt"_s), 0);
    EXPECT_EQ(zip_.Password, u"secret"_s);
    EXPECT_EQ(host_.Asked.size(), 1);
}

TEST_F(ZipPasswords, LettersBeyondAsciiAreTriedInUtf8Too) {
    Open(Sample(TraditionalUtf8));
    host_.InputTexts = {u"gehe\u00EFm"_s};
    EXPECT_EQ(Extract(u"a.txt"_s), 0) << zip_.GetZipInfo().toStdString();
    EXPECT_EQ(Got(u"a.txt"_s), "hello");
}

TEST_F(ZipPasswords, PlainEntriesAskNothing) {
    Open({{.Name = "a", .Content = "1"}});
    EXPECT_EQ(Extract(u"a"_s), 0);
    EXPECT_TRUE(host_.Asked.isEmpty());
}

TEST_F(ZipPasswords, EveryChangedByteOfAnAesEntryIsSeen) {
    zip_.Password = u"secret"_s;
    const QByteArray good = Sample(Aes256);
    const qsizetype name = good.indexOf("b.txt");
    const qsizetype end = good.indexOf("PK\1\2");
    for (qsizetype at = name + 16; at < end; ++at) {
        QByteArray bytes = good;
        bytes[at] = static_cast<char>(bytes[at] ^ 1);
        host_.InputTexts.assign(1, std::nullopt);
        Open(bytes);
        EXPECT_NE(Extract(u"b.txt"_s), 0) << at;
    }
    EXPECT_FALSE(Files::FileExists(At(u"out\\b.txt"_s)));
}

TEST(ZipPasswordsAlone, WithoutAnybodyToAskTheEntryFails) {
    const QTemporaryDir folder;
    const QString path = Paths::FromNative(folder.path()) + u"\\a.zip"_s;
    File file = File::Open(path, File::Access::Replace);
    file.Write(0, Sample(Traditional));
    file.Close();
    ccZip zip;
    zip.Init(path);
    EXPECT_EQ(zip.Decompress(Paths::FromNative(folder.path()), u"a.txt"_s, false), ZipResult::WrongPassword);
    zip.Password = u"wrong"_s;
    EXPECT_NE(zip.Decompress(Paths::FromNative(folder.path()), u"a.txt"_s, false), 0);
    zip.Password = u"secret"_s;
    EXPECT_EQ(zip.Decompress(Paths::FromNative(folder.path()), u"a.txt"_s, false), 0);
}
