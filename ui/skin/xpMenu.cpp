// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/xpMenu.h"

#include "ui/look/Style.h"
#include "ui/skin/Bar.h"
#include "ui/skin/DevicePixels.h"
#include "ui/skin/SkinPainter.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>

namespace {
constexpr int captionLeft = 10, captionRight = 28;

QAccessible::State StateOf(const xpMenu& heading) {
    QAccessible::State state;
    state.expandable = true;
    state.expanded = heading.isChecked();
    state.collapsed = !heading.isChecked();
    return state;
}

/// A button that unfolds something; as a checkable button it would be told as a box to tick.
class HeadingForReaders : public QAccessibleWidget {
public:
    explicit HeadingForReaders(xpMenu& heading) : QAccessibleWidget(&heading, QAccessible::Button), heading_(heading) {}

    [[nodiscard]] QString text(QAccessible::Text which) const override {
        const QString given = QAccessibleWidget::text(which);
        return which == QAccessible::Name && given.isEmpty() ? heading_.text() : given;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const QAccessible::State own = StateOf(heading_);
        state.expandable = own.expandable;
        state.expanded = own.expanded;
        state.collapsed = own.collapsed;
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override {
        if (action == pressAction())
            heading_.click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    xpMenu& heading_;
};

QAccessibleInterface* MakeHeading(const QString& /*className*/, QObject* object) {
    auto* const heading = qobject_cast<xpMenu*>(object);
    return heading == nullptr ? nullptr : new HeadingForReaders(*heading);
}

} // namespace

xpMenu::xpMenu(QWidget* parent) : QAbstractButton(parent) {
    QAccessible::installFactory(MakeHeading); // a second time changes nothing
    setCheckable(true);
    setChecked(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    setFixedHeight(Skin::HeadingHeight);
    connect(this, &QAbstractButton::toggled, this, [this] {
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent told(this, changed);
        QAccessible::updateAccessibility(&told);
    });
}

void xpMenu::SetCaption(const QString& caption) {
    setText(caption);
    Q_EMIT CaptionChanged(caption);
}

QSize xpMenu::sizeHint() const {
    return {captionLeft + fontMetrics().horizontalAdvance(text()) + captionRight, Skin::HeadingHeight};
}

void xpMenu::paintEvent(QPaintEvent* /*event*/) {
    constexpr int inset = 3;
    QPainter painter(this);
    PaintBar(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(underMouse() ? Style::Colour::EntryHover : Style::Colour::Border);
    painter.drawText(rect().adjusted(captionLeft, 0, -captionRight, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
    PaintMark(painter);
    if (hasFocus())
        Skin::PaintFocus(painter, rect().adjusted(inset, inset, -inset, -inset));
}

// The two ends are round above; what is between them is stretched.
void xpMenu::PaintBar(QPainter& painter) const {
    const auto [left, top, right] = Skin::PartsOfHeading(width());
    const Skin::DevicePixels pixels(painter, rect());
    const QRectF area = pixels.Area();
    const qreal reach = Skin::HeadingEnd * pixels.Density();
    QLinearGradient face(area.left(), 0, area.right(), 0);
    face.setColorAt(0, Qt::white);
    face.setColorAt(1, QColor(199, 212, 247));
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    for (const QRectF end : {pixels.Of(left), pixels.Of(right)}) {
        outline.addRoundedRect(end.adjusted(end.x() > 0 ? -end.width() : 0, 0, end.x() > 0 ? 0 : end.width(), 0), reach,
                               reach);
        outline.addRect(end.adjusted(0, reach, 0, 0));
    }
    outline.addRect(pixels.Of(top));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline.simplified(), face);
}

void xpMenu::PaintMark(QPainter& painter) const {
    const QPointF middle(width() - 15.0, height() / 2.0);
    const qreal down = isChecked() ? -1 : 1; // points up while the group is open
    QPen pen = painter.pen();
    pen.setWidthF(1.6);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    for (const qreal shift : {-2.5, 1.5}) {
        const QPointF tip = middle + QPointF(0, shift + down * 1.5);
        painter.drawLine(tip, tip + QPointF(-3.5, -down * 3));
        painter.drawLine(tip, tip + QPointF(3.5, -down * 3));
    }
}

// Whoever is told of an event may end the bar, and its window with it.
void xpMenu::keyPressEvent(QKeyEvent* event) {
    const QPointer<xpMenu> self(this);
    Q_EMIT KeyDown(event->key(), event->modifiers());
    if (self && !event->text().isEmpty())
        Q_EMIT KeyPress(event->text());
    if (self && !enter_.Takes(*event, *this))
        QAbstractButton::keyPressEvent(event);
}

void xpMenu::keyReleaseEvent(QKeyEvent* event) {
    const QPointer<xpMenu> self(this);
    if (!enter_.Takes(*event, *this))
        QAbstractButton::keyReleaseEvent(event);
    if (self)
        Q_EMIT KeyUp(event->key(), event->modifiers());
}

void xpMenu::focusOutEvent(QFocusEvent* event) {
    enter_.Takes(*event, *this);
    QAbstractButton::focusOutEvent(event);
}

void xpMenu::mousePressEvent(QMouseEvent* event) {
    const QPointer<xpMenu> self(this);
    QAbstractButton::mousePressEvent(event);
    if (self)
        Q_EMIT MouseDown(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}

void xpMenu::mouseMoveEvent(QMouseEvent* event) {
    const QPointer<xpMenu> self(this);
    QAbstractButton::mouseMoveEvent(event);
    if (self)
        Q_EMIT MouseMove(event->buttons(), event->modifiers(), event->pos().x(), event->pos().y());
}

void xpMenu::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<xpMenu> self(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (self)
        Q_EMIT MouseUp(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}
