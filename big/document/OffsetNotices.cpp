// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/OffsetNotices.h"

#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

QString TextOf(QString text, const OffsetShift::Shift& shift) {
    const QString distance = (shift.First < 0 ? u"-"_s : u"+"_s) + Sizes::Grouped(std::abs(shift.First));
    return text.replace("%1"_L1, Sizes::Grouped(shift.Count)).replace("%2"_L1, distance);
}

/// Shows a notice. It comes back when a link of it is refused, as the archive is locked.
void Tell(EditorPanes& panes, const Notice& notice) {
    Notice shown = notice;
    for (NoticeLink& link : shown.Links)
        link.Run = [&panes, notice, run = link.Run] {
            if (EditorPanes::Locked())
                Tell(panes, notice);
            else
                run();
        };
    panes.View.ShowNotice(shown);
}

bool HidesOnlyEntry(const EditorPanes& panes) {
    const std::vector<BigEntry>& entries = mBIG::BigEntries;
    return !panes.State.ShowsOnlyEntry && entries.size() == 1 && !entries.front().Name.isEmpty();
}

/// Tells what there is to tell of a shift, which may be nothing, and of an only entry that is not shown; `both` is the
/// text when it is both.
void TellWithOnlyEntry(EditorPanes& panes, const Notice& notice, const QString& both) {
    if (!HidesOnlyEntry(panes))
        return Tell(panes, notice);
    const auto show = [&panes, notice] {
        panes.State.ShowsOnlyEntry = true;
        panes.ShowSelected();
        Tell(panes, notice);
    };
    const bool isBoth = !notice.Text.isEmpty();
    Notice told{.Text = isBoth ? both : GetText(u"OneEntryNotShown"_s), .Links = {{GetText(u"Show"_s), show}}};
    if (isBoth && !notice.Links.empty())
        told.Links.push_back(notice.Links.front());
    Tell(panes, told);
}

} // namespace

namespace OffsetNotices {

bool IsExactByDefault() {
    return ReadSetting(SettingKeys::ExactOffsets) == "1"_L1;
}

void TellWritten(EditorPanes& panes, const Written& written, const std::function<void()>& saveExactly) {
    if (written.Shift.IsNone() && written.CutCount == 0)
        return TellWithOnlyEntry(panes, {}, {});
    const auto always = [saveExactly] {
        WriteSetting(SettingKeys::ExactOffsets, u"1"_s);
        saveExactly();
    };
    Notice notice;
    if (saveExactly)
        notice.Links = {{GetText(u"SaveExactly"_s), saveExactly}, {GetText(u"Always"_s), always}};
    if (written.Shift.IsNone()) {
        notice.Text = GetText(u"SavedCut"_s).replace("%1"_L1, Sizes::Grouped(written.CutCount));
        return TellWithOnlyEntry(panes, notice, GetText(u"OneEntryCut"_s));
    }
    notice.Text = TextOf(GetText(u"SavedShifted"_s), written.Shift);
    TellWithOnlyEntry(panes, notice, TextOf(GetText(u"OneEntryShifted"_s), written.Shift));
}

void TellNotSaved(EditorPanes& panes, const std::function<void()>& saveExactly) {
    Tell(panes, {.Text = GetText(u"OneEntryNotSaved"_s), .Links = {{GetText(u"SaveExactly"_s), saveExactly}}});
}

void TellOnlyEntry(EditorPanes& panes) {
    if (HidesOnlyEntry(panes))
        TellWithOnlyEntry(panes, {}, {});
}

void TellOpened(EditorPanes& panes, const OffsetShift::Shift& shift, const std::function<bool()>& readBack) {
    if (shift.IsNone())
        return TellWithOnlyEntry(panes, {}, {});
    if (shift.ExactFits)
        return TellWithOnlyEntry(panes, {.Text = TextOf(GetText(u"MayBeShifted"_s), shift)},
                                 TextOf(GetText(u"OneEntryMayBeShifted"_s), shift));
    const auto mend = [&panes, readBack] {
        if (!readBack())
            return;
        panes.State.Modified = true;
        panes.View.StateChanged();
        TellWithOnlyEntry(panes, {}, {});
    };
    TellWithOnlyEntry(
        panes, {.Text = TextOf(GetText(u"ArchiveShifted"_s), shift), .Links = {{GetText(u"ReadShiftedBack"_s), mend}}},
        TextOf(GetText(u"OneEntryShifted"_s), shift));
}

} // namespace OffsetNotices
