// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rescue/RescueOffers.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "core/rescue/LeftBeside.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"

#include <QLocale>

#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// Runs a step on the disk; what fails is told. Whether it succeeded.
bool Telling(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const RuntimeError& error) {
        Host::Current().Message(error.Description(), Host::Icon::Critical);
        return false;
    }
}

} // namespace

void RescueOffers::TellLeft() {
    Ignoring([] { Rescues::Sweep(); });
    for (Rescues::Left& left : Rescues::LeftFor(editor_.Kind)) {
        const QString path = left.Facts.Path;
        offers_.push_back({.Rescue = std::move(left), .Path = path});
    }
    ShowNext();
}

bool RescueOffers::TellBeside(const QString& path) {
    if (LeftBy(path).isEmpty())
        return false;
    Remove(path);
    offers_.push_front({.Path = path});
    ShowNext();
    return true;
}

void RescueOffers::Remove(const QString& path) {
    std::erase_if(offers_, [&](const Offer& offer) { return !offer.Rescue && offer.Path == path; });
}

/// A save through a link leaves it beside what the link leads to, or beside the link.
QString RescueOffers::LeftBy(const QString& path) const {
    for (const QString& saved : {ReplacedFile::BehindLinks(path), path}) {
        QString left = saved + editor_.Beside;
        if (Files::FileExists(left) && editor_.IsWhole(left))
            return left;
    }
    return {};
}

void RescueOffers::ShowNext() {
    while (!offers_.empty() && !Show(offers_.front()))
        offers_.pop_front();
    if (offers_.empty())
        view_.ShowOffer({});
}

/// False when there is nothing to offer any more.
bool RescueOffers::Show(const Offer& offer) {
    if (offer.Rescue) {
        if (!Rescues::IsLeft(offer.Rescue->Folder))
            return false;
        QString text = editor_.Text ? editor_.Text(*offer.Rescue) : QString();
        if (text.isEmpty())
            text = GetText(u"Rescued"_s);
        const QString when = QLocale().toString(offer.Rescue->Facts.Time.toLocalTime(), QLocale::ShortFormat);
        text.replace("%2"_L1, when).replace("%1"_L1, Paths::ToNative(offer.Path));
        view_.ShowOffer({.Text = text,
                         .Links = {{GetText(u"Open"_s), [this, offer] { Open(offer); }},
                                   {GetText(u"ThrowAway"_s), [this, offer] { ThrowAway(offer); }}}});
        return true;
    }
    const QString path = offer.Path;
    const QString left = LeftBy(path);
    if (left.isEmpty())
        return false;
    const QString text =
        GetText(u"LeftBeside"_s).replace("%2"_L1, Paths::LastPart(left)).replace("%1"_L1, Paths::ToNative(path));
    const auto showFolder = [this, left] {
        view_.OpenFolder(Paths::Folder(left));
        ShowNext();
    };
    view_.ShowOffer({.Text = text,
                     .Links = {{GetText(u"PutBack"_s), [this, path] { PutBack(path); }},
                               {GetText(u"KeepBoth"_s), [this, path] { KeepBoth(path); }},
                               {GetText(u"ShowFolder"_s), showFolder}}});
    return true;
}

/// What a save left beside the document's file is known by its rescue alone: it is offered while that is.
void RescueOffers::Answered(const Offer& offer) {
    std::erase_if(offers_,
                  [&](const Offer& each) { return each.Rescue && each.Rescue->Folder == offer.Rescue->Folder; });
    if (!offer.Rescue->Facts.NeverSaved)
        TellBeside(offer.Path);
    ShowNext();
}

void RescueOffers::Open(const Offer& offer) {
    if (!editor_.Open(*offer.Rescue))
        return ShowNext();
    Answered(offer);
}

void RescueOffers::ThrowAway(const Offer& offer) {
    Rescues::ThrowAway(offer.Rescue->Folder);
    Answered(offer);
}

void RescueOffers::TellKept(const QString& kept) {
    if (!kept.isEmpty())
        view_.ShowNotice({.Text = GetText(u"KeptAs"_s).replace("%1"_L1, Paths::ToNative(kept))});
}

void RescueOffers::PutBack(const QString& path) {
    QString kept;
    const bool done = editor_.MayReplace() &&
                      Telling([&] { kept = LeftBeside::PutBack(ReplacedFile::BehindLinks(path), LeftBy(path)); });
    if (!done)
        return ShowNext();
    editor_.Replaced(path);
    Remove(path);
    ShowNext();
    TellKept(kept);
}

void RescueOffers::KeepBoth(const QString& path) {
    QString kept;
    if (Telling([&] { kept = LeftBeside::KeepBoth(path, LeftBy(path)); }))
        Remove(path);
    ShowNext();
    TellKept(kept);
}
