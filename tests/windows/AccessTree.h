// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A window's tree of elements as screen readers get it.
#pragma once

#include <QStringList>

class QWidget;

namespace AccessTree {

/// A line an element, in order, indented by its depth. Elements that only hold others, without a name, are left out,
/// and so is what can't be seen.
QStringList Lines(QWidget& window);

/// What has no name and must have one, what has the role and name of its sibling, what is read twice.
QStringList Faults(QWidget& window);

} // namespace AccessTree
