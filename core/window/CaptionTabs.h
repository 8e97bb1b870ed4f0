// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A strip of tabs whose captions may have several lines. The toolkit's own is as high as one.
#pragma once

#include <QTabBar>

class CaptionTabs : public QTabBar {
public:
    using QTabBar::QTabBar;

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override {
        const auto more = static_cast<int>(tabText(index).count(u'\n'));
        return QTabBar::tabSizeHint(index) + QSize(0, more * fontMetrics().lineSpacing());
    }
};
