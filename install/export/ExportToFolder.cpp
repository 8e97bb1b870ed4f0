// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FolderGateway.h"
#include "install/InstallSource.h"
#include "install/WatchedCopy.h"
#include "install/export/ExportWork.h"
#include "install/export/Exporting.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

class FolderExport {
public:
    FolderExport(const QString& folder, const ExportChoice& choice, ExportWork& work)
        : gateway_(folder),
          choice_(choice),
          work_(work) {}

    void Take(const ExportSource& source) {
        const ExportRecord& record = source.Record;
        if (record.Path.isEmpty())
            return Tell(QString(), ExportOutcome::NoPath);
        if (record.Kind == FileKind::ShellMap)
            if (const QString refusal = FolderGateway::RefusalOfFolder(record.Name); !refusal.isEmpty())
                return Tell(ExportSources::NameOf(record), ExportOutcome::Refused, refusal);
        if (source.Folders.empty() && source.Files.empty())
            Tell(ExportSources::Shown(record.Name), ExportOutcome::Gone);
        else
            CopyAll(source);
        if (record.Kind == FileKind::Mod && choice_.ModRecords && !source.Files.empty())
            Trying(ExportSources::Shown(Paths::LastPart(ExportFiles::ModRecordPath(record.Path))),
                   [&] { return CopyRecord(record.Path); });
        lines_.insert(lines_.end(), source.Other.begin(), source.Other.end());
    }

    [[nodiscard]] std::vector<ExportLine>& Lines() { return lines_; }

private:
    void Tell(const QString& item, ExportOutcome outcome, const QString& reason = {}) {
        lines_.push_back({item, outcome, reason});
    }

    /// Runs one step, and tells how it ended.
    template <typename Step>
    void Trying(const QString& item, Step step) {
        try {
            if (const std::optional<ExportOutcome> outcome = step())
                Tell(item, *outcome);
        } catch (const RuntimeError& error) {
            Tell(item, ExportOutcome::Failed, error.Description());
        }
    }

    /// A file that fails costs that file only.
    void CopyAll(const ExportSource& source) {
        for (const QString& folder : source.Folders) {
            try {
                gateway_.MakeFolder(folder);
            } catch (const RuntimeError& error) {
                Tell(ExportSources::Shown(folder), ExportOutcome::Failed, error.Description());
            }
        }
        for (const ExportFile& file : source.Files)
            Trying(ExportSources::Shown(file.Name), [&] { return CopyFile(file); });
    }

    std::optional<ExportOutcome> CopyFile(const ExportFile& file) {
        const FilePlace place = gateway_.PlaceFor(file.Name);
        const QString target = place.Path();
        if (Files::SameFile(file.Path, target)) {
            work_.Advance(file.Size);
            return ExportOutcome::AlreadyThere;
        }
        work_.Advance(0);
        WatchedCopy(File::Open(file.Path, File::Access::Read), place, [this](qint64 bytes) { work_.Advance(bytes); });
        const bool isAnother = copied_.contains(target);
        copied_.insert(target);
        return isAnother ? ExportOutcome::Replaced : ExportOutcome::Done;
    }

    std::optional<ExportOutcome> CopyRecord(const QString& mod) {
        const QByteArray record = ExportFiles::ModRecord(mod);
        if (record.isEmpty())
            return std::nullopt;
        const QString path = ExportFiles::ModRecordPath(mod);
        const FilePlace place = gateway_.PlaceFor(Paths::LastPart(path));
        if (Files::SameFile(path, place.Path()))
            return ExportOutcome::AlreadyThere;
        WriteAside aside(place);
        aside.Out().Write(0, record);
        aside.Commit(false);
        return ExportOutcome::Done;
    }

    FolderGateway gateway_;
    const ExportChoice& choice_;
    ExportWork& work_;
    QSet<QString> copied_; ///< targets
    std::vector<ExportLine> lines_;
};

} // namespace

ExportReport Exporting::ToFolder(const std::vector<ExportSource>& sources, const QString& folder,
                                 const ExportChoice& choice, const ExportWatch& watch) {
    ExportReport report;
    ExportWork work(watch, ExportSources::Bytes(sources));
    std::optional<FolderExport> run;
    try {
        run.emplace(folder, choice, work);
        for (const ExportSource& source : sources)
            run->Take(source);
    } catch (const ExportWork::Stopped&) {
        report.Cancelled = true;
    } catch (const RuntimeError& error) { // the folder itself
        report.Lines.push_back({Paths::ToNative(folder), ExportOutcome::NotWritten, error.Description()});
    }
    if (run)
        report.Lines = std::move(run->Lines());
    Ignoring([&] { Files::FlushSystem(folder); });
    return report;
}
