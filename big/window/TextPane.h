// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A text that can be read and copied but not changed, with the numbers of its lines beside it.
#pragma once

#include <QPlainTextEdit>

class TextPane : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit TextPane(QWidget* parent = nullptr);

    /// Shows a text from its beginning.
    void ShowText(const QString& text);

    /// The room that the numbers take, in pixels.
    [[nodiscard]] int NumbersWidth() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PaintNumbers(const QRect& area);
    void PlaceNumbers();

    QWidget* numbers_;
};
