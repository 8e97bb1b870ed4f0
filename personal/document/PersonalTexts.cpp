// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/document/PersonalTexts.h"

#include "core/Sizes.h"
#include "core/mTraduction.h"

#include <QLocale>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

PersonalTexts::PersonalTexts()
    : rowCount_(GetText(u"RowCount"_s)),
      rowsChecked_(GetText(u"RowsChecked"_s)),
      kiloBytes_(GetText(u"KiloBytes"_s)),
      megaBytes_(GetText(u"MegaBytes"_s)) {}

QString PersonalTexts::Hint(PersonalKind kind) {
    switch (kind) {
    case PersonalKind::Map:
        return GetText(u"NoMaps"_s);
    case PersonalKind::Replay:
        return GetText(u"NoReplays"_s);
    case PersonalKind::ShellMap:
        return GetText(u"NoShellMaps"_s);
    case PersonalKind::Mod:
        return GetText(u"NoMods"_s);
    }
    return {};
}

// Kilobytes, and from a megabyte on megabytes with one decimal.
QString PersonalTexts::SizeText(qint64 bytes) const {
    constexpr qint64 kiloByte = 1024;
    constexpr qint64 megaByte = 1024 * kiloByte;
    if (bytes < megaByte)
        return Sizes::Grouped(bytes / kiloByte) + u' ' + kiloBytes_;
    return QLocale().toString(static_cast<double>(bytes) / megaByte, 'f', 1) + u' ' + megaBytes_;
}

QString PersonalTexts::Status(int rows, int checked, qint64 size) const {
    QString text = QString(rowCount_).replace(u"%1"_s, Sizes::Grouped(rows));
    if (checked > 0)
        text +=
            u", "_s + QString(rowsChecked_).replace(u"%1"_s, Sizes::Grouped(checked)).replace(u"%2"_s, SizeText(size));
    return text;
}
