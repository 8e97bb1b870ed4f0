// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Values on their way into a text box and back: every character that a value can hold comes back as it was.
#pragma once

#include <QPlainTextEdit>

/// Shows a value with CR LF line breaks. A carriage return by itself shows as its sign, which no value can hold.
void ShowValue(QPlainTextEdit& box, const QString& value);

/// Puts '?' in place of the letters that tables lack. What was typed before can't be taken back: it would bring them
/// again.
void ShowAsStored(QPlainTextEdit& box);

/// What the box holds, with CR LF line breaks.
QString ShownValue(const QPlainTextEdit& box);
