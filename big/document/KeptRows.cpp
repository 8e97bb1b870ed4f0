// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/KeptRows.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int gone = -1;

/// What each row is known by: its kind and its text, whose case a save may change, and a number among equal ones.
QStringList NamesOf(const FileList& list) {
    QStringList names;
    QHash<QString, int> known;
    names.reserve(list.Count());
    for (int place = 0; place < list.Count(); ++place) {
        const QString name = (list.Row(place).IsFolder ? u"DIR:"_s : u"BIG:"_s) + list.Text(place).toLower() + u'\\';
        names += name + QString::number(++known[name]);
    }
    return names;
}

/// The new place of each old row.
std::vector<int> PlacesOf(const QStringList& before, const QStringList& now) {
    QHash<QString, int> places;
    for (qsizetype place = 0; place < now.size(); ++place)
        places.insert(now[place], static_cast<int>(place));
    std::vector<int> found;
    found.reserve(static_cast<std::size_t>(before.size()));
    for (const QString& name : before)
        found.push_back(places.value(name, gone));
    return found;
}

/// The first row from `place` on that is still there, or the last one before it.
int NeighbourOf(const std::vector<int>& newPlaces, int place) {
    const auto isThere = [](int newPlace) { return newPlace != gone; };
    const auto at = newPlaces.begin() + place;
    if (const auto behind = std::find_if(at, newPlaces.end(), isThere); behind != newPlaces.end())
        return *behind;
    const auto before = std::find_if(std::make_reverse_iterator(at), newPlaces.rend(), isThere);
    return before == newPlaces.rend() ? gone : *before;
}

} // namespace

KeptRows::KeptRows(EditorPanes& panes)
    : panes_(panes),
      folder_(panes.SelectedKey().toLower()),
      rows_(NamesOf(panes.List)),
      place_(panes.View.Where()) {}

ViewPlace KeptRows::PlaceNow() const {
    ViewPlace now{.Selected = {}, .Current = gone, .ListScroll = {}, .TreeScroll = place_.TreeScroll};
    if (panes_.SelectedKey().toLower() != folder_)
        return now;
    now.ListScroll = place_.ListScroll;
    const std::vector<int> newPlaces = PlacesOf(rows_, NamesOf(panes_.List));
    const auto has = [&](int place) { return place >= 0 && static_cast<std::size_t>(place) < newPlaces.size(); };
    for (const int place : place_.Selected)
        if (has(place) && newPlaces[static_cast<std::size_t>(place)] != gone)
            now.Selected.push_back(newPlaces[static_cast<std::size_t>(place)]);
    std::ranges::sort(now.Selected);
    if (has(place_.Current))
        now.Current = NeighbourOf(newPlaces, place_.Current);
    if (now.Selected.empty() && !place_.Selected.empty() && now.Current != gone)
        now.Selected = {now.Current};
    return now;
}

void KeptRows::PutBack() {
    const ViewPlace now = PlaceNow();
    panes_.View.GoTo(now);
    const bool currentIsSelected = std::ranges::find(now.Selected, now.Current) != now.Selected.end();
    if (panes_.Selected && !currentIsSelected)
        panes_.Selected(now.Selected.empty() ? gone : now.Selected.front());
    else if (panes_.Selected)
        panes_.Selected(now.Current);
}
