// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A box for a comment of one line, which shows it in several: an INI file has no line breaks, and hands out no more
/// than 254 characters of a value.
#pragma once

#include <QPlainTextEdit>

class CommentBox : public QPlainTextEdit {
    Q_OBJECT
public:
    static constexpr int MostCharacters = 254;

    explicit CommentBox(QWidget* parent = nullptr);

    /// The text as it was typed: no-break blanks are what they are.
    [[nodiscard]] QString Text() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    [[nodiscard]] int Room() const;
};
