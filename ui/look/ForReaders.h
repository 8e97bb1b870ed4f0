// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What screen readers take a control for, where the toolkit knows no better than that it is one.
#pragma once

#include <QAccessible>

class QWidget;

namespace ForReaders {

void SetRole(QWidget& control, QAccessible::Role role);

/// For what says nothing that does not stand beside it: shadows, animations, signs.
void Hide(QWidget& control);

} // namespace ForReaders
