// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ExtractCommand.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

/// Tells that the archive was changed meanwhile, if it was.
bool Refuses(const std::vector<qint32>& extractList) {
    const bool refuses = Extraction::WouldBeWrong(extractList);
    if (refuses)
        Host::Current().Message(Paths::ToNative(mBIG::BigFileName) + "\r\n\r\n"_L1 +
                                    mTraduction::GetText(u"ArchiveChanged"_s),
                                Host::Icon::Critical);
    return refuses;
}

} // namespace

std::vector<qint32> ExtractCommand::Chosen() const {
    std::vector<qint32> extractList;
    // A node that is not there fails the compare, and a failed compare takes the entry. This is meant.
    const auto takeNode = [&](int node) {
        if (panes_.Tree.Has(node))
            Extraction::TakeFolder(extractList, panes_.Tree.Node(node).Key, Qt::CaseSensitive);
        else
            Extraction::TakeAll(extractList);
    };
    if (panes_.State.FocusPane == FocusedPane::Tree) {
        takeNode(panes_.State.SelectedNode);
        return extractList;
    }
    for (const int place : panes_.View.SelectedRows()) {
        const FileRow& row = panes_.List.Row(place);
        if (row.IsFolder)
            takeNode(row.Index);
        else if (row.Index <= mBIG::HighestIndex())
            Extraction::Take(extractList, row.Index);
    }
    return extractList;
}

void ExtractCommand::TellNothing() {
    panes_.View.ShowNotice({.Text = mTraduction::GetText(u"NothingToExtract"_s)});
}

void ExtractCommand::Run() {
    // An only entry is not extracted. This is meant.
    if (mBIG::HighestIndex() == 0 && !Archives::IsBlank(mBIG::Open()))
        return TellNothing();
    if (mBIG::HighestIndex() == 0 || EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    const mBIG::ArchiveLock lock;
    const QString status = panes_.State.StatusText;
    panes_.State.StatusText = mTraduction::GetText(u"BuildingFileList"_s);
    panes_.View.StateChanged();
    const std::vector<qint32> extractList = Chosen();
    if (extractList.empty()) {
        panes_.State.StatusText = status;
        panes_.View.StateChanged();
        return TellNothing();
    }
    if (Refuses(extractList))
        return;
    const ExtractionTarget target = panes_.View.AskForFolder();
    // The chooser may have stood there for long.
    if (target.ExtractCancelled || Refuses(extractList))
        return;
    panes_.View.EnableWindow(false);
    const auto enabled = qScopeGuard([this] { panes_.View.EnableWindow(true); });
    Extraction::DoExtract(extractList, target, true);
}
