// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/Analysis.h"

#include "core/GameFiles.h"
#include "core/Host.h"
#include "core/ProgramFolders.h"
#include "install/wizard/EntryNames.h"
#include "install/wizard/PassedOver.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype ExtensionLength = 3;
constexpr qsizetype ExtensionWithDot = 4;
constexpr int EntriesAtATime = 256;
constexpr qint64 LargestRecord = qint64{1024} * 1024; ///< bytes

constexpr QStringView FirstShellMap = u"shellmap1.map";
constexpr QStringView SecondShellMap = u"shellmapmd.map";

bool IsLongReplay(const QString& name) {
    static const QString ending = u"bfme2replay"_s;
    return EntryNames::End(name, ending.size()) == ending;
}

/// By the last three characters, whatever their case.
qint32 KindOf(const QString& name, bool (*isShellMap)(const QString&)) {
    const auto endsIn = [&](QStringView extension) { return name.endsWith(extension, Qt::CaseInsensitive); };
    if (endsIn(u"map"))
        return isShellMap(name) ? FileKind::ShellMap : FileKind::Map;
    if (endsIn(u"big"))
        return FileKind::Mod;
    return endsIn(u"rep") || (endsIn(u"lay") && IsLongReplay(name)) ? FileKind::Replay : FileKind::None;
}

/// Whatever stands before it, in a folder's name too. This is meant.
bool EndsAsShellMap(const QString& entry) {
    return EntryNames::End(entry, FirstShellMap.size()) == FirstShellMap ||
           EntryNames::End(entry, SecondShellMap.size()) == SecondShellMap;
}

void Describe(InstallRecord& record, const QString& section, const QString& iniFile) {
    const GameFiles::Record read = GameFiles::ReadRecord({.File = iniFile, .Section = section});
    record.DisplayName = read.Name;
    record.Comments = read.Comments;
}

QString NameWithoutRecord() {
    return u"ShellMap"_s;
}

InstallRecord SingleFile(const QString& path, const QString& name) {
    InstallRecord file{.FileName = name,
                       .EntryPath = path,
                       .ZipPath = {},
                       .Kind = KindOf(name, Analysis::IsShellMapName),
                       .DisplayName = {},
                       .Comments = {}};
    if (file.Kind == FileKind::ShellMap) {
        const QString ini = Paths::Folder(path) + u"QvInfos.ini"_s;
        if (Files::FileExists(ini))
            Describe(file, u"Infos"_s, ini);
        else
            file.DisplayName = NameWithoutRecord();
    } else if (file.Kind == FileKind::Mod) {
        const QString ini = EntryNames::Without(path, ExtensionWithDot) + u".ini"_s;
        if (Files::FileExists(ini))
            Describe(file, u"Mod"_s, ini);
    }
    return file;
}

class Archive {
public:
    Archive(ccZip& zip, Analysis::Records records) : zip_(zip), records_(records) {}

    InstallSource Read() {
        InstallSource source{.SourceIsZip = true, .SingleFile = {}, .InstallRecords = {}, .PassedOver = {}};
        for (qint32 index = 1; index <= zip_.Count(); ++index) {
            const QString entry = zip_.GetFile(index);
            const qint32 kind = KindOf(entry, EndsAsShellMap);
            if (kind == FileKind::None)
                passedOver_.AddOther(entry);
            else
                source.InstallRecords.push_back(RecordOf(entry, kind));
            if (index % EntriesAtATime == 0 && Host::IsThere())
                Host::Current().Yield();
        }
        source.PassedOver = passedOver_.Entries();
        return source;
    }

private:
    InstallRecord RecordOf(const QString& entry, qint32 kind) {
        InstallRecord record{.FileName = EntryNames::FileName(entry),
                             .EntryPath = entry,
                             .ZipPath = zip_.Name,
                             .Kind = kind,
                             .DisplayName = {},
                             .Comments = {}};
        if (kind == FileKind::Mod)
            DescribeMod(record);
        else if (kind == FileKind::ShellMap)
            DescribeShellMap(record);
        if (kind == FileKind::Map || kind == FileKind::ShellMap)
            passedOver_.AddMapFolder(EntryNames::Folder(entry));
        return record;
    }

    [[nodiscard]] bool Has(const QString& entry) {
        if (!all_)
            all_.emplace(zip_.Col);
        return all_->Has(entry);
    }

    void DescribeShellMap(InstallRecord& record) {
        const QString ini = record.EntryPath.chopped(record.FileName.size()) + u"QvInfos.ini"_s;
        if (Has(ini))
            DescribeBy(record, ini);
        else
            record.DisplayName = NameWithoutRecord();
    }

    /// Under "Infos", where beside a file on the disk it is "Mod". This is meant.
    void DescribeMod(InstallRecord& record) {
        const QString ini = EntryNames::Without(record.EntryPath, ExtensionWithDot) + u".ini"_s;
        if (!Has(ini))
            return;
        DescribeBy(record, ini);
        if (IsReadable(ini))
            passedOver_.AddModIni(ini);
        else
            passedOver_.AddTooLarge(ini);
    }

    /// Nobody was asked about its size yet. People's are of a few lines.
    [[nodiscard]] bool IsReadable(const QString& ini) const { return zip_.Size(zip_.Find(ini)) <= LargestRecord; }

    /// What can't be extracted can't be deleted. This is meant.
    void DescribeBy(InstallRecord& record, const QString& ini) const {
        if (records_ == Analysis::Records::Left || !IsReadable(ini))
            return;
        const QString scratch = ProgramFolders::ScratchFolder();
        if (zip_.Decompress(scratch, ini, false) != 0)
            throw RuntimeError(ErrorNumber::FileNotFound, zip_.GetZipInfo());
        const QString copy = scratch + u'\\' + EntryNames::LastPart(ini);
        Describe(record, u"Infos"_s, copy);
        Files::DeleteForced(copy);
    }

    ccZip& zip_;
    Analysis::Records records_;
    std::optional<AllEntries> all_; ///< made when somebody asks
    PassedOver passedOver_;
};

} // namespace

bool Analysis::Accepts(const QString& fileName) {
    // The long ending has more than three characters and never fits. This is meant.
    return u"/map/rep/bfme2replay/big/zip/"_s.contains(u'/' + fileName.right(ExtensionLength) + u'/');
}

bool Analysis::IsShellMapName(const QString& fileName) {
    const QString lower = fileName.toLower();
    return lower == FirstShellMap || lower == SecondShellMap;
}

InstallSource Analysis::Analyse(const QString& filePath, const QString& fileName, ccZip& zip, Records records) {
    if (EntryNames::End(fileName, ExtensionLength) != u"zip") {
        return {
            .SourceIsZip = false, .SingleFile = SingleFile(filePath, fileName), .InstallRecords = {}, .PassedOver = {}};
    }
    zip.Init(filePath);
    return Archive(zip, records).Read();
}
