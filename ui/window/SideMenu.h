// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The menu at the left of a tool window: groups of text links under headings that fold, on a soft gradient.
#pragma once

#include "ui/skin/Bar.h"
#include "ui/skin/EnterKey.h"

#include <QAbstractButton>
#include <QWidget>

class xpMenu;

/// The ground that the groups lie on.
class SidePane : public QWidget {
    Q_OBJECT
public:
    explicit SidePane(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The pointer moves over the ground, not over a link.
    void MouseMoved();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
};

/// A heading that folds what stands below it. The controls of the group are the widget's children in its layout.
class SideGroup : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
public:
    static constexpr int HeadingHeight = Skin::HeadingHeight;

    explicit SideGroup(QWidget* parent = nullptr);

    [[nodiscard]] QString Caption() const;
    void SetCaption(const QString& caption);

    [[nodiscard]] bool IsFolded() const;
    void SetFolded(bool folded);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    xpMenu* heading_;
};

/// A text link with its picture; a button for keyboard and screen reader.
class SideLink : public QAbstractButton {
    Q_OBJECT
public:
    explicit SideLink(QWidget* parent = nullptr);

    [[nodiscard]] bool IsUnderlined() const { return underlined_; }

    void SetUnderlined(bool underlined);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The pointer moves over the link, which is enabled.
    void MouseMoved();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool underlined_ = false;
    Skin::EnterKey enter_;
};
