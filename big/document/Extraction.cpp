// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/Extraction.h"

#include "big/format/OpenArchive.h"
#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QScopeGuard>
#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// One extraction: where names lead, and what becomes of each entry.
class Run {
public:
    explicit Run(const ExtractionTarget& target) : target_(target) {
        // A folder without its backslash is joined with the name to another path, as it stands. This is meant.
        const qsizetype split = target.ExtractFolder.lastIndexOf(u'\\') + 1;
        prefix_ = target.ExtractFolder.sliced(split);
        try {
            gateway_ = std::make_unique<FolderGateway>(target.ExtractFolder.first(split));
        } catch (const RuntimeError& error) {
            gatewayRefused_ = error.Description();
        }
    }

    /// False when the user ends the run. Whatever else goes wrong passes the entry over.
    bool Extract(qint32 index) {
        const auto close = qScopeGuard([this] {
            if (closesEach_)
                mBIG::CloseExtraction();
        });
        const BigEntry& entry = mBIG::BigEntries.at(static_cast<std::size_t>(index));
        try {
            return TryToExtract(index, entry);
        } catch (const RuntimeError& error) {
            if (error.Number() == ErrorNumber::FileAlreadyOpen)
                behindEmpty_.push_back(index);
            else if (entry.Size != 0 || error.Number() != ErrorNumber::Subscript)
                LeaveOut(entry, entry.IsNew && !Files::FileExists(entry.SourcePath) ? GetText(u"LeftOutGone"_s)
                                                                                    : error.Description());
            return true;
        }
    }

    /// What was not written, or not whole: a line each with the reason.
    [[nodiscard]] const QStringList& LeftOut() const { return leftOut_; }

    /// Hands over the entries that were not even begun, as one of no bytes before them left the archive open. From then
    /// on none leaves it open.
    [[nodiscard]] std::vector<qint32> TakeBehindEmpty() {
        closesEach_ = true;
        return std::exchange(behindEmpty_, {});
    }

private:
    bool TryToExtract(qint32 index, const BigEntry& entry) {
        const QString name = target_.RecreateFolders ? entry.Name : Paths::LastPart(entry.Name);
        if (gateway_ == nullptr)
            throw RuntimeError(ErrorNumber::PathNotFound, gatewayRefused_);
        const FilePlace place = gateway_->PlaceFor(prefix_ + name);
        mBIG::OldFile old = mBIG::OldFile::Replaced;
        if (IsFileThere(place)) {
            if (IsNeeded(place)) {
                LeaveOut(entry, GetText(u"LeftOutNeeded"_s));
                return true;
            }
            const Host::Answer answer = AskToReplace(target_.ExtractFolder + name);
            if (answer == Host::Answer::Cancel)
                return false;
            // No runs over the file as it stands; a longer one keeps its tail. This is meant.
            if (answer != Host::Answer::Yes)
                old = mBIG::OldFile::WrittenOver;
        }
        mBIG::ExtractEntryTo(index, mBIG::BigFileName, place, old);
        if (!entry.IsNew && qint64{entry.Offset} + entry.Size > mBIG::LengthOnDisk())
            LeaveOut(entry, GetText(u"LeftOutCut"_s));
        return true;
    }

    void LeaveOut(const BigEntry& entry, const QString& reason) { leftOut_ += entry.Name + u": "_s + reason; }

    /// A link to a file counts: what is asked about is what is seen there.
    static bool IsFileThere(const FilePlace& place) {
        switch (place.Folder->StandingOf(place.Name)) {
        case HeldFolder::Standing::File:
            return true;
        case HeldFolder::Standing::Link:
            return Files::StandingAsGiven(place.Path()) == Files::Standing::File;
        default:
            return false;
        }
    }

    /// The open archive and the sources of new entries can't be targets: they would be gone before they are read.
    bool IsNeeded(const FilePlace& place) {
        if (needed_.isEmpty()) {
            needed_ += StateOf(mBIG::BigFileName).Identity;
            for (const BigEntry& entry : mBIG::BigEntries)
                if (entry.IsNew)
                    needed_ += StateOf(entry.SourcePath).Identity;
        }
        const QByteArray target = place.Folder->StateOf(place.Name).Identity;
        return !target.isEmpty() && needed_.contains(target);
    }

    static Host::Answer AskToReplace(const QString& path) {
        const QString question = Paths::ToNative(path) + "\r\n\r\n"_L1 + GetText(u"FileAlreadyExists"_s) + "\r\n"_L1 +
                                 GetText(u"NoWritesInto"_s);
        return Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNoCancel);
    }

    const ExtractionTarget& target_;
    QString prefix_;          ///< of every name
    QSet<QByteArray> needed_; ///< identities of files
    QStringList leftOut_;
    std::vector<qint32> behindEmpty_;
    bool closesEach_ = false;
    QString gatewayRefused_; ///< why there is no gateway
    std::unique_ptr<FolderGateway> gateway_;
};

/// False when the user ends the run.
bool ExtractAll(const std::vector<qint32>& extractList, const ExtractionTarget& target, Run& run, Progress& progress) {
    Host& host = Host::Current();
    const QString text = GetText(u"ProgressLbl"_s).replace("%1"_L1, Paths::LastPart(mBIG::BigFileName));
    const QString folder = Paths::ToNative(target.ExtractFolder);
    std::size_t done = 0;
    for (const qint32 index : extractList) {
        if (progress.Cancelled())
            return false;
        const QString& name = mBIG::BigEntries.at(static_cast<std::size_t>(index)).Name;
        progress.SetText(QString(text).replace("%2"_L1, name).replace("%3"_L1, folder));
        host.Yield();
        if (!run.Extract(index)) {
            progress.Cancel();
            return false;
        }
        progress.SetValue(static_cast<int>(++done * 100 / extractList.size()));
        host.Yield();
    }
    return true;
}

/// Offers what an entry of no bytes kept from being extracted, and extracts it to the end if that is wanted.
void ExtractBehindEmpty(Run& run, const ExtractionTarget& target) {
    const std::vector<qint32> list = run.TakeBehindEmpty();
    if (list.empty())
        return;
    Host& host = Host::Current();
    const QString question = GetText(u"ExtractBehindEmpty"_s).replace("%1"_L1, QString::number(list.size()));
    if (host.Message(question, Host::Icon::Question, Host::Buttons::YesNo) == Host::Answer::Yes) {
        const std::unique_ptr<Progress> progress = host.ShowProgress();
        ExtractAll(list, target, run, *progress);
        Ignoring([&] { Files::FlushSystem(target.ExtractFolder); });
    }
}

} // namespace

namespace Extraction {

void Take(std::vector<qint32>& extractList, qint32 index) {
    if (extractList.size() < MostIndices)
        extractList.push_back(index);
}

void TakeFolder(std::vector<qint32>& extractList, const QString& key, Qt::CaseSensitivity compare) {
    for (std::size_t index = 0; index < mBIG::BigEntries.size(); ++index) {
        const QString& name = mBIG::BigEntries[index].Name;
        if (!name.isEmpty() && name.contains(key, compare))
            Take(extractList, static_cast<qint32>(index));
    }
}

void TakeAll(std::vector<qint32>& extractList) {
    for (std::size_t index = 0; index < mBIG::BigEntries.size(); ++index)
        Take(extractList, static_cast<qint32>(index));
}

bool WouldBeWrong(const std::vector<qint32>& extractList) {
    return !OpenArchive::IsAsRead() && std::ranges::any_of(extractList, [](qint32 index) {
        const BigEntry& entry = mBIG::BigEntries.at(static_cast<std::size_t>(index));
        return !entry.IsNew && entry.Size > 0;
    });
}

void DoExtract(const std::vector<qint32>& extractList, const ExtractionTarget& target, bool showCompletion) {
    Host& host = Host::Current();
    std::unique_ptr<Progress> progress = host.ShowProgress();
    mBIG::CloseExtraction();
    Run run(target);
    const bool completed = ExtractAll(extractList, target, run, *progress);
    // Within a run an entry of no bytes keeps all later ones from being extracted. The next run begins afresh.
    mBIG::CloseExtraction();
    if (showCompletion) // what is dragged out is copied from there, and nothing lasts there
        Ignoring([&] { Files::FlushSystem(target.ExtractFolder); });
    if (completed) {
        progress->StopTimer();
        if (showCompletion)
            host.Message(GetText(u"ExtractionComplete"_s), Host::Icon::Information);
    } else {
        progress->Hide();
        host.Message(GetText(u"ExtractionCanceled"_s), Host::Icon::Critical);
    }
    if (!showCompletion)
        return;
    progress.reset();
    if (completed)
        ExtractBehindEmpty(run, target);
    if (!run.LeftOut().isEmpty())
        host.MessageWithList(GetText(u"LeftOut2"_s), run.LeftOut());
}

} // namespace Extraction
