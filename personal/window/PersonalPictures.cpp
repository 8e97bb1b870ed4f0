// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/PersonalPictures.h"

#include "ui/look/DrawnIcon.h"

using namespace Qt::StringLiterals;

namespace {

QIcon Drawn(const QString& picture, const QString& selectedPicture) {
    return DrawnIcon::Has(picture) ? QIcon(new DrawnIcon(picture, selectedPicture)) : QIcon();
}

} // namespace

QString PersonalPictures::NameOf(std::optional<PersonalKind> kind) {
    if (!kind)
        return u"game"_s;
    switch (*kind) {
    case PersonalKind::Map:
        return u"map"_s;
    case PersonalKind::Replay:
        return u"replay"_s;
    case PersonalKind::ShellMap:
        return u"shell-map"_s;
    case PersonalKind::Mod:
        break;
    }
    return u"mod"_s;
}

QIcon PersonalPictures::Of(std::optional<PersonalKind> kind) {
    const QString name = NameOf(kind);
    return Drawn(name, name);
}

QIcon PersonalPictures::OfPlayer(const PlayerNode& node) {
    const auto nameOf = [](const QString& key) { return u"side-"_s + key.toLower(); };
    const QString& selected = node.SelectedPicture.isEmpty() ? node.Picture : node.SelectedPicture;
    return Drawn(nameOf(node.Picture), nameOf(selected));
}
