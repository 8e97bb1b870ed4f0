// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/folders/FileBoxKey.h"

namespace {

constexpr QChar asterisk = u'*';
constexpr QChar asteriskInPath(0xF02A);

} // namespace

QString FileBoxKey::Of(QStringView mark, const QString& path) {
    return mark.toString() + QString(path).replace(asterisk, asteriskInPath);
}

QString FileBoxKey::PathOf(const QString& key) {
    return key.sliced(key.lastIndexOf(asterisk) + 1).replace(asteriskInPath, asterisk);
}

QString FileBoxKey::MarkOf(const QString& key) {
    return key.first(key.lastIndexOf(asterisk) + 1);
}

QString FileBoxKey::PlaceholderOf(const QString& parentKey) {
    return Placeholder.toString() + parentKey;
}

bool FileBoxKey::IsPlaceholder(const QString& key) {
    return key.startsWith(Placeholder);
}
