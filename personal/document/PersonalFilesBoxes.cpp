// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The two boxes of a mod or shell map, which are written at every change.

#include "core/FileMoves.h"
#include "core/mMain.h"
#include "personal/document/PersonalFiles.h"
#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto nameKey = "Name"_L1;
constexpr auto commentsKey = "Comments"_L1;
constexpr auto modCommentsKey = "Commentse"_L1;
constexpr auto shellMapSection = "Infos"_L1;

QString IniOf(const QString& mod) {
    constexpr qsizetype extension = 4;
    return mod.first(mod.size() - std::min(extension, mod.size())) + u".ini"_s;
}

/// The value of an INI file that was read up to `value`, as far as it goes in the file: no more than 254 characters are
/// ever read.
QString WholeValue(const QString& value, const QString& file) {
    constexpr qsizetype longest = 254;
    QString text;
    if (value.size() == longest)
        Ignoring([&] { text = AnsiCodec::Decode(ReadWhole(file)); });
    const qsizetype at = text.indexOf(value);
    if (at < 0)
        return value;
    qsizetype end = at;
    while (end < text.size() && text[end] != u'\r' && text[end] != u'\n')
        ++end;
    const QString whole = text.sliced(at, end - at).trimmed();
    const QChar before = at > 0 ? text[at - 1] : QChar();
    const bool isQuoted = (before == u'"' || before == u'\'') && whole.endsWith(before);
    return isQuoted ? whole.chopped(1) : whole;
}

} // namespace

std::optional<GameFiles::RecordPlace> PersonalFiles::PlaceOfBoxes() const {
    if (state_.Kind == PersonalKind::Mod && !modPath_.isEmpty())
        return GameFiles::RecordPlace{.File = IniOf(modPath_), .Section = u"Mod"_s};
    if (state_.Kind != PersonalKind::ShellMap || !Has(shellMaps_.Selected()))
        return {};
    const QString folder = shellMaps_.Rows().Row(shellMaps_.Selected()).Key;
    return GameFiles::RecordPlace{.File = folder + u"\\QvInfos.ini"_s, .Section = shellMapSection};
}

void PersonalFiles::NameTyped(const QString& text) {
    ChangeName(text, By::User);
}

void PersonalFiles::CommentsTyped(const QString& text) {
    ChangeComments(text, By::User);
}

// What a selection fills in is written like what a user types. This is meant.
void PersonalFiles::FillBoxes() {
    const std::optional<GameFiles::RecordPlace> place = PlaceOfBoxes();
    if (!place)
        return;
    const auto [name, comments] = GameFiles::ReadRecord(*place);
    const QString wholeName = WholeValue(name, place->File);
    const QString wholeComments = WholeValue(comments, place->File);
    const bool namesDiffer = name != state_.NameText;
    const bool commentsDiffer = comments != state_.CommentsText;
    ChangeName(name, By::Selection);
    ChangeComments(comments, By::Selection);
    view_.BoxesChanged();
    const auto tellCut = [&](QLatin1StringView key, const QString& whole) {
        notices_.TellLost({.Place = *place, .Key = key, .Value = whole, .How = LossNotices::Lost::Why::Cut});
    };
    if (namesDiffer && wholeName.size() > name.size())
        tellCut(nameKey, wholeName);
    // A mod's comments stay whole: they are written elsewhere.
    if (commentsDiffer && wholeComments.size() > comments.size() && state_.Kind == PersonalKind::ShellMap)
        tellCut(commentsKey, wholeComments);
}

// A text box tells of a change only when its text is another one.
void PersonalFiles::ChangeName(const QString& text, By by) {
    if (text == state_.NameText)
        return;
    state_.NameText = text;
    const std::optional<GameFiles::RecordPlace> place = PlaceOfBoxes();
    if (!place)
        return;
    if (by == By::User)
        notices_.Forget(place->File, nameKey);
    Write(*place, nameKey, text, by);
    GameList& list = List(state_.Kind);
    if (!Has(list.Selected()))
        return;
    if (state_.Kind == PersonalKind::Mod)
        list.Rows().SetSubItem(list.Selected(), ModList::Name, text);
    else
        list.Rows().SetText(list.Selected(), text);
    view_.RowChanged(state_.Kind, list.Selected());
}

void PersonalFiles::ChangeComments(const QString& text, By by) {
    if (text == state_.CommentsText)
        return;
    state_.CommentsText = text;
    const std::optional<GameFiles::RecordPlace> place = PlaceOfBoxes();
    if (!place)
        return;
    if (state_.Kind == PersonalKind::Mod)
        return WriteModComment(*place, text, by);
    if (by == By::User)
        notices_.Forget(place->File, commentsKey);
    Write(*place, commentsKey, text, by); // The list keeps the comments that it was filled with. This is meant.
}

// No reader asks for that key, so that the comment is not seen again. This is meant.
void PersonalFiles::WriteModComment(const GameFiles::RecordPlace& place, const QString& text, By by) {
    const QString earlier = mMain::INI().ReadINI(place.Section, modCommentsKey, place.File);
    Write(place, modCommentsKey, text, by);
    const bool isRead = text == mMain::INI().ReadINI(place.Section, commentsKey, place.File);
    if (by == By::User && isRead)
        notices_.Forget(place.File, commentsKey);
    else if (by == By::User)
        notices_.TellLost({.Place = place, .Key = commentsKey, .Value = text});
    else if (!earlier.isEmpty() && earlier != text) // typed some time ago, and gone with this
        notices_.TellLost({.Place = place, .Key = commentsKey, .Value = earlier});
}

void PersonalFiles::Write(const GameFiles::RecordPlace& place, const QString& key, const QString& value, By by) {
    const FileMoves::Rewrite rewrite(place.File);
    const bool written = mMain::INI().WriteINI(place.Section, key, value, place.File) == u"1"_s;
    if (!written && by == By::User)
        notices_.TellNotWritten(place.File);
}

// Behind a delete: the selected mod is gone, and the shell maps' folders may be others'.
void PersonalFiles::ForgetLost() {
    if (state_.Kind == PersonalKind::Mod)
        notices_.Forget(IniOf(modPath_), commentsKey);
    if (state_.Kind == PersonalKind::ShellMap)
        notices_.ForgetSection(shellMapSection);
}

void PersonalFiles::CommentKept(const LossNotices::Lost& lost) {
    for (int place = 0; place < mods_.Rows().Count(); ++place) {
        if (lost.Key != commentsKey || IniOf(mods_.Rows().Row(place).Key) != lost.Place.File)
            continue;
        mods_.Rows().SetSubItem(place, ModList::Comments, lost.Value);
        view_.RowChanged(PersonalKind::Mod, place);
    }
}
