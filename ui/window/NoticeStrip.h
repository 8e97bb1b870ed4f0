// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A line under the menu bar that tells a user something that needs no answer: a text, up to three links, a cross.
/// Escape closes it from anywhere in its window.
#pragma once

#include "core/Notice.h"

#include <QPointer>
#include <QWidget>

#include <array>

class QAbstractButton;
class QShortcut;

class NoticeStrip : public QWidget {
    Q_OBJECT
public:
    static constexpr std::size_t MostLinks = 3;

    /// Hidden until there is a notice.
    explicit NoticeStrip(QWidget* parent = nullptr);

    /// Shows a notice in place of the one that stands, and tells screen readers; an empty one closes the strip. A link
    /// that is clicked closes the strip before it runs.
    void ShowNotice(const Notice& notice);

    /// Escape is left to the window, as in a dialog, where it is Cancel.
    void LeaveEscape();

    /// Hides the strip. The keyboard goes back to where it came from.
    void Close();

    [[nodiscard]] QString Text() const { return notice_.Text; }

    /// Whether a part of the text is left out, as two lines don't hold it; the whole is in the tool tip.
    [[nodiscard]] bool IsElided() const;

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }

    /// Links stand beside a text of up to two lines, and below one that would take more there.
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// It was hidden, by whatever. What is shown now stays.
    void Closed();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Where the parts lie in a strip of some width.
    struct Places {
        QRect Text;
        QPoint Links; ///< the upper left corner of the first one
        int Height;
    };

    [[nodiscard]] Places PlacesFor(int width) const;
    [[nodiscard]] QSize LinksSize() const;
    void Arrange();
    void RunLink(std::size_t link);
    void FollowFocus(QWidget* old, QWidget* now);

    Notice notice_;
    std::array<QAbstractButton*, MostLinks> links_{};
    QAbstractButton* cross_;
    QShortcut* escape_;
    QPointer<QWidget> before_; ///< had the keyboard before the strip
};
