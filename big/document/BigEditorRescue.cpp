// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"
#include "core/Host.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

std::optional<RescuedArchive> ReadRescued(const Rescues::Left& left) {
    std::optional<RescuedArchive> rescued;
    Ignoring([&] { rescued = RescuedArchive::Decoded(Rescues::ContentOf(left)); });
    return rescued;
}

/// Whether the records fit to what is on the disk now.
bool IsSame(const RescueFacts& facts, const RescuedArchive& rescued) {
    return facts.NeverSaved ? !Files::FileExists(facts.Path) : rescued.Mark.Fits(ArchiveMark::Of(facts.Path));
}

QString TextOf(const Rescues::Left& left) {
    const auto rescued = ReadRescued(left);
    if (!rescued || IsSame(left.Facts, *rescued))
        return {};
    return GetText(u"RescuedChanged"_s).replace("%3"_L1, Sizes::Grouped(rescued->NewCount()));
}

/// An archive of which nothing is missing: one that was being copied when its process was killed is no help.
bool IsWhole(const QString& path) {
    bool whole = false;
    Ignoring([&] {
        const qint64 length = Files::FileLength(path);
        const std::vector<BigEntry> entries = Archives::Read(path).Entries;
        whole = std::ranges::all_of(entries, [length](const BigEntry& entry) {
            return entry.Size <= 0 || (entry.Offset >= 0 && qint64{entry.Offset} + entry.Size <= length);
        });
    });
    return whole;
}

} // namespace

RescueOffers::Editor BigEditor::ForOffers() {
    return {.Kind = ArchiveRescue::Kind,
            .Beside = u".tmp"_s,
            .Text = TextOf,
            .IsWhole = IsWhole,
            .Open = [this](const Rescues::Left& left) { return OpenRescue(left); },
            .MayReplace =
                [this] {
                    if (EditorPanes::Locked())
                        return false;
                    const EditorPanes::Command command(panes_);
                    return MayLeaveArchive();
                },
            .Replaced = [this](const QString& path) { OpenBigFile(path); }};
}

/// Opens what the rescue goes with. A file that is no archive any more is not to be saved over: what is left of the
/// rescue gets a name of its own then.
bool BigEditor::LoadUnderRescue(const RescueFacts& facts, const RescuedArchive& rescued) {
    if (!facts.NeverSaved && Ignoring([&] { mBIG::Load(facts.Path); })) {
        rescue_.Opened(ArchiveRescue::Origin::File);
        return IsSame(facts, rescued);
    }
    const bool isFree = facts.NeverSaved && !Files::FileExists(facts.Path);
    const QString path = isFree ? facts.Path : GetText(u"New"_s) + "BIG.big"_L1;
    mBIG::New(path, rescued.Version);
    rescue_.Opened(ArchiveRescue::Origin::Fresh);
    return isFree;
}

void BigEditor::ApplyRescued(const RescuedArchive& rescued, const QString& folder, bool whole) {
    panes_.State.ExactOffsets = rescued.ExactOffsets;
    if (whole)
        rescued.ApplyTo(mBIG::Open(), folder);
    else
        rescued.AddNewTo(mBIG::Open(), folder);
    panes_.State.Modified = true;
    panes_.CreateDirs();
    ArchiveOpened();
}

bool BigEditor::OpenRescue(const Rescues::Left& left) {
    if (EditorPanes::Locked())
        return false;
    const EditorPanes::Command command(panes_);
    if (!MayLeaveArchive())
        return false;
    const auto rescued = ReadRescued(left);
    if (!rescued) {
        Host::Current().Beep();
        return false;
    }
    panes_.View.ShowWindow();
    const Busy busy(panes_.View);
    const bool whole = LoadUnderRescue(left.Facts, *rescued);
    panes_.State.DetailsVisible = false;
    TakeNewArchive();
    saves_.TellOpened();
    // Another program may have taken it since it was offered.
    if (rescue_.Adopt(left.Folder))
        ApplyRescued(*rescued, left.Folder, whole);
    else
        ResetAfterOpen();
    return true;
}
