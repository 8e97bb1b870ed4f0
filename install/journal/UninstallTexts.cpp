// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/UninstallTexts.h"

#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;
using Fate = PlannedRemoval::Fate;

namespace {

/// So that all lists together fit on a screen.
constexpr qsizetype MostLines = 6;

void AddList(QStringList& lines, const QString& headKey, const QStringList& items) {
    if (items.isEmpty())
        return;
    lines += QString();
    lines += GetText(headKey).replace(u"%1"_s, Sizes::Grouped(items.size()));
    // One more line says no less than the count of one.
    const qsizetype shown = items.size() <= MostLines + 1 ? items.size() : MostLines;
    lines += items.first(shown);
    if (shown < items.size())
        lines += GetText(u"AndMore"_s).replace(u"%1"_s, Sizes::Grouped(items.size() - shown));
}

QString AboveOf(const QString& folder) {
    return folder.isEmpty() ? QString() : Paths::Folder(folder.chopped(1));
}

} // namespace

QString UninstallTexts::Shown(const QString& path, GameIndex game) {
    const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    for (const QString& base : {entry.InstallFolder(), AboveOf(entry.MapFolder()), AboveOf(entry.ReplayFolder())}) {
        if (!base.isEmpty() && path.size() > base.size() && path.startsWith(base, Qt::CaseInsensitive))
            return Paths::ToNativeAsGiven(path.sliced(base.size()));
    }
    return Paths::ToNativeAsGiven(path);
}

QString UninstallTexts::Question(const UninstallPlan& plan) {
    const auto shown = [&](QStringList paths) {
        for (QString& path : paths)
            path = Shown(path, plan.Game);
        return paths;
    };
    const QString day = QLocale().toString(plan.Time.toLocalTime().date(), QLocale::ShortFormat);
    QStringList lines{GetText(u"UninstallAsk"_s).replace(u"%2"_s, day).replace(u"%1"_s, plan.Source)};
    AddList(lines, u"UninstallGoes"_s, shown(plan.Paths(Fate::Goes)));
    AddList(lines, u"UninstallFolders"_s, shown(plan.Folders));
    AddList(lines, u"UninstallBack"_s, shown(plan.Paths(Fate::ComesBack)));
    AddList(lines, u"UninstallChanged"_s, shown(plan.Paths(Fate::Changed)));
    AddList(lines, u"UninstallUnknown"_s, shown(plan.Paths(Fate::Unknown)));
    AddList(lines, u"UninstallLater"_s, shown(plan.Paths(Fate::Superseded)));
    if (lines.size() == 1)
        lines += {QString(), GetText(u"UninstallNothing"_s)};
    return lines.join(u"\r\n"_s);
}

QString UninstallTexts::Failed(const QStringList& failures) {
    QStringList lines;
    AddList(lines, u"UninstallFailed"_s, failures);
    return lines.mid(1).join(u"\r\n"_s);
}
