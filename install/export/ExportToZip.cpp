// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FolderGateway.h"
#include "core/ProgramFolders.h"
#include "install/InstallSource.h"
#include "install/WatchedCopy.h"
#include "install/export/ExportWork.h"
#include "install/export/Exporting.h"
#include "install/zip/ZipClass.h"
#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class ZipExport {
public:
    ZipExport(QString target, const ExportChoice& choice, ExportWork& work)
        : target_(std::move(target)),
          choice_(choice),
          work_(work) {
        zip_.Utf8Names = choice.Utf8Names;
        zip_.Yield = [this] { work_.Advance(0); };
        zip_.Watch = [this](qint64 bytes) { work_.Advance(bytes); };
    }

    void AddReadMe(const QString& text) {
        const QString path = ProgramFolders::ScratchFolder() + u"\\ReadMe.txt"_s;
        const QByteArray bytes = AnsiCodec::Encode(text);
        Trying(u"ReadMe.txt"_s, [&] {
            Ignoring([&] { Files::DeleteForced(path); });
            Files::MakeFolders(ProgramFolders::ScratchFolder());
            WriteWhole(path, bytes);
            // A ZIP takes no empty file, so an empty text is none. This is meant.
            zip_.FileAdd(path, ZipClass::NameOnly, false);
            return AnsiCodec::Decode(bytes) == text ? ExportOutcome::Done : ExportOutcome::LettersLost;
        });
    }

    void Add(const ExportSource& source) {
        // The walk for it would begin at the root.
        if (source.Record.Path.isEmpty())
            return Tell(QString(), ExportOutcome::NoPath);
        switch (source.Record.Kind) {
        case FileKind::Map:
            AddMap(source);
            break;
        case FileKind::ShellMap:
            AddShellMap(source);
            break;
        default:
            AddFile(source);
        }
        lines_.insert(lines_.end(), source.Other.begin(), source.Other.end());
    }

    void Write() {
        written_ = FailureOf([&] { static_cast<void>(zip_.WriteZip(target_, true)); });
    }

    /// Of a ZIP that could not be written nothing is done.
    [[nodiscard]] std::vector<ExportLine> Lines() {
        if (written_.Number != 0) {
            std::erase_if(lines_, IsDone);
            lines_.insert(lines_.begin(), {Paths::ToNative(target_), ExportOutcome::NotWritten, written_.Description});
        }
        return std::move(lines_);
    }

private:
    struct Failure {
        int Number = 0; ///< 0 for none
        QString Description{};
    };

    void Tell(const QString& item, ExportOutcome outcome, const QString& reason = {}) {
        lines_.push_back({item, outcome, reason});
    }

    void Tell(const ExportFile& file, ExportOutcome outcome, const QString& reason = {}) {
        Tell(ExportSources::Shown(file.Name), outcome, reason);
    }

    template <typename Step>
    static Failure FailureOf(Step step) {
        try {
            step();
        } catch (const RuntimeError& error) {
            return {.Number = error.Number(), .Description = error.Description()};
        }
        return {};
    }

    template <typename Step>
    void Trying(const QString& item, Step step) {
        ExportOutcome outcome = ExportOutcome::Done;
        const Failure failure = FailureOf([&] { outcome = step(); });
        if (failure.Number == 0)
            Tell(item, outcome);
        else
            Tell(item, OutcomeOf(failure), ReasonOf(failure));
    }

    static ExportOutcome OutcomeOf(const Failure& failure) {
        return failure.Number == ErrorNumber::Subscript ? ExportOutcome::Empty : ExportOutcome::Failed;
    }

    static QString ReasonOf(const Failure& failure) {
        return failure.Number == ErrorNumber::Subscript ? QString() : failure.Description;
    }

    void AddMap(const ExportSource& source) {
        const QString& path = source.Record.Path;
        const QString above = path.first(std::max<qsizetype>(0, path.size() - source.Record.Name.size()));
        // Going to a folder that is missing fails, and the one before stays. Where files were found, it is there.
        if (!source.Files.empty() || Files::FolderExists(above))
            zip_.CurrentDirectory = above;
        const qint32 before = zip_.FileCount();
        const Failure failure = FailureOf([&] { zip_.FileAdd(path + u"\\*.*"_s, ZipClass::Relative, true); });
        TellWalk(source, before, failure);
    }

    void AddFile(const ExportSource& source) {
        if (source.Files.empty())
            return Tell(ExportSources::Shown(source.Record.Name), ExportOutcome::Gone);
        const QString& path = source.Record.Path;
        Trying(ExportSources::Shown(source.Files[0].Name), [&] {
            return zip_.FileAdd(path, ZipClass::NameOnly, false) > 0 ? ExportOutcome::Done : ExportOutcome::Gone;
        });
        if (source.Record.Kind == FileKind::Mod && choice_.ModRecords)
            AddModRecord(path);
    }

    void AddModRecord(const QString& mod) {
        const QByteArray record = ExportFiles::ModRecord(mod);
        const QString path = ExportFiles::ModRecordPath(mod);
        if (record.isEmpty())
            return;
        Trying(ExportSources::Shown(Paths::LastPart(path)), [&] {
            const ExportScratch scratch;
            const QString copy = scratch.Folder() + u'\\' + Paths::LastPart(path);
            WriteWhole(copy, record);
            zip_.FileAdd(copy, ZipClass::NameOnly, false);
            return ExportOutcome::Done;
        });
    }

    void AddShellMap(const ExportSource& source) {
        const QString& name = source.Record.Name;
        if (const QString refusal = FolderGateway::RefusalOfFolder(name); !refusal.isEmpty())
            return Tell(ExportSources::NameOf(source.Record), ExportOutcome::Refused, refusal);
        const qint32 before = zip_.FileCount();
        Failure failure;
        ExportSource copied{.Record = source.Record, .Files = {}, .Folders = {}, .Other = {}};
        const Failure noScratch = FailureOf([&] {
            // Nothing else is in it, so that it is packed and deleted whole whatever its name is.
            const ExportScratch scratch;
            const QString folder = scratch.Folder() + u'\\' + name;
            Files::MakeFolder(folder);
            const auto held = std::make_shared<HeldFolder>(folder);
            for (const ExportFile& file : source.Files)
                CopyTo({held, Paths::LastPart(file.Path)}, file, copied);
            zip_.CurrentDirectory = scratch.Folder() + u'\\';
            failure = FailureOf([&] { zip_.FileAdd(folder + u"\\*.*"_s, ZipClass::Relative, true); });
        });
        if (noScratch.Number != 0)
            return Tell(ExportSources::Shown(source.Record.Name), ExportOutcome::Failed, noScratch.Description);
        TellWalk(copied, before, failure);
    }

    /// A file that can't be copied costs that file only.
    void CopyTo(const FilePlace& place, const ExportFile& file, ExportSource& copied) {
        const Failure failure = FailureOf([&] {
            WatchedCopy(File::Open(file.Path, File::Access::Read), place, [this](qint64) { work_.Advance(0); });
        });
        if (failure.Number == 0)
            copied.Files.push_back(file);
        else
            Tell(file, ExportOutcome::Failed, failure.Description);
    }

    /// Which of the files are in, and why the others are not.
    void TellWalk(const ExportSource& source, qint32 before, const Failure& failure) {
        QSet<QString> stored;
        for (qint32 index = before + 1; index <= zip_.FileCount(); ++index)
            stored.insert(zip_.FileName(index));
        bool isFirst = failure.Number != 0;
        for (const ExportFile& file : source.Files) {
            if (stored.contains(file.Name))
                Tell(file, ExportOutcome::Done);
            else if (!Paths::LastPart(file.Name).contains(u'.'))
                Tell(file, ExportOutcome::NoDot);
            else if (isFirst)
                Tell(file, OutcomeOf(failure), ReasonOf(failure));
            else
                Tell(file, failure.Number != 0 ? ExportOutcome::LeftOut : ExportOutcome::Gone);
            isFirst = isFirst && (stored.contains(file.Name) || !Paths::LastPart(file.Name).contains(u'.'));
        }
        if (isFirst || source.Files.empty())
            Tell(ExportSources::Shown(source.Record.Name),
                 failure.Number != 0 ? ExportOutcome::Failed : ExportOutcome::Gone, failure.Description);
    }

    QString target_;
    const ExportChoice& choice_;
    ExportWork& work_;
    ZipClass zip_;
    Failure written_; ///< how the last write ended
    std::vector<ExportLine> lines_;
};

/// Whether the ZIP would take the place of a mod or a replay that it is to hold.
bool IsExported(const std::vector<ExportSource>& sources, const QString& target) {
    return std::ranges::any_of(sources, [&](const ExportSource& source) {
        const bool isFile = source.Record.Kind == FileKind::Mod || source.Record.Kind == FileKind::Replay;
        return isFile && !source.Files.empty() && Files::SameFile(source.Files[0].Path, target);
    });
}

/// Whether a map's folder, which is walked behind another record, holds the target.
bool IsWalkedLater(const std::vector<ExportSource>& sources, const QString& target) {
    return std::any_of(sources.begin() + 1, sources.end(), [&](const ExportSource& source) {
        return source.Record.Kind == FileKind::Map && !source.Record.Path.isEmpty() &&
               target.startsWith(source.Record.Path + u'\\', Qt::CaseInsensitive);
    });
}

} // namespace

ExportReport Exporting::ToZip(const std::vector<ExportSource>& sources, const QString& zip, const ExportChoice& choice,
                              const ExportWatch& watch) {
    if (IsExported(sources, zip))
        return {
            .Lines = {{Paths::ToNative(zip), ExportOutcome::NotWritten, u"it is one of the files to be exported"_s}}};
    ExportReport report;
    ExportWork work(watch, ExportSources::Bytes(sources));
    ZipExport run(zip, choice, work);
    try {
        if (choice.ReadMe)
            run.AddReadMe(*choice.ReadMe);
        // The archive is to be written behind each record, each time whole. Nobody sees what stands on disk between two
        // records, so it is written behind the last one only; without a record it is not written at all.
        const bool isSeen = !sources.empty() && IsWalkedLater(sources, zip);
        for (const ExportSource& source : sources) {
            run.Add(source);
            if (isSeen || &source == &sources.back())
                run.Write();
        }
    } catch (const ExportWork::Stopped&) {
        report.Cancelled = true;
    }
    report.Lines = run.Lines();
    return report;
}
