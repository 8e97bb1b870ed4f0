// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the program keeps for the user's comfort, in one small file of the user's data folder: where windows stood,
/// what was open. Nothing depends on it: what can't be read is as if it were not there, what can't be written is not
/// kept.
#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace LastTime {

inline constexpr int MostFiles = 10;

/// What is kept under a key; undefined for nothing.
QJsonValue Of(const QString& key);
void Keep(const QString& key, const QJsonValue& value);

/// The files (inside paths) of a kind that were open, the last one first.
QStringList Files(const QString& kind);
void NoteFile(const QString& kind, const QString& path);

/// The folder (inside path) that a kind of dialog was left in; empty when it is gone, or was never left.
QString Folder(const QString& kind);
void NoteFolder(const QString& kind, const QString& folder);

} // namespace LastTime
