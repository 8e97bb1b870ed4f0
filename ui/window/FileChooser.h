// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file dialogs. A name with `*` or `?` is no file but a filter: the dialog then lists what fits it and stays.
#pragma once

#include "core/Host.h"

class QWidget;

namespace FileChooser {

/// Inside paths; nothing when cancelled.
std::optional<QString> FileToOpen(QWidget* owner, const Host::FileDialog& wanted);
QStringList FilesToOpen(QWidget* owner, const Host::FileDialog& wanted);
std::optional<QString> FileToSave(QWidget* owner, const Host::FileDialog& wanted);

/// As Host::ChooseFolder.
std::optional<QString> Folder(QWidget* owner, const QString& title, const QString& folder);

} // namespace FileChooser
