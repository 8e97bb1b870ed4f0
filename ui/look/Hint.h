// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What stands in the place of rows where there are none: a picture, what is missing, and what to do about it.
#pragma once

#include <QString>
#include <QWidget>

class QPainter;

struct Hint {
    QString Picture; ///< of :/art/icons; one that is not there is left out
    QString Text;    ///< the first line is the heading

    friend bool operator==(const Hint&, const Hint&) = default;
};

/// Draws the hint into the middle of `area`, its text wrapped. Without a text there is none.
void DrawHint(QPainter& painter, const QRect& area, const Hint& hint);

/// A pane with nothing but a hint.
class HintPane : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    void SetHint(const Hint& hint);

    [[nodiscard]] const Hint& Shown() const { return hint_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Hint hint_;
};
