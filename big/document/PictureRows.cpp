// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/PictureRows.h"

#include "core/mTraduction.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

PictureRows::Place PictureRows::PlaceOf(const FileList& list, int entry) {
    Place place;
    for (int row = 0; row < list.Count(); ++row) {
        if (list.Row(row).IsFolder || !Preview::IsPicture(list.Text(row)))
            continue;
        ++place.Count;
        if (list.Row(row).Index == entry)
            place.Number = place.Count;
        else if (place.Number == 0)
            place.Before = row;
        else if (place.Behind < 0)
            place.Behind = row;
    }
    if (place.Number > 0)
        return place;
    place.Before = -1;
    for (int row = list.Count() - 1; row >= 0; --row)
        if (!list.Row(row).IsFolder && Preview::IsPicture(list.Text(row)))
            place.Behind = row;
    return place;
}

QString PictureRows::Facts(const PreviewState& state) {
    if (state.PictureUnread)
        return GetText(u"PictureUnread"_s);
    if (state.WholeSize.isEmpty())
        return {};
    QStringList facts{u"%1\u00D7%2"_s.arg(state.WholeSize.width()).arg(state.WholeSize.height())};
    if (!state.Facts.Format.isEmpty())
        facts += state.Facts.Format;
    if (state.Facts.Mipmaps > 0)
        facts += GetText(u"MipmapCount"_s).replace("%1"_L1, QString::number(state.Facts.Mipmaps));
    return facts.join(u", "_s);
}
