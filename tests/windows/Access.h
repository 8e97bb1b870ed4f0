// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A window as people without sight or without a mouse, and people with large letters, have it.
#pragma once

#include <QString>

class QWidget;

namespace Access {

/// The look of the whole program; to be called before the window is made.
void Dress();

/// Whether a window that is shown and active is as it must be for each of them: its tree is the expected one, nothing
/// in it lacks a name or is read twice, the Tab key leads to each control and shows where it is, and the window fits a
/// small screen at twice the size. What is amiss is told.
///
/// The expected trees stand beside the tests of the room, in trees/NAME.txt, a line an element: its role, its name, its
/// value behind "=", its description in brackets, what is special about it; rows of lists as they are. What differs
/// from run to run has its place in `mask`. A window that was changed on purpose writes its tree anew when the tests
/// run with BRINDOCK_WRITE_TREES=1; look at what git tells of it.
struct Expected {
    const char* Room;
    QString Name;
    QString Mask{}; ///< the folder of the test, which is told as WORLD
    QString Date{}; ///< likewise, as WHEN
};

bool IsFor(QWidget& window, const Expected& expected);

/// The parts of it.
bool HasTree(QWidget& window, const Expected& expected);
bool HasNames(QWidget& window);
bool IsReachedByTab(QWidget& window);
/// Makes the window fit, and leaves it so.
bool FitsTwiceTheSize(QWidget& window);

} // namespace Access
