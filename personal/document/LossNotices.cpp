// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/document/LossNotices.h"

#include "core/FileMoves.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/FileNumbers.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

LossNotices::LossNotices(DocumentView& view, Kept kept) : view_(view), kept_(std::move(kept)) {}

void LossNotices::TellOpenNumber() {
    if (NumberedFiles::IsOpen(FileNumbers::Replay))
        Tell();
}

void LossNotices::TellLost(const Lost& lost) {
    const Name name(lost.Place.File, lost.Key);
    lost_[name] = lost;
    // Not at each key: the line reads itself to those who can't see it.
    if (std::exchange(told_, name) != name)
        Tell();
}

void LossNotices::TellNotWritten(const QString& iniFile) {
    if (std::exchange(notWritten_, iniFile) != iniFile)
        Tell();
}

void LossNotices::Forget(const QString& iniFile, const QString& key) {
    const Name name(iniFile, key);
    if (told_ == name)
        told_ = {};
    if (lost_.erase(name) > 0)
        Tell();
}

void LossNotices::RowSelected() {
    told_ = {};
    notWritten_.clear();
}

void LossNotices::ForgetSection(const QString& section) {
    if (std::erase_if(lost_, [&](const auto& entry) { return entry.second.Place.Section == section; }) > 0)
        Tell();
}

bool LossNotices::Has(Lost::Why why) const {
    return std::any_of(lost_.begin(), lost_.end(), [&](const auto& entry) { return entry.second.How == why; });
}

void LossNotices::Tell() {
    QStringList texts;
    Notice notice;
    if (NumberedFiles::IsOpen(FileNumbers::Replay)) {
        texts += GetText(u"ReplayStaysOpen"_s).replace(u"%1"_s, NumberedFiles::Of(FileNumbers::Replay).Name());
        notice.Links.push_back({GetText(u"LetGoOfIt"_s), [this] { LetGo(); }});
    }
    if (Has(Lost::Why::Unread))
        texts += GetText(u"CommentNotRead"_s);
    if (Has(Lost::Why::Cut))
        texts += GetText(u"TextWasCut"_s);
    if (!lost_.empty())
        notice.Links.push_back({GetText(u"KeepIt"_s), [this] { Keep(); }});
    if (!notWritten_.isEmpty())
        texts += GetText(u"TypedNotWritten"_s).replace(u"%1"_s, Paths::ToNative(notWritten_));
    notice.Text = texts.join(u' ');
    if (!texts.isEmpty() || shown_)
        view_.ShowNotice(notice);
    shown_ = !texts.isEmpty();
}

void LossNotices::LetGo() {
    Ignoring([] { NumberedFiles::Close(FileNumbers::Replay); });
    Tell();
}

// What can't be written stays to be kept.
void LossNotices::Keep() {
    told_ = {};
    for (const auto& [name, lost] : std::exchange(lost_, {})) {
        const FileMoves::Rewrite rewrite(lost.Place.File);
        if (mMain::INI().WriteINI(lost.Place.Section, lost.Key, lost.Value, lost.Place.File) == u"1"_s) {
            kept_(lost);
        } else {
            lost_[name] = lost;
            notWritten_ = lost.Place.File;
        }
    }
    Tell();
}
