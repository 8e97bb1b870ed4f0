// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a file and the entries of an archive are taken for.
#include "tests/install/WizardTest.h"

#include "tests/install/ZipSamples.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

class AnalysisTest : public WizardTest {
protected:
    /// The kinds of a ZIP's records, in order.
    static std::vector<qint32> Kinds() {
        std::vector<qint32> kinds;
        for (const InstallRecord& record : AddFiles::Source.InstallRecords)
            kinds.push_back(record.Kind);
        return kinds;
    }

    static const InstallRecord& Record(std::size_t number) { return AddFiles::Source.InstallRecords.at(number); }

    static std::map<QString, QString> PassedOver() {
        std::map<QString, QString> reasons;
        for (const PassedOverEntry& entry : AddFiles::Source.PassedOver)
            reasons[entry.Name] = entry.Reason;
        return reasons;
    }
};

} // namespace

TEST_F(AnalysisTest, AcceptedIsWhatEndsInOneOfFourWithSmallLetters) {
    for (const QString& name : {u"a.map"_s, u"a.rep"_s, u"a.big"_s, u"a.zip"_s, u"amap"_s, u"map"_s})
        EXPECT_TRUE(Analysis::Accepts(name)) << name.toStdString();
    for (const QString& name : {u"a.MAP"_s, u"a.Rep"_s, u"a.bfme2replay"_s, u"a.txt"_s, u"ap"_s, u""_s, u"a.ma"_s})
        EXPECT_FALSE(Analysis::Accepts(name)) << name.toStdString();
}

TEST_F(AnalysisTest, ALooseFileIsKnownByItsLastThreeCharacters) {
    const std::map<QString, qint32> kinds{{u"a.map"_s, FileKind::Map},
                                          {u"a.MAP"_s, FileKind::Map},
                                          {u"a.Big"_s, FileKind::Mod},
                                          {u"a.rep"_s, FileKind::Replay},
                                          {u"a.BfME2Replay"_s, FileKind::Replay},
                                          {u"bitmap"_s, FileKind::Map},
                                          {u"ShellMap1.map"_s, FileKind::ShellMap},
                                          {u"SHELLMAPMD.MAP"_s, FileKind::ShellMap},
                                          {u"my shellmap1.map"_s, FileKind::Map},
                                          {u"replay"_s, FileKind::None},
                                          {u"a.txt"_s, FileKind::None}};
    for (const auto& [name, kind] : kinds) {
        const QString path = Put(name);
        const InstallSource& source = Analyse(path);
        EXPECT_EQ(source.SingleFile.Kind, kind) << name.toStdString();
        EXPECT_FALSE(source.SourceIsZip);
        EXPECT_EQ(source.SingleFile.FileName, name);
        EXPECT_EQ(source.SingleFile.EntryPath, path);
        EXPECT_EQ(source.SingleFile.ZipPath, QString());
        EXPECT_FALSE(source.SingleFile.Selected);
    }
}

TEST_F(AnalysisTest, ALooseShellMapIsDescribedByTheFileBesideIt) {
    Put(u"One\\QvInfos.ini"_s, "[Infos]\r\nName=Bay\r\nComments=Of 2005\r\n[Mod]\r\nName=no\r\n");
    Analyse(Put(u"One\\shellmap1.map"_s));
    EXPECT_EQ(AddFiles::Source.SingleFile.DisplayName, u"Bay"_s);
    EXPECT_EQ(AddFiles::Source.SingleFile.Comments, u"Of 2005"_s);
    Put(u"Two\\QvInfos.ini"_s, "");
    Analyse(Put(u"Two\\shellmapmd.map"_s));
    EXPECT_EQ(AddFiles::Source.SingleFile.DisplayName, QString());
}

TEST_F(AnalysisTest, ALooseShellMapWithoutItIsCalledShellMap) {
    Analyse(Put(u"One\\shellmap1.map"_s));
    EXPECT_EQ(AddFiles::Source.SingleFile.DisplayName, u"ShellMap"_s);
    EXPECT_EQ(AddFiles::Source.SingleFile.Comments, QString());
}

TEST_F(AnalysisTest, ALooseModIsDescribedUnderMod) {
    Put(u"My.Mod.ini"_s, "[Infos]\r\nName=no\r\nComments=no\r\n[Mod]\r\nName=\xC9t\xE9\r\nComments=\"x \"\r\n");
    Analyse(Put(u"My.Mod.big"_s));
    EXPECT_EQ(AddFiles::Source.SingleFile.DisplayName, u"\u00C9t\u00E9"_s);
    EXPECT_EQ(AddFiles::Source.SingleFile.Comments, u"x "_s);
    Analyse(Put(u"Other.big"_s));
    EXPECT_EQ(AddFiles::Source.SingleFile.DisplayName, QString());
}

TEST_F(AnalysisTest, EntriesAreKnownByTheirLastThreeCharacters) {
    AnalyseZip({{.Name = "readme.txt"},
                {.Name = "Maps/A/a.MAP"},
                {.Name = "Maps/A/a.tga"},
                {.Name = "b.Big"},
                {.Name = "c.rep"},
                {.Name = "d.BFME2REPLAY"},
                {.Name = "e.display"},
                {.Name = "map/"},
                {.Name = "Folder.map/"},
                {.Name = "S/shellmapmd.map"}});
    EXPECT_TRUE(AddFiles::Source.SourceIsZip);
    EXPECT_EQ(Kinds(),
              (std::vector{FileKind::Map, FileKind::Mod, FileKind::Replay, FileKind::Replay, FileKind::ShellMap}));
    EXPECT_EQ(Record(0).FileName, u"a.MAP"_s);
    EXPECT_EQ(Record(0).EntryPath, u"Maps/A/a.MAP"_s);
    EXPECT_EQ(Record(0).ZipPath, zip_.Name);
    EXPECT_EQ(Record(0).DisplayName, QString());
    for (const InstallRecord& record : AddFiles::Source.InstallRecords)
        EXPECT_FALSE(record.Selected);
}

TEST_F(AnalysisTest, AnyEntryThatEndsInAShellMapsNameIsOne) {
    AnalyseZip({{.Name = "A/My ShellMap1.map"},
                {.Name = "shellmap1.map"},
                {.Name = "xshellmapmd.MAP"},
                {.Name = "shellmap1x.map"},
                {.Name = "hellmap1.map"}});
    EXPECT_EQ(Kinds(),
              (std::vector{FileKind::ShellMap, FileKind::ShellMap, FileKind::ShellMap, FileKind::Map, FileKind::Map}));
    EXPECT_EQ(Record(0).FileName, u"My ShellMap1.map"_s);
    EXPECT_EQ(Record(0).DisplayName, u"ShellMap"_s);
}

TEST_F(AnalysisTest, AShellMapInAnArchiveIsDescribedByTheFileInItsFolder) {
    AnalyseZip({{.Name = "S/shellmap1.map"},
                {.Name = "S/QvInfos.ini", .Content = "[Infos]\r\nName=Bay\r\nComments=c\r\n", .Method = 8},
                {.Name = "T/shellmap1.map"},
                {.Name = "T/qvinfos.ini", .Content = "[Infos]\r\nName=small letters\r\n"}});
    EXPECT_EQ(Record(0).DisplayName, u"Bay"_s);
    EXPECT_EQ(Record(0).Comments, u"c"_s);
    EXPECT_EQ(Record(1).DisplayName, u"ShellMap"_s);
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(AnalysisTest, AShellMapInTheRootIsDescribedByTheFileThere) {
    AnalyseZip({{.Name = "QvInfos.ini", .Content = "[Infos]\nName=Root\n"}, {.Name = "shellmap1.map"}});
    EXPECT_EQ(Record(0).DisplayName, u"Root"_s);
}

TEST_F(AnalysisTest, AModInAnArchiveIsDescribedUnderInfos) {
    AnalyseZip({{.Name = "d/One.big"},
                {.Name = "d/One.ini", .Content = "[Mod]\r\nName=no\r\n[Infos]\r\nName=yes\r\nComments=c\r\n"},
                {.Name = "Two.big"},
                {.Name = "Two.ini", .Content = "[Mod]\r\nName=no\r\nComments=no\r\n"},
                {.Name = "Three.big"},
                {.Name = "Three.INI", .Content = "[Infos]\r\nName=capitals\r\n"}});
    EXPECT_EQ(Record(0).DisplayName, u"yes"_s);
    EXPECT_EQ(Record(0).Comments, u"c"_s);
    EXPECT_EQ(Record(1).DisplayName, QString());
    EXPECT_EQ(Record(1).Comments, QString());
    EXPECT_EQ(Record(2).DisplayName, QString());
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(AnalysisTest, AnIniFileOfThousandsOfLinesIsNotRead) {
    QByteArray most = "[Infos]\r\nName=read\r\n";
    most += QByteArray(qsizetype{1024} * 1024 - most.size(), ' ');
    AnalyseZip({{.Name = "One.big"},
                {.Name = "One.ini", .Content = most},
                {.Name = "Two.big"},
                {.Name = "Two.ini", .Content = most + ' '},
                {.Name = "S/shellmap1.map"},
                {.Name = "S/QvInfos.ini", .Content = most + ' '}});
    EXPECT_EQ(Record(0).DisplayName, u"read"_s);
    EXPECT_EQ(Record(1).DisplayName, QString());
    EXPECT_EQ(Record(2).DisplayName, QString());
    EXPECT_EQ(PassedOver(), (std::map<QString, QString>{{u"One.ini"_s, u"PassedOverModIni"_s},
                                                        {u"Two.ini"_s, u"PassedOverTooLarge"_s}}));
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(AnalysisTest, AnIniFileThatDoesNotComeOutEndsTheAnalysisWithItsName) {
    const QString path = PutZip({{.Name = "One.big"}, {.Name = "One.ini", .Content = "[Infos]", .Crc = 1}});
    world_.WriteFile(u"program\\Temp\\One.ini"_s, "somebody else's");
    EXPECT_EQ(ErrorOf([&] { Analyse(path); }), ErrorNumber::FileNotFound);
    EXPECT_TRUE(failure_.contains(u"One.ini"_s)) << failure_.toStdString();
    EXPECT_EQ(Scratch(), QStringList{u"One.ini"_s});
}

TEST_F(AnalysisTest, AnIniFileBehindACancelledPasswordEndsTheAnalysis) {
    host_.InputTexts = {std::nullopt};
    // a.txt and b.txt, renamed in both of their records
    QByteArray bytes = ZipSamples::Sample(ZipSamples::Traditional);
    bytes.replace("a.txt", "a.ini").replace("b.txt", "a.big");
    const QString path = Put(u"Pack.zip"_s, bytes);
    EXPECT_EQ(ErrorOf([&] { Analyse(path); }), ErrorNumber::FileNotFound);
    EXPECT_TRUE(failure_.contains(u"a.ini"_s)) << failure_.toStdString();
    zip_.Password = u"secret"_s;
    EXPECT_EQ(Analyse(path).InstallRecords.size(), 1U);
}

TEST_F(AnalysisTest, NamesOfEntriesAreSearchedInOneText) {
    // "\x\One.ini\" stands in it though no entry is named "One.ini".
    const QString path = PutZip({{.Name = "One.big"}, {.Name = "a/x\\One.ini", .Content = "[Infos]", .Host = 3}});
    EXPECT_EQ(ErrorOf([&] { Analyse(path); }), ErrorNumber::FileNotFound);
    // A part alone is not enough.
    Analyse(PutZip({{.Name = "One.big"}, {.Name = "a/One.ini"}, {.Name = "xOne.ini"}, {.Name = "One.inix"}}));
    EXPECT_EQ(Record(0).DisplayName, QString());
    // From the end of one name to the beginning of the next.
    const QString across = PutZip({{.Name = "a/b\\\\c.big", .Host = 3}, {.Name = "a/b"}, {.Name = "c.ini"}});
    EXPECT_EQ(ErrorOf([&] { Analyse(across); }), ErrorNumber::FileNotFound);
}

TEST_F(AnalysisTest, ANameWithBackslashesReadsTheFileThatCameOutAndNoOther) {
    const QString victim = world_.WriteFile(u"program\\secret.ini"_s, "[Infos]\r\nName=secret\r\n");
    AnalyseZip({{.Name = "x/..\\secret.big", .Host = 3},
                {.Name = "x/..\\secret.ini", .Content = "[Infos]\r\nName=own\r\n", .Host = 3}});
    ASSERT_EQ(AddFiles::Source.InstallRecords.size(), 1U);
    EXPECT_EQ(Record(0).FileName, u"..\\secret.big"_s);
    EXPECT_EQ(Record(0).DisplayName, u"own"_s);
    EXPECT_TRUE(Files::FileExists(victim));
}

TEST_F(AnalysisTest, AnArchiveWithOnlyAReadmeHasNoRecords) {
    AnalyseZip({{.Name = "readme.txt"}, {.Name = "d/"}});
    EXPECT_TRUE(AddFiles::Source.InstallRecords.empty());
    EXPECT_TRUE(AddFiles::Source.SourceIsZip);
}

TEST_F(AnalysisTest, WhatCanNotBeReadHasNoRecords) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("no archive"), QByteArray(100, 'P')})
        EXPECT_TRUE(Analyse(Put(u"a.zip"_s, bytes)).InstallRecords.empty());
    EXPECT_TRUE(Analyse(world_.Root() + u"\\nowhere.zip"_s).InstallRecords.empty());
    EXPECT_TRUE(AddFiles::Source.SourceIsZip);
    EXPECT_FALSE(Analyse(Put(u"b.ZIP"_s, ZipBytes::Archive({{.Name = "a.rep"}}))).InstallRecords.empty());
}

TEST_F(AnalysisTest, EveryCutOfAnArchiveIsReadOrRefused) {
    const QByteArray bytes = ZipBytes::Archive({{.Name = "S/shellmap1.map", .Content = "m"},
                                                {.Name = "S/QvInfos.ini", .Content = "[Infos]\nName=a\n"},
                                                {.Name = "m.big"},
                                                {.Name = "m.ini", .Content = "[Infos]\nName=b\n", .Method = 8}});
    for (qsizetype length = 0; length < bytes.size(); ++length) {
        EXPECT_TRUE(Analyse(Put(u"a.zip"_s, bytes.first(length))).InstallRecords.empty());
        const int error = ErrorOf([&] { Analyse(Put(u"a.zip"_s, bytes.sliced(length))); });
        EXPECT_TRUE(error == 0 || error == ErrorNumber::FileNotFound) << length;
        EXPECT_EQ(Scratch(), QStringList()) << length;
    }
}

TEST_F(AnalysisTest, WhatGoesWithAMapIsNotPassedOver) {
    AnalyseZip({{.Name = "A/a.map"},
                {.Name = "A/a.tga"},
                {.Name = "A/readme.txt"},
                {.Name = "A/Thumbs.db"},
                {.Name = "S/shellmap1.map"},
                {.Name = "S/QvInfos.ini"},
                {.Name = "A/"},
                {.Name = "m.big"}});
    EXPECT_EQ(PassedOver(), (std::map<QString, QString>()));
}

TEST_F(AnalysisTest, WhatIsPassedOverHasAReasonEach) {
    AnalyseZip({{.Name = "A/a.map"},
                {.Name = "m.big"},
                {.Name = "m.ini", .Content = "[Infos]"},
                {.Name = "ReadMe.1st"},
                {.Name = "d/lies.TXT"},
                {.Name = "__MACOSX/._m"},
                {.Name = "d/.DS_Store"},
                {.Name = "d/Thumbs.db"},
                {.Name = "inner.zip"},
                {.Name = "A/art/a.dds"},
                {.Name = "A/art/deep/readme.txt"},
                {.Name = "setup.exe"},
                {.Name = "noextension"},
                {.Name = "a.dds"},
                {.Name = QByteArray(300, 'n') + ".rep"}});
    const std::map<QString, QString> wanted{{u"m.ini"_s, u"PassedOverModIni"_s},
                                            {u"ReadMe.1st"_s, u"PassedOverToRead"_s},
                                            {u"d/lies.TXT"_s, u"PassedOverToRead"_s},
                                            {u"__MACOSX/._m"_s, u"PassedOverMac"_s},
                                            {u"d/.DS_Store"_s, u"PassedOverMac"_s},
                                            {u"d/Thumbs.db"_s, u"PassedOverWindows"_s},
                                            {u"inner.zip"_s, u"PassedOverArchive"_s},
                                            {u"A/art/a.dds"_s, u"PassedOverBelow"_s},
                                            {u"A/art/deep/readme.txt"_s, u"PassedOverBelow"_s},
                                            {u"setup.exe"_s, u"PassedOverProgram"_s},
                                            {u"noextension"_s, u"PassedOverUnknown"_s},
                                            {u"a.dds"_s, u"PassedOverUnknown"_s},
                                            {QString(256, u'n'), u"PassedOverLongName"_s}};
    EXPECT_EQ(PassedOver(), wanted);
    EXPECT_EQ(AddFiles::Source.PassedOver.front().Name, u"m.ini"_s);
}

TEST_F(AnalysisTest, AMapInAMacsFolderIsAMapByItsEnding) {
    AnalyseZip({{.Name = "__MACOSX/A/._a.map"}, {.Name = "A/a.map"}});
    EXPECT_EQ(Kinds(), (std::vector{FileKind::Map, FileKind::Map}));
}

TEST_F(AnalysisTest, NamesOfAnyLettersStay) {
    const QByteArray name = "[RANK] Arctic Arena ZH v1/\xD0\x90\xD1\x80\xD0\xBA\xD1\x82\xD0\xB8\xD0\xBA\xD0\xB0.map";
    const QByteArray longName = QByteArray(200, 'l') + ".map";
    AnalyseZip({{.Name = name, .Flags = 0x800}, {.Name = longName}});
    EXPECT_EQ(Record(0).EntryPath, QString::fromUtf8(name));
    EXPECT_EQ(Record(0).FileName, u"\u0410\u0440\u043A\u0442\u0438\u043A\u0430.map"_s);
    EXPECT_EQ(Record(1).FileName.size(), 204);
}

TEST_F(AnalysisTest, ALongArchiveYields) {
    std::vector<Part> parts;
    parts.reserve(1000);
    for (int number = 0; number < 1000; ++number)
        parts.push_back({.Name = QByteArray::number(number) + ".rep"});
    AnalyseZip(parts);
    EXPECT_EQ(AddFiles::Source.InstallRecords.size(), 1000U);
    EXPECT_GT(host_.Yields, 0);
}

TEST_F(AnalysisTest, ThousandsOfNamesWithBackslashesAreAllFound) {
    std::vector<Part> parts;
    parts.reserve(4000);
    for (int number = 0; number < 4000; ++number)
        parts.push_back({.Name = "x/a\\" + QByteArray::number(number) + ".big", .Host = 3});
    EXPECT_EQ(AnalyseZip(parts).InstallRecords.size(), 4000U);
}
