// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/DragOut.h"

#include "big/document/ScratchFolders.h"
#include "core/FolderGateway.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

// A name that may not be written is not handed out either: ".." would have the target copy what stands above.
void DragOut::Plan::Offer(const QString& name) {
    if (FolderGateway::RefusalOf(name).isEmpty())
        Dragged += Target.ExtractFolder + name;
}

DragOut::Plan DragOut::PlanDrag() const {
    Plan plan;
    plan.Target = {.ExtractFolder = ScratchFolders::Dragged(), .ExtractCancelled = false, .RecreateFolders = false};
    for (const int place : panes_.View.SelectedRows()) {
        const FileRow& row = panes_.List.Row(place);
        if (!row.IsFolder && row.Index <= mBIG::HighestIndex()) {
            Extraction::Take(plan.ExtractList, row.Index);
            plan.Offer(Paths::LastPart(row.Name));
        } else if (row.IsFolder && panes_.Tree.Has(row.Index)) {
            const QString& key = panes_.Tree.Node(row.Index).Key;
            Extraction::TakeFolder(plan.ExtractList, key, Qt::CaseInsensitive);
            // One folder among the rows has the files extracted into their folders too, where they are not looked for.
            // This is meant.
            plan.Target.RecreateFolders = true;
            plan.Offer(key.chopped(1));
        }
    }
    return plan;
}

QStringList DragOut::Names() const {
    return PlanDrag().Dragged;
}

QStringList DragOut::Extract() const {
    if (EditorPanes::Locked())
        return {};
    const mBIG::ArchiveLock lock;
    Ended();
    const Plan plan = PlanDrag();
    if (Extraction::WouldBeWrong(plan.ExtractList)) {
        // No box in the middle of a drag.
        panes_.View.ShowNotice({.Text = mTraduction::GetText(u"ArchiveChanged"_s)});
        return {};
    }
    if (!plan.ExtractList.empty())
        Extraction::DoExtract(plan.ExtractList, plan.Target, false);
    return plan.Dragged;
}

void DragOut::Ended() {
    Files::DeleteFolder(ScratchFolders::Dragged());
}
