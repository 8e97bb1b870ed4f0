// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Other programs read what is written: each tests the archive, and gives out the entries' bytes one behind the other.
#include "tests/install/ZipTest.h"

#include <QProcess>

#include <random>

using namespace Qt::StringLiterals;

namespace {

struct Program {
    QString Name;
    QStringList Test;    ///< arguments before the archive
    QStringList GiveOut; ///< the same, for all bytes on standard output
};

const std::vector<Program>& Programs() {
    static const QString python = u"import sys, zipfile\n"
                                  "archive = zipfile.ZipFile(sys.argv[1])\n"
                                  "if archive.testzip(): sys.exit(1)\n"
                                  "for entry in archive.infolist(): sys.stdout.buffer.write(archive.read(entry))\n"_s;
    static const std::vector<Program> programs{
        {u"unzip"_s, {u"-t"_s}, {u"-p"_s}},
        {u"7z"_s, {u"t"_s}, {u"e"_s, u"-so"_s}},
        {u"bsdtar"_s, {u"-tf"_s}, {u"-xOf"_s}},
        {u"python3"_s, {u"-m"_s, u"zipfile"_s, u"-t"_s}, {u"-c"_s, python}},
    };
    return programs;
}

class ZipPrograms : public ZipTest {
protected:
    /// Writes the archive and has all programs read it.
    void ExpectReadable() {
        ASSERT_GT(zip_.FileCount(), 0);
        ASSERT_TRUE(zip_.WriteZip(At(u"out.zip"_s), true));
        for (const Program& program : Programs()) {
            Run(program.Name, program.Test);
            EXPECT_TRUE(Run(program.Name, program.GiveOut) == contents_) << program.Name.toStdString();
        }
    }

    /// What the program gives out for the archive; it has to succeed.
    QByteArray Run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments + QStringList{Paths::ToNative(At(u"out.zip"_s))});
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << ": " << process.errorString().toStdString();
        QByteArray output = process.readAllStandardOutput();
        EXPECT_EQ(process.exitCode(), 0) << program.toStdString() << "\n"
                                         << output.left(2000).constData() << process.readAllStandardError().constData();
        return output;
    }

    void Add(const QString& name, const QByteArray& bytes, qint32 pathStorage) {
        EXPECT_EQ(zip_.FileAdd(Put(name, bytes), pathStorage, false), 1);
        contents_ += bytes;
    }

    static QByteArray Noise(qsizetype size) {
        std::mt19937 random(2005);
        QByteArray bytes(size, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        return bytes;
    }

    QByteArray contents_;
};

} // namespace

TEST_F(ZipPrograms, ReadFilesByTheirNames) {
    Add(u"a.rep"_s, "GENREP", 0);
    Add(u"b.rep"_s, "x", 0);
    Add(u"b.rep"_s, Noise(100), 0);
    ExpectReadable();
}

TEST_F(ZipPrograms, ReadAFolderWithItsSubfolders) {
    Add(u"My Map\\map.ini"_s, QByteArray("Object\r\nEnd\r\n").repeated(1000), 2);
    Add(u"My Map\\my map.map"_s, Noise(100'000), 2);
    Add(u"My Map\\sub\\deep\\b.tga"_s, QByteArray(3'000'000, '\0'), 2);
    ExpectReadable();
    EXPECT_EQ(Run(u"bsdtar"_s, {u"-tf"_s}), "My Map/map.ini\nMy Map/my map.map\nMy Map/sub/deep/b.tga\n");
}

TEST_F(ZipPrograms, ReadWholePaths) {
    Add(u"f\\a.t"_s, "1", 1);
    Add(u"f\\g\\b.t"_s, "2", 1);
    ExpectReadable();
}

TEST_F(ZipPrograms, ReadAnArchiveWithAComment) {
    Add(u"a.t"_s, "1", 0);
    zip_.SetComment(u"Made for my friends.\r\nHave fun!"_s);
    ExpectReadable();
    EXPECT_TRUE(Run(u"unzip"_s, {u"-z"_s}).contains("Have fun!"));
}

TEST_F(ZipPrograms, ReadNamesOfTheAnsiCodePage) {
    Add(u"[RANK] \u00C4rger \u20AC.map"_s, "1", 0);
    Add(u"\u4E2D.map"_s, "2", 0);
    ExpectReadable();
}

TEST_F(ZipPrograms, ReadFilesOfEveryTime) {
    for (const int year : {1970, 1980, 2004, 2037}) {
        const QString name = u"%1.t"_s.arg(year);
        const QString path = PutAt(QDateTime(QDate(year, 2, 28), QTime(12, 0)), name, "1");
        EXPECT_EQ(zip_.FileAdd(path, 0, false), 1);
        contents_ += "1";
    }
    ExpectReadable();
}

TEST_F(ZipPrograms, ReadThousandsOfEntries) {
    const QString path = Put(u"a.t"_s, "many");
    for (int i = 0; i < 2000; ++i)
        zip_.FileAdd(path, 0, false);
    contents_ = QByteArray("many").repeated(2000);
    ExpectReadable();
}

TEST_F(ZipPrograms, ReadAnArchiveWrittenTwice) {
    Add(u"a.t"_s, QByteArray(100'000, 'a'), 0);
    Add(u"b.t"_s, Noise(100'000), 0);
    ExpectReadable();
    EXPECT_TRUE(zip_.FileDel(2));
    contents_.truncate(100'000);
    ExpectReadable();
}
