// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTranslator>

/// The texts that the toolkit brings along, from the user's language file: the context menus of text boxes, and the
/// names of keys in menus.
class ControlTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }

    /// A null text for all others.
    [[nodiscard]] QString translate(const char* context, const char* text, const char* disambiguation,
                                    int count) const override;
};
