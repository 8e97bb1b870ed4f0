// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTranslator>

/// The texts that text boxes bring along in their context menus, from the user's language file.
class ControlTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }

    /// A null text for all that is not such an entry.
    [[nodiscard]] QString translate(const char* context, const char* text, const char* disambiguation,
                                    int count) const override;
};
