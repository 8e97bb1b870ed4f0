// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a window has to stand in whichever language it is shown: its texts need room, its menus' entries letters.
#pragma once

class QWidget;

/// Whether no visible caption, button, heading, column, tab, choice or menu bar of the window has less room than its
/// text takes, or reaches out of its parent. Of each that does, the test's log gets the size that it needs, the size
/// that it has, and the text. Captions that are shortened on purpose, with the whole text in their tip, are left out.
bool AllTextsHaveRoom(const QWidget& window);

/// Whether each entry of the window's menus, context menus too, has a letter that no other of the same menu has. The
/// test's log gets those that have none.
bool AllEntriesHaveLetters(const QWidget& window);

/// Makes the column "language" with a row for each of the program's own languages, named as `World::UseOwnLanguage`
/// takes it.
void AddEachLanguage();
