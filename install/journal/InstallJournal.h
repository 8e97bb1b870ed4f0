// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// `installed.json` in the user's own data folder. It is written whole, and changed under a lock that all copies of the
/// program share. Beside it lies the folder `installed` with a folder for each install that runs or that keeps files
/// which it replaced.
#pragma once

#include "install/journal/Journal.h"

#include <functional>

namespace InstallJournal {

/// Inside paths of the journal, and of what lies beside it.
QString File();
QString Folder();
/// The folder of one install, and the lines that it adds while it runs.
QString FolderOf(int id);
QString LinesOf(int id);
/// The file that a JournalFile's `Kept` names.
QString KeptPath(const QString& kept);

/// The journal as it is now; empty where there is none. An install whose process died in it has what its lines tell.
/// Raises 75 when it is damaged or of a newer kind, and what the reading raises.
Journal Read();

/// Lets `change` change the journal under the lock and saves it where that returns true; files that are kept aside and
/// named no longer are deleted then. Raises like Read, 70 when another program holds the lock for seconds, and what the
/// saving raises: the journal is as it was then. Not to be called inside itself.
void Change(const std::function<bool(Journal&)>& change);

/// A journal that is damaged, or of a newer kind, gets another name, so that a new one can be begun. Returns that name
/// as the system writes it; empty when there was no need. Raises what the locking and the renaming raise.
QString SetDamagedAside();

} // namespace InstallJournal
