// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A thin bar between two panes that can be dragged: positions and state only. The host forwards its container's mouse
/// and resize events; the splitter moves the panes.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <array>
#include <functional>

/// One of the two panes.
class SplitterPane {
public:
    SplitterPane() = default;
    SplitterPane(const SplitterPane&) = delete;
    SplitterPane& operator=(const SplitterPane&) = delete;
    virtual ~SplitterPane() = default;

    /// In the container's scale. May raise, which is ignored.
    virtual void Move(double left, double top, double width, double height) = 0;
};

/// The control in which both panes live.
class SplitterContainer {
public:
    SplitterContainer() = default;
    SplitterContainer(const SplitterContainer&) = delete;
    SplitterContainer& operator=(const SplitterContainer&) = delete;
    virtual ~SplitterContainer() = default;

    /// The size in the container's own scale.
    [[nodiscard]] virtual double ScaleWidth() const = 0;
    [[nodiscard]] virtual double ScaleHeight() const = 0;
    /// Pixels in the container's own scale.
    [[nodiscard]] virtual double ScaleX(qint32 pixels) const = 0;
    [[nodiscard]] virtual double ScaleY(qint32 pixels) const = 0;

    /// Where the container stands on the screen, in pixels; its size is that of the client rectangle.
    [[nodiscard]] virtual QRect WindowRect() const = 0;

    /// The ghost bar in the container's pixels. Drawn over the panes; an empty rectangle erases it.
    virtual void ShowGhost(const QRect& bar) = 0;
};

class cSplitter {
public:
    using Sizes = std::array<qint32, 2>; ///< pixels, one a pane

    static constexpr qint32 Stacked = 1;    ///< the bar runs across
    static constexpr qint32 SideBySide = 2; ///< the bar stands upright

    /// Rows of the brush with which the ghost inverts what is below: a set bit is an inverted pixel.
    static constexpr std::array<quint16, 8> GhostPattern{0x5555, 0xAAAA, 0x5555, 0xAAAA,
                                                         0x5555, 0xAAAA, 0x5555, 0xAAAA};

    /// `hostName` begins the source text of errors.
    explicit cSplitter(QString hostName);

    QString HostName;
    bool FullDrag = true;        ///< panes follow the pointer; else a ghost bar does and the panes move on release
    bool KeepProportion = false; ///< on resize `Position` is computed from `Proportion`

    /// Raised before a drag starts, with the pointer's position on the screen. Setting `cancel` prevents the drag.
    std::function<void(bool& cancel, const QPoint& pointer)> BeforeDrag;

    /// Takes the panes and the container, which outlive the splitter or are taken back with Unbind, and lays them out.
    void Bind(SplitterPane* first, SplitterPane* second, SplitterContainer* container);
    void Unbind();

    /// The first pane's part of the container in percent.
    [[nodiscard]] float Proportion() const { return proportion_ * 100; }

    /// Moves the bar there. Raises 380 for a value outside 0 to 100.
    void SetProportion(float percent);

    /// The bar's thickness in pixels. Raises 380 for a negative value.
    [[nodiscard]] qint32 SplitterSize() const { return splitterSize_; }

    void SetSplitterSize(qint32 pixels);

    /// The first pane's extent in pixels.
    [[nodiscard]] qint32 Position() const { return position_; }

    void SetPosition(qint32 pixels);

    [[nodiscard]] qint32 Orientation() const { return orientation_; }

    void SetOrientation(qint32 orientation);

    [[nodiscard]] Sizes MinimumSize() const { return minimum_; }

    void SetMinimumSize(Sizes pixels);

    /// A value below 1 means none.
    [[nodiscard]] Sizes MaximumSize() const { return maximum_; }

    void SetMaximumSize(Sizes pixels);

    [[nodiscard]] SplitterContainer* Container() const { return container_; }

    /// The same panes in another container. Does nothing while nothing is bound; none unbinds.
    void SetContainer(SplitterContainer* container);

    /// The pointer that belongs over the bar.
    [[nodiscard]] Qt::CursorShape Cursor() const;

    /// The bar in the container's pixels; empty while nothing is bound.
    [[nodiscard]] QRect Bar() const;

    [[nodiscard]] bool Dragging() const { return dragging_; }

    /// The container's mouse events, with the pointer's position on the screen in pixels.
    void MouseDown(Qt::MouseButton button, const QPoint& pointer);
    void MouseMove(const QPoint& pointer);
    void MouseUp(const QPoint& pointer);

    /// Ends a drag that no release will end: the bar goes back to where it was.
    void AbandonDrag();

    /// Moves the bar as a drag of that many pixels does.
    void Nudge(qint32 travel);

    /// The container has another size.
    void Resize();

private:
    [[nodiscard]] bool Bound() const { return container_ != nullptr; }

    [[nodiscard]] qint32 Extent() const;
    [[nodiscard]] bool MayDrag(const QPoint& pointer) const;
    [[nodiscard]] QPoint Confined(const QPoint& pointer) const;
    void Follow(const QPoint& pointer);
    void TakeProportion();
    void Clamp();
    void Layout();
    void Recalculate();

    float proportion_ = 0.5F;
    qint32 position_ = 128;
    qint32 orientation_ = Stacked;
    qint32 splitterSize_ = 4;
    Sizes minimum_{8, 8};
    Sizes maximum_{-1, -1};
    SplitterPane* first_ = nullptr;
    SplitterPane* second_ = nullptr;
    SplitterContainer* container_ = nullptr;
    bool dragging_ = false;
    QPoint startPointer_;
    qint32 startPosition_ = 0;
};
