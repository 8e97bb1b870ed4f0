// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/splitter/SplitterBox.h"

#include "core/mTraduction.h"
#include "platform/RuntimeError.h"
#include "ui/look/ForReaders.h"
#include "ui/look/Style.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int keyStep = 16;

/// The bar's own drawing: nothing but three dots, and colour where the pointer or the focus is.
class BarWidget : public QWidget {
public:
    explicit BarWidget(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_Hover); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (hasFocus())
            painter.fillRect(rect(), Style::Colour::Focus);
        else if (underMouse() && isEnabled())
            painter.fillRect(rect(), Style::Colour::Hover);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Style::Colour::Border);
        const bool upright = height() > width();
        const qreal radius = qMin(width(), height()) / 4.0;
        const QPointF step = upright ? QPointF(0, radius * 5) : QPointF(radius * 5, 0);
        for (const int place : {-1, 0, 1})
            painter.drawEllipse(QRectF(rect()).center() + step * place, radius, radius);
    }
};

/// What a pane is called: itself, or the first in it that has a name.
QString NameOf(const QWidget& pane) {
    if (!pane.accessibleName().isEmpty())
        return pane.accessibleName();
    for (const auto* const part : pane.findChildren<QWidget*>())
        if (const auto* const button = qobject_cast<const QAbstractButton*>(part); button != nullptr)
            return button->text();
        else if (!part->accessibleName().isEmpty())
            return part->accessibleName();
    return {};
}

/// The ghost bar. The screen itself can't be drawn on, so it lies over the panes, inverts what is below, and is erased
/// by being hidden.
class GhostWidget : public QWidget {
public:
    explicit GhostWidget(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        painter.fillRect(rect(), QBrush(Checkered()));
    }

private:
    static QImage Checkered() {
        QImage pattern(16, static_cast<int>(cSplitter::GhostPattern.size()), QImage::Format_ARGB32_Premultiplied);
        pattern.fill(Qt::transparent);
        for (int y = 0; y < pattern.height(); ++y)
            for (int x = 0; x < pattern.width(); ++x)
                if ((cSplitter::GhostPattern.at(static_cast<std::size_t>(y)) >> (15 - x) & 1) != 0)
                    pattern.setPixelColor(x, y, Qt::white);
        return pattern;
    }
};

} // namespace

class SplitterBox::Pane : public SplitterPane {
public:
    explicit Pane(QWidget* widget) : widget_(widget) {}

    [[nodiscard]] QWidget* Widget() const { return widget_; }

    void Move(double left, double top, double width, double height) override {
        if (width < 0 || height < 0)
            throw RuntimeError(ErrorNumber::InvalidProperty, u"a pane has no room"_s);
        widget_->setGeometry(qRound(left), qRound(top), qRound(width), qRound(height));
    }

private:
    QWidget* widget_; // taken back in childEvent, before it is gone
};

class SplitterBox::Space : public SplitterContainer {
public:
    explicit Space(SplitterBox& box) : box_(box) {}

    // The toolkit's pixels are the container's scale; it sees to the screen's density itself.
    [[nodiscard]] double ScaleWidth() const override { return box_.width(); }

    [[nodiscard]] double ScaleHeight() const override { return box_.height(); }

    [[nodiscard]] double ScaleX(qint32 pixels) const override { return pixels; }

    [[nodiscard]] double ScaleY(qint32 pixels) const override { return pixels; }

    [[nodiscard]] QRect WindowRect() const override { return {box_.mapToGlobal(QPoint(0, 0)), box_.size()}; }

    void ShowGhost(const QRect& bar) override {
        box_.ghost_->setVisible(!bar.isEmpty());
        box_.ghost_->setGeometry(bar);
        box_.ghost_->raise();
    }

private:
    SplitterBox& box_;
};

SplitterBox::SplitterBox(QWidget* parent)
    : QWidget(parent),
      splitter_(u"Brindock"_s),
      space_(std::make_unique<Space>(*this)) {
    bar_ = new BarWidget(this);
    ForReaders::SetRole(*bar_, QAccessible::Splitter);
    bar_->setObjectName(u"bar"_s);
    bar_->setFocusPolicy(Qt::TabFocus);
    bar_->setAccessibleName(mTraduction::GetText(u"PaneDivider"_s));
    bar_->installEventFilter(this);
    ghost_ = new GhostWidget(this);
    ghost_->setObjectName(u"ghost"_s);
    splitter_.BeforeDrag = [this](bool& cancel, const QPoint& pointer) { Q_EMIT BeforeDrag(cancel, pointer); };
}

SplitterBox::~SplitterBox() {
    splitter_.Unbind();
}

void SplitterBox::SetOrientation(int orientation) {
    splitter_.SetOrientation(orientation);
    PlaceBar();
    updateGeometry();
}

void SplitterBox::SetPosition(int pixels) {
    splitter_.SetPosition(pixels);
    PlaceBar();
}

void SplitterBox::SetSplitterSize(int pixels) {
    splitter_.SetSplitterSize(pixels);
    PlaceBar();
    updateGeometry();
}

QSize SplitterBox::MinimumPanes() const {
    return {splitter_.MinimumSize()[0], splitter_.MinimumSize()[1]};
}

void SplitterBox::SetMinimumPanes(const QSize& pixels) {
    splitter_.SetMinimumSize({pixels.width(), pixels.height()});
    PlaceBar();
    updateGeometry();
}

QSize SplitterBox::Together(QSize (*sizeOf)(const QWidget&)) const {
    if (!first_ || !second_)
        return {};
    const QSize one = sizeOf(*first_->Widget()).expandedTo(QSize(0, 0));
    const QSize other = sizeOf(*second_->Widget()).expandedTo(QSize(0, 0));
    return splitter_.Orientation() == cSplitter::Stacked
               ? QSize(qMax(one.width(), other.width()), one.height() + other.height() + splitter_.SplitterSize())
               : QSize(one.width() + other.width() + splitter_.SplitterSize(), qMax(one.height(), other.height()));
}

QSize SplitterBox::sizeHint() const {
    return Together([](const QWidget& pane) { return pane.sizeHint(); });
}

QSize SplitterBox::minimumSizeHint() const {
    const int along =
        qMax(0, splitter_.MinimumSize()[0]) + splitter_.SplitterSize() + qMax(0, splitter_.MinimumSize()[1]);
    const QSize panes = Together([](const QWidget& pane) { return pane.minimumSizeHint(); });
    return splitter_.Orientation() == cSplitter::Stacked ? QSize(panes.width(), along) : QSize(along, panes.height());
}

void SplitterBox::childEvent(QChildEvent* event) {
    QWidget::childEvent(event);
    // While the box makes its own two parts they are no panes.
    if (ghost_ == nullptr)
        return;
    const QObject* const child = event->child();
    if (event->added() && child->isWidgetType() && !second_) {
        (first_ ? second_ : first_) = std::make_unique<Pane>(static_cast<QWidget*>(event->child()));
        Rebind();
    } else if (event->removed() && ((first_ && first_->Widget() == child) || (second_ && second_->Widget() == child))) {
        splitter_.Unbind();
        if (first_->Widget() == child)
            first_ = std::exchange(second_, nullptr);
        second_.reset();
        Rebind();
    }
}

void SplitterBox::Rebind() {
    if (sized_ && first_ && second_) {
        splitter_.HostName = window()->objectName();
        splitter_.Bind(first_.get(), second_.get(), space_.get());
    }
    PlaceBar();
    updateGeometry();
}

void SplitterBox::PlaceBar() {
    bar_->setCursor(splitter_.Cursor());
    bar_->setGeometry(splitter_.Bar());
}

bool SplitterBox::event(QEvent* event) {
    // Children come and go, and the order of the keyboard is only settled when the window is shown.
    if (event->type() == QEvent::Polish && first_ && second_) {
        setTabOrder(first_->Widget(), bar_);
        bar_->stackUnder(second_->Widget()); // screen readers too find it between the panes
        const QString what = NameOf(*first_->Widget());
        bar_->setAccessibleName(mTraduction::GetText(u"PaneDivider"_s) + (what.isEmpty() ? what : u": "_s + what));
    }
    return QWidget::event(event);
}

void SplitterBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // Only now has the box its place in the window; bound before, the splitter would cut the position down to a size
    // that nobody ever sees.
    if (!std::exchange(sized_, true))
        Rebind();
    splitter_.Resize();
    PlaceBar();
}

void SplitterBox::hideEvent(QHideEvent* event) {
    splitter_.AbandonDrag();
    PlaceBar();
    QWidget::hideEvent(event);
}

bool SplitterBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched != bar_)
        return QWidget::eventFilter(watched, event);
    const auto pointer = [event] { return static_cast<QMouseEvent*>(event)->globalPosition().toPoint(); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        splitter_.MouseDown(static_cast<QMouseEvent*>(event)->button(), pointer());
        return true;
    case QEvent::MouseMove:
        splitter_.MouseMove(pointer());
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            splitter_.MouseUp(pointer());
        break;
    case QEvent::KeyPress:
        return Keyed(static_cast<QKeyEvent*>(event)->key(), static_cast<QKeyEvent*>(event)->modifiers());
    default:
        return false;
    }
    if (!splitter_.Dragging() || splitter_.FullDrag)
        PlaceBar();
    return true;
}

bool SplitterBox::Keyed(int key, Qt::KeyboardModifiers modifiers) {
    const bool stacked = splitter_.Orientation() == cSplitter::Stacked;
    const int step = modifiers.testFlag(Qt::ControlModifier) ? 1 : keyStep;
    const int all = stacked ? height() : width();
    if (key == (stacked ? Qt::Key_Up : Qt::Key_Left))
        splitter_.Nudge(-step);
    else if (key == (stacked ? Qt::Key_Down : Qt::Key_Right))
        splitter_.Nudge(step);
    else if (key == Qt::Key_Home)
        splitter_.Nudge(-all);
    else if (key == Qt::Key_End)
        splitter_.Nudge(all);
    else if (key == Qt::Key_Escape && splitter_.Dragging())
        splitter_.AbandonDrag();
    else
        return false;
    PlaceBar();
    return true;
}
