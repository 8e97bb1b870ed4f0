// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Keys for the entries of menus and for controls whose texts come from a language file without them.
#pragma once

#include <QList>
#include <QStringList>

class QMenu;
class QMenuBar;
class QWidget;

namespace Mnemonics {

/// Each text with an "&" before a letter that none of the others has taken: the first letter of a word before any other
/// letter, and plain letters before accented ones, which not every keyboard has a key for. A text that has its own
/// keeps it; one that finds no letter stays as it is.
QStringList Spread(const QStringList& texts);

/// Spreads keys over a menu bar and over each of its menus.
void AddTo(QMenuBar& menuBar);

/// Spreads keys over a context menu.
void AddTo(const QMenu& menu);

/// Spreads keys over controls of one window: buttons, and captions that have a buddy. The first ones choose first.
void AddTo(const QList<QWidget*>& controls);

} // namespace Mnemonics
