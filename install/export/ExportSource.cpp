// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/export/ExportSource.h"

#include "core/NameOrder.h"
#include "install/InstallSource.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/FolderBounds.h"
#include "platform/FolderEntries.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class Lister {
public:
    Lister(ExportSource& source, const QString& folder, bool recurse)
        : source_(source),
          top_(folder + u'\\'),
          recurse_(recurse),
          bounds_(folder) {}

    /// `below` is a folder's name below the top, with a backslash behind it; empty for the top itself.
    void Enter(const QString& below) {
        QHash<QString, qint64> sizes;
        QStringList files;
        QStringList folders;
        for (const FolderEntry& entry : FolderEntries(top_ + below)) {
            (entry.IsFolder ? folders : files).append(entry.Name);
            if (!entry.IsFolder && entry.IsPlain)
                sizes.insert(entry.Name, entry.Size);
        }
        NameOrder::Sort(files);
        NameOrder::Sort(folders);
        for (const QString& name : files)
            TakeFile(below + name, sizes.value(name, -1));
        for (const QString& name : folders)
            TakeFolder(below + name);
    }

private:
    void TakeFile(const QString& name, qint64 size) {
        if (size < 0 || bounds_.LeadsOut(top_ + name))
            Pass(name, ExportOutcome::NotPlain);
        else
            source_.Files.push_back({.Path = top_ + name, .Name = source_.Record.Name + u'\\' + name, .Size = size});
    }

    void TakeFolder(const QString& name) {
        if (Files::IsLink(top_ + name))
            return Pass(name, ExportOutcome::NotPlain);
        if (!recurse_)
            return Pass(name, ExportOutcome::Subfolder);
        source_.Folders.append(source_.Record.Name + u'\\' + name);
        try {
            Enter(name + u'\\');
        } catch (const RuntimeError& error) {
            source_.Other.push_back(
                {ExportSources::Shown(source_.Record.Name + u'\\' + name), ExportOutcome::Failed, error.Description()});
        }
    }

    void Pass(const QString& name, ExportOutcome outcome) {
        source_.Other.push_back({ExportSources::Shown(source_.Record.Name + u'\\' + name), outcome});
    }

    ExportSource& source_;
    QString top_; ///< with its backslash
    bool recurse_;
    FolderBounds bounds_;
};

/// The folder of a shell map, whose record names the pattern of its files.
QString FolderOf(const ExportRecord& record) {
    return record.Kind == FileKind::ShellMap ? record.Path.first(std::max<qsizetype>(0, record.Path.lastIndexOf(u'\\')))
                                             : record.Path;
}

void List(ExportSource& source) {
    const ExportRecord& record = source.Record;
    const QString folder = FolderOf(record);
    if (folder.isEmpty())
        return;
    if (record.Kind == FileKind::Map || record.Kind == FileKind::ShellMap) {
        if (!Files::FolderExists(folder))
            return;
        source.Folders.append(record.Name);
        Lister(source, folder, record.Kind == FileKind::Map).Enter({});
    } else if (Files::FileExists(record.Path)) {
        source.Files.push_back(
            {.Path = record.Path, .Name = Paths::LastPart(record.Path), .Size = Files::FileLength(record.Path)});
    }
}

} // namespace

std::vector<ExportSource> ExportSources::Of(const std::vector<ExportRecord>& records) {
    std::vector<ExportSource> sources;
    for (const ExportRecord& record : records) {
        sources.push_back({.Record = record, .Files = {}, .Folders = {}, .Other = {}});
        // What is missing is told by the step that needs it.
        Ignoring([&] { List(sources.back()); });
    }
    return sources;
}

qint64 ExportSources::Bytes(const std::vector<ExportSource>& sources) {
    qint64 bytes = 0;
    for (const ExportSource& source : sources)
        for (const ExportFile& file : source.Files)
            bytes += file.Size;
    return bytes;
}

QStringList ExportSources::NamesBeyondThePage(const std::vector<ExportSource>& sources) {
    QStringList names;
    for (const ExportSource& source : sources)
        for (const ExportFile& file : source.Files)
            if (AnsiCodec::Decode(AnsiCodec::Encode(file.Name)) != file.Name)
                names.append(file.Name);
    return names;
}

QString ExportSources::NameOf(const ExportRecord& record) {
    return record.Name.isEmpty() ? Shown(Paths::LastPart(FolderOf(record))) : record.Name;
}

QString ExportSources::Shown(const QString& name) {
    return Paths::ToNativeAsGiven(name);
}
