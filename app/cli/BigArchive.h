// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the commands for BIG archives share: reading one, saving one, and how both fail.
#pragma once

#include "app/cli/Command.h"
#include "big/format/Archive.h"

#include <QString>

/// Reads an archive (inside path) or fails with the reason.
Archive ReadArchive(const QString& path);

/// Fails as for a file that is no archive.
[[noreturn]] void FailAsNoArchive(const QString& path);

/// The entry of that name without regard to case; fails when there is none.
int EntryNamed(const Archive& archive, const QString& name);

/// The flag `--exact`, for commands that save.
Parameter Exact();

/// Saves an archive (inside path); one that the format can't hold is refused with its reason, and so is one with a new
/// entry whose file can't be read. With the flag `--exact`, or with the setting for it, all data lie where the
/// directory says; otherwise a line on standard error tells when they don't.
void SaveArchive(const Archive& archive, const QString& target, const Arguments& given);
