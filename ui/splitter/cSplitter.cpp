// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/splitter/cSplitter.h"

#include "platform/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

cSplitter::cSplitter(QString hostName) : HostName(std::move(hostName)) {}

void cSplitter::Bind(SplitterPane* first, SplitterPane* second, SplitterContainer* container) {
    Unbind();
    if (first == nullptr || second == nullptr || container == nullptr)
        return;
    first_ = first;
    second_ = second;
    container_ = container;
    Resize();
}

void cSplitter::Unbind() {
    // The panes may be half gone already, so a drag ends without moving them.
    SplitterContainer* const container = std::exchange(container_, nullptr);
    first_ = nullptr;
    second_ = nullptr;
    if (!std::exchange(dragging_, false))
        return;
    position_ = startPosition_;
    container->ShowGhost({});
}

void cSplitter::SetProportion(float percent) {
    if (!(percent >= 0 && percent <= 100))
        throw RuntimeError(ErrorNumber::InvalidProperty, u"Proportion: 0 to 100, not %1"_s.arg(percent),
                           HostName + u".cSplitter"_s);
    proportion_ = percent / 100;
    if (!Bound())
        return;
    // Half a pixel goes to the even side, as everywhere in the classic runtime; that is the default rounding mode.
    position_ = static_cast<qint32>(std::nearbyint(double{proportion_} * Extent()));
    Recalculate();
}

void cSplitter::SetSplitterSize(qint32 pixels) {
    if (pixels < 0)
        throw RuntimeError(ErrorNumber::InvalidProperty, u"SplitterSize: 0 or more, not %1"_s.arg(pixels),
                           HostName + u".cSplitter"_s);
    splitterSize_ = pixels;
    Recalculate();
}

void cSplitter::SetPosition(qint32 pixels) {
    position_ = pixels;
    Recalculate();
}

void cSplitter::SetOrientation(qint32 orientation) {
    orientation_ = orientation;
    Recalculate();
}

void cSplitter::SetMinimumSize(Sizes pixels) {
    minimum_ = pixels;
    Recalculate();
}

void cSplitter::SetMaximumSize(Sizes pixels) {
    maximum_ = pixels;
    Recalculate();
}

void cSplitter::SetContainer(SplitterContainer* container) {
    if (Bound())
        Bind(first_, second_, container);
}

Qt::CursorShape cSplitter::Cursor() const {
    return orientation_ == Stacked ? Qt::SizeVerCursor : Qt::SizeHorCursor;
}

QRect cSplitter::Bar() const {
    if (!Bound())
        return {};
    const QSize size = container_->WindowRect().size();
    return orientation_ == Stacked ? QRect(0, position_, size.width(), splitterSize_)
                                   : QRect(position_, 0, splitterSize_, size.height());
}

void cSplitter::MouseDown(Qt::MouseButton button, const QPoint& pointer) {
    if (button != Qt::LeftButton || dragging_ || !Bound() || !MayDrag(pointer))
        return;
    dragging_ = true;
    startPointer_ = pointer;
    startPosition_ = position_;
    if (!FullDrag)
        container_->ShowGhost(Bar());
}

void cSplitter::MouseMove(const QPoint& pointer) {
    if (!dragging_)
        return;
    Follow(pointer);
    if (FullDrag)
        Layout();
    else
        container_->ShowGhost(Bar());
}

void cSplitter::MouseUp(const QPoint& pointer) {
    if (!dragging_)
        return;
    dragging_ = false;
    container_->ShowGhost({});
    Follow(pointer);
    Layout();
    TakeProportion();
}

void cSplitter::AbandonDrag() {
    if (!std::exchange(dragging_, false))
        return;
    container_->ShowGhost({});
    SetPosition(startPosition_);
}

void cSplitter::Nudge(qint32 travel) {
    if (dragging_ || !Bound() || !MayDrag(container_->WindowRect().topLeft() + Bar().center()))
        return;
    SetPosition(position_ + travel);
    TakeProportion();
}

void cSplitter::Resize() {
    if (!Bound())
        return;
    if (KeepProportion)
        position_ = static_cast<qint32>(std::nearbyint(double{proportion_} * Extent()));
    Recalculate();
}

qint32 cSplitter::Extent() const {
    const QSize size = container_->WindowRect().size();
    return orientation_ == Stacked ? size.height() : size.width();
}

bool cSplitter::MayDrag(const QPoint& pointer) const {
    bool cancel = false;
    if (BeforeDrag)
        BeforeDrag(cancel, pointer);
    return !cancel && Bound();
}

QPoint cSplitter::Confined(const QPoint& pointer) const {
    // The pointer itself stays free: windows can't lock it in everywhere. Where it leaves the container it counts as
    // standing on the edge, which comes to the same.
    const QRect limits = container_->WindowRect();
    return {std::clamp(pointer.x(), limits.left(), std::max(limits.left(), limits.right())),
            std::clamp(pointer.y(), limits.top(), std::max(limits.top(), limits.bottom()))};
}

void cSplitter::Follow(const QPoint& pointer) {
    const QPoint travel = Confined(pointer) - startPointer_;
    position_ = startPosition_ + (orientation_ == Stacked ? travel.y() : travel.x());
    Clamp();
}

void cSplitter::TakeProportion() {
    if (Extent() > 0)
        proportion_ = static_cast<float>(position_) / static_cast<float>(Extent());
}

// The order decides: a later rule wins over an earlier one.
void cSplitter::Clamp() {
    const qint32 room = Extent() - splitterSize_;
    if (maximum_[1] >= 1 && room - position_ > maximum_[1])
        position_ = room - maximum_[1];
    if (maximum_[0] >= 1 && position_ > maximum_[0])
        position_ = maximum_[0];
    if (minimum_[1] > 0 && room - position_ < minimum_[1])
        position_ = room - minimum_[1];
    if (minimum_[0] >= 1 && position_ < minimum_[0])
        position_ = minimum_[0];
}

void cSplitter::Layout() {
    const double width = container_->ScaleWidth();
    const double height = container_->ScaleHeight();
    if (orientation_ == Stacked) {
        const double first = container_->ScaleY(position_);
        const double second = container_->ScaleY(position_ + splitterSize_);
        Ignoring([&] { first_->Move(0, 0, width, first); });
        Ignoring([&] { second_->Move(0, second, width, height - second); });
    } else {
        const double first = container_->ScaleX(position_);
        const double second = container_->ScaleX(position_ + splitterSize_);
        Ignoring([&] { first_->Move(0, 0, first, height); });
        Ignoring([&] { second_->Move(second, 0, width - second, height); });
    }
}

void cSplitter::Recalculate() {
    if (!Bound())
        return;
    Clamp();
    Layout();
}
