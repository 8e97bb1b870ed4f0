// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/OffsetNotices.h"

#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

QString TextOf(QString text, const OffsetShift::Shift& shift) {
    const QString distance = (shift.First < 0 ? u"-"_s : u"+"_s) + Sizes::Grouped(std::abs(shift.First));
    return text.replace("%1"_L1, Sizes::Grouped(shift.Count)).replace("%2"_L1, distance);
}

/// Gives the entries the offsets at which their bytes lie, whatever was changed in the table since. Does nothing when
/// another archive is open by then.
std::function<bool()> ReadBack(const OffsetShift::Shift& shift) {
    std::vector<qint32> offsets;
    for (const BigEntry& entry : OffsetShift::ReadShiftedBack(mBIG::Open(), shift).Entries)
        offsets.push_back(entry.Offset);
    return [offsets = std::move(offsets), archive = mBIG::CurrentIdentity()] {
        if (archive != mBIG::CurrentIdentity())
            return false;
        const std::size_t count = std::min(offsets.size(), mBIG::BigEntries.size());
        for (std::size_t index = 0; index < count; ++index)
            if (BigEntry& entry = mBIG::BigEntries[index]; !entry.IsNew)
                entry.Offset = offsets[index];
        return true;
    };
}

} // namespace

namespace OffsetNotices {

bool IsExactByDefault() {
    return ReadSetting(SettingKeys::ExactOffsets) == "1"_L1;
}

void TellWritten(EditorPanes& panes, const OffsetShift::Shift& shift, const std::function<void()>& saveExactly) {
    if (shift.IsNone())
        return panes.View.ShowNotice({});
    const auto save = [readBack = ReadBack(shift), saveExactly] {
        if (!EditorPanes::Locked() && readBack())
            saveExactly();
    };
    const auto always = [save] {
        WriteSetting(SettingKeys::ExactOffsets, u"1"_s);
        save();
    };
    panes.View.ShowNotice({.Text = TextOf(GetText(u"SavedShifted"_s), shift),
                           .Links = {{GetText(u"SaveExactly"_s), save}, {GetText(u"Always"_s), always}}});
}

void TellNotSaved(EditorPanes& panes, const std::function<void()>& saveExactly) {
    panes.View.ShowNotice(
        {.Text = GetText(u"OneEntryNotSaved"_s), .Links = {{GetText(u"SaveExactly"_s), saveExactly}}});
}

void TellOpened(EditorPanes& panes) {
    const std::vector<BigEntry>& entries = mBIG::BigEntries;
    const OffsetShift::Shift shift = OffsetShift::ShiftOf(mBIG::Open(), mBIG::LengthOnDisk());
    Notice notice;
    if (entries.size() == 1 && !entries.front().Name.isEmpty()) {
        const auto show = [&panes] {
            panes.State.ShowsOnlyEntry = true;
            panes.ShowSelected();
        };
        notice = {.Text = GetText(u"OneEntryNotShown"_s), .Links = {{GetText(u"Show"_s), show}}};
    } else if (!shift.IsNone() && shift.ExactFits) {
        notice.Text = TextOf(GetText(u"MayBeShifted"_s), shift);
    } else if (!shift.IsNone()) {
        const auto mend = [&panes, readBack = ReadBack(shift)] {
            if (EditorPanes::Locked() || !readBack())
                return;
            panes.State.Modified = true;
            panes.View.StateChanged();
        };
        notice = {.Text = TextOf(GetText(u"ArchiveShifted"_s), shift),
                  .Links = {{GetText(u"ReadShiftedBack"_s), mend}}};
    }
    panes.View.ShowNotice(notice);
}

} // namespace OffsetNotices
