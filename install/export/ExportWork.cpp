// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/export/ExportWork.h"

#include "core/GameFiles.h"
#include "core/ProgramFolders.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A value that reads as this text again: blanks around it and a pair of quotes would be dropped.
QString IniValue(const QString& text) {
    const bool quoted =
        text.size() > 1 && text.front() == text.back() && (text.front() == u'"' || text.front() == u'\'');
    return quoted || text != text.trimmed() ? u'"' + text + u'"' : text;
}

/// What exports left whose process died.
void SweepScratch() {
    const QString scratch = ProgramFolders::ScratchFolder() + u'\\';
    for (const QString& name : Files::ListFolder(scratch, true)) {
        const bool isFolder = IsPrivateName(name) && !Files::IsLink(scratch + name);
        if (isFolder && FolderLock(scratch + name).Held())
            Files::DeleteFolder(scratch + name);
    }
}

} // namespace

void ExportWork::Advance(qint64 bytes) {
    constexpr qint64 whole = 100;
    done_ += bytes;
    if (watch_.Progress && bytes_ > 0)
        watch_.Progress(static_cast<int>(std::min(whole, done_ * whole / bytes_)));
    if (watch_.Yield && !watch_.Yield())
        throw Stopped();
}

ExportScratch::ExportScratch() : folder_(ProgramFolders::ScratchFolder() + u'\\' + PrivateName()) {
    Files::MakeFolders(ProgramFolders::ScratchFolder());
    SweepScratch();
    Files::MakeFolder(folder_);
    own_.emplace(folder_);
}

ExportScratch::~ExportScratch() {
    own_.reset();
    Ignoring([&] { Files::DeleteFolder(folder_); });
}

QString ExportFiles::ModRecordPath(const QString& mod) {
    constexpr qsizetype extension = 4;
    return mod.chopped(std::min(extension, mod.size())) + u".ini"_s;
}

QByteArray ExportFiles::ModRecord(const QString& mod) {
    const GameFiles::Record record = GameFiles::ReadRecord({.File = ModRecordPath(mod), .Section = u"Mod"_s});
    if (record.Name.isEmpty() && record.Comments.isEmpty())
        return {};
    const QString keys =
        u"Name="_s + IniValue(record.Name) + u"\r\nComments="_s + IniValue(record.Comments) + u"\r\n"_s;
    return AnsiCodec::Encode(u"[Mod]\r\n"_s + keys + u"[Infos]\r\n"_s + keys);
}
