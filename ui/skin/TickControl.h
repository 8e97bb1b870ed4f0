// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What check boxes and option buttons of the family have in common: a value, of which 1 is ticked, a glyph with a
/// caption beside it, and what mouse and keyboard do. `Control` is the class that derives from this one, `Base` the
/// toolkit's button, whose checked state follows the value and sets it.
#pragma once

#include "ui/skin/Glyph.h"
#include "ui/skin/Pointer.h"
#include "ui/skin/SkinPainter.h"

#include <QColor>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>

template <class Control, class Base>
class TickControl : public Base {
public:
    /// 1 is ticked, anything else is not.
    [[nodiscard]] int Value() const {
        if (this->isChecked())
            return 1;
        return value_ == 1 ? 0 : value_;
    }

    /// Used with a back style of 1 only. One that is not valid leaves the ground as it is.
    [[nodiscard]] QColor BackColor() const { return backColour_; }

    void SetBackColor(const QColor& colour) {
        backColour_ = colour;
        this->update();
    }

    /// The caption's colour until the control is enabled or disabled, which gives it the palette's.
    [[nodiscard]] QColor ForeColor() const { return foreColour_; }

    void SetForeColor(const QColor& colour) {
        foreColour_ = colour;
        this->update();
    }

    /// 1: opaque, 0: transparent.
    [[nodiscard]] int BackStyle() const { return backStyle_; }

    void SetBackStyle(int style) {
        backStyle_ = style;
        this->update();
    }

    /// The window that the control is drawn in.
    [[nodiscard]] qulonglong WindowHandle() const { return this->effectiveWinId(); }

    [[nodiscard]] QSize sizeHint() const override { return Skin::TickSize(CaptionSize()); }

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    TickControl(Skin::Mark mark, QWidget* parent) : Base(parent), mark_(mark) {
        Skin::Equip(*this);
        QObject::connect(this, &Base::toggled, this, [this] { Q_EMIT Self().ValueChanged(Value()); });
    }

    /// Without asking anybody.
    void StoreValue(int value) {
        const bool toggles = this->isChecked() != (value == 1);
        value_ = value;
        this->setChecked(value == 1);
        if (toggles)
            return;
        this->update();
        Q_EMIT Self().ValueChanged(value);
    }

    /// Whether a host has set the checked state since, and not StoreValue: the value follows in checkStateSet.
    [[nodiscard]] bool IsTickedByHost() const { return this->isChecked() && value_ != 1; }

    void checkStateSet() override {
        Base::checkStateSet();
        if (this->isChecked())
            value_ = 1;
        else if (value_ == 1)
            value_ = 0;
    }

    [[nodiscard]] bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }

    bool event(QEvent* event) override {
        pointer_.Follow(*event, *this);
        return Base::event(event);
    }

    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::EnabledChange)
            foreColour_ = QColor(); // empty braces would be a colour
        Base::changeEvent(event);
    }

    // A minimum height would let layouts take what the caption needs.
    void resizeEvent(QResizeEvent* event) override {
        Base::resizeEvent(event);
        if (this->height() < Skin::GlyphSize)
            this->resize(this->width(), Skin::GlyphSize);
    }

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Control& Self() { return static_cast<Control&>(*this); }

    [[nodiscard]] QSize CaptionSize() const { return this->fontMetrics().size(Qt::TextShowMnemonic, this->text()); }

    Skin::Pointer pointer_;
    Skin::Mark mark_;
    int value_ = 0;
    int backStyle_ = 1;
    QColor backColour_;
    QColor foreColour_;
};

template <class Control, class Base>
void TickControl<Control, Base>::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (backStyle_ == 1 && backColour_.isValid())
        painter.fillRect(this->rect(), backColour_);
    const Skin::ButtonState state{
        .Enabled = this->isEnabled(), .Hover = pointer_.IsOver(*this), .Pressed = this->isDown()};
    Skin::PaintGlyph(painter, {0, Skin::GlyphTop(this->height())}, mark_, state,
                     this->isChecked() ? Skin::Ticked::Yes : Skin::Ticked::No);
    if (this->text().isEmpty()) {
        constexpr int inside = 2; // there may be no room around it
        const QRect glyph(0, Skin::GlyphTop(this->height()), Skin::GlyphSize, Skin::GlyphSize);
        if (this->hasFocus())
            Skin::PaintFocus(painter, glyph.adjusted(inside, inside, -inside, -inside));
        return;
    }
    QRect caption({}, CaptionSize());
    caption.moveTo(Skin::GlyphSize + Skin::GlyphGap, (this->height() - caption.height()) / 2);
    painter.setPen(foreColour_.isValid() ? foreColour_ : this->palette().color(QPalette::ButtonText));
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, this->text());
    if (this->hasFocus())
        Skin::PaintFocus(painter, caption.adjusted(-2, -1, 2, 1).intersected(this->rect()));
}

// Whoever is told of an event may end the control, and its window with it.
template <class Control, class Base>
void TickControl<Control, Base>::keyPressEvent(QKeyEvent* event) {
    const QPointer<TickControl> self(this);
    Q_EMIT Self().KeyDown(event->key(), event->modifiers());
    if (self && !event->text().isEmpty())
        Q_EMIT Self().KeyPress(event->text());
    if (!self)
        return;
    if (const Skin::Step step = Skin::StepOf(event->key()); step != Skin::Step::None)
        this->focusNextPrevChild(step == Skin::Step::Forward);
    else
        Base::keyPressEvent(event);
}

template <class Control, class Base>
void TickControl<Control, Base>::keyReleaseEvent(QKeyEvent* event) {
    const QPointer<TickControl> self(this);
    Base::keyReleaseEvent(event);
    if (self)
        Q_EMIT Self().KeyUp(event->key(), event->modifiers());
}

// Any button but the right one.
template <class Control, class Base>
void TickControl<Control, Base>::mousePressEvent(QMouseEvent* event) {
    const QPointer<TickControl> self(this);
    if (event->button() != Qt::RightButton) {
        QMouseEvent left = Skin::AsLeft(*event);
        Base::mousePressEvent(&left);
    }
    if (self)
        Q_EMIT Self().MouseDown(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}

template <class Control, class Base>
void TickControl<Control, Base>::mouseMoveEvent(QMouseEvent* event) {
    const QPointer<TickControl> self(this);
    if (event->buttons() != Qt::RightButton) {
        QMouseEvent left = Skin::AsLeft(*event);
        Base::mouseMoveEvent(&left);
    }
    if (self)
        Q_EMIT Self().MouseMove(event->buttons(), event->modifiers(), event->pos().x(), event->pos().y());
}

template <class Control, class Base>
void TickControl<Control, Base>::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<TickControl> self(this);
    if (event->button() != Qt::RightButton) {
        QMouseEvent left = Skin::AsLeft(*event);
        Base::mouseReleaseEvent(&left);
    }
    if (self)
        Q_EMIT Self().MouseUp(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}
