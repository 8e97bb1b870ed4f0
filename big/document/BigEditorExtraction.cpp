// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "big/document/ScratchFolders.h"
#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

std::vector<qint32> BigEditor::ChosenForExtraction() const {
    std::vector<qint32> extractList;
    // A node that is not there fails the compare, and a failed compare takes the entry. This is meant.
    const auto takeNode = [&](int node) {
        if (tree_.Has(node))
            Extraction::TakeFolder(extractList, tree_.Node(node).Key, Qt::CaseSensitive);
        else
            Extraction::TakeAll(extractList);
    };
    if (state_.FocusPane == FocusedPane::Tree) {
        takeNode(state_.SelectedNode);
        return extractList;
    }
    for (const int place : view_.SelectedRows()) {
        const FileRow& row = list_.Row(place);
        if (row.IsFolder)
            takeNode(row.Index);
        else if (row.Index <= mBIG::HighestIndex())
            Extraction::Take(extractList, row.Index);
    }
    return extractList;
}

void BigEditor::Extract() {
    if (mBIG::HighestIndex() == 0 || Locked())
        return;
    const QScopedValueRollback lock(busy_, true);
    state_.StatusText = GetText(u"BuildingFileList"_s);
    view_.StateChanged();
    const std::vector<qint32> extractList = ChosenForExtraction();
    if (extractList.empty())
        return;
    const ExtractionTarget target = view_.AskForFolder();
    if (target.ExtractCancelled)
        return;
    view_.EnableWindow(false);
    const auto enabled = qScopeGuard([this] { view_.EnableWindow(true); });
    Extraction::DoExtract(extractList, target, true);
}

bool BigEditor::ExtractBigFile(const QString& path) {
    if (!Files::FileExists(path) || Locked())
        return false;
    if (LoadBig(path)) {
        state_.SelectedNode = FolderTree::Root;
        state_.FocusPane = FocusedPane::Tree;
        Extract();
    } else {
        Host::Current().Beep();
    }
    return true;
}

// A name that may not be written is not handed out either: ".." would have the target copy what stands above.
void BigEditor::DragPlan::Offer(const QString& name) {
    if (FolderGateway::RefusalOf(name).isEmpty())
        Dragged += Target.ExtractFolder + name;
}

BigEditor::DragPlan BigEditor::PlanDrag() const {
    DragPlan plan;
    plan.Target = {.ExtractFolder = ScratchFolders::Dragged(), .ExtractCancelled = false, .RecreateFolders = false};
    for (const int place : view_.SelectedRows()) {
        const FileRow& row = list_.Row(place);
        if (!row.IsFolder && row.Index <= mBIG::HighestIndex()) {
            Extraction::Take(plan.ExtractList, row.Index);
            plan.Offer(Paths::LastPart(row.Name));
        } else if (row.IsFolder && tree_.Has(row.Index)) {
            const QString& key = tree_.Node(row.Index).Key;
            Extraction::TakeFolder(plan.ExtractList, key, Qt::CaseInsensitive);
            // One folder among the rows has the files extracted into their folders too, where they are not looked for.
            // This is meant.
            plan.Target.RecreateFolders = true;
            plan.Offer(key.chopped(1));
        }
    }
    return plan;
}

QStringList BigEditor::DragNames() const {
    return PlanDrag().Dragged;
}

QStringList BigEditor::ExtractForDrag() {
    if (Locked())
        return {};
    const QScopedValueRollback lock(busy_, true);
    DragEnded();
    const DragPlan plan = PlanDrag();
    if (!plan.ExtractList.empty())
        Extraction::DoExtract(plan.ExtractList, plan.Target, false);
    return plan.Dragged;
}

void BigEditor::DragEnded() {
    Files::DeleteFolder(ScratchFolders::Dragged());
}
