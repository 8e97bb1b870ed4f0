// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Texts in a code page that a file names itself, whatever the system's own is.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace CodePage {

/// The text of bytes in the page of that number (1252, 932, 65001); nothing when the system has no such page. A byte
/// that stands for no letter there becomes some other character, and is no failure.
std::optional<QString> Decode(int page, QByteArrayView bytes);

/// The way back; nothing when the system has no such page, or the page lacks a letter.
std::optional<QByteArray> Encode(int page, QStringView text);

} // namespace CodePage
