// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A widget that hosts two panes with a draggable bar between them. In a form it stands as a container with two child
/// widgets, which become the panes in their order.
#pragma once

#include "ui/splitter/cSplitter.h"

#include <QWidget>

#include <memory>

class SplitterBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool FullDrag READ FullDrag WRITE SetFullDrag)
    Q_PROPERTY(bool KeepProportion READ KeepProportion WRITE SetKeepProportion)
    Q_PROPERTY(int Orientation READ Orientation WRITE SetOrientation)
    Q_PROPERTY(int Position READ Position WRITE SetPosition)
    Q_PROPERTY(int SplitterSize READ SplitterSize WRITE SetSplitterSize)
    Q_PROPERTY(QSize MinimumPanes READ MinimumPanes WRITE SetMinimumPanes)
public:
    explicit SplitterBox(QWidget* parent = nullptr);
    ~SplitterBox() override;

    /// All members of the splitter. Its host name is the object name of the box's window from the moment it is
    /// bound, which is when the box first gets its size.
    [[nodiscard]] cSplitter& Splitter() { return splitter_; }

    /// The bar between the panes: it has the pointer, the keyboard focus and the accessible name.
    [[nodiscard]] QWidget* Bar() const { return bar_; }

    [[nodiscard]] bool FullDrag() const { return splitter_.FullDrag; }

    void SetFullDrag(bool live) { splitter_.FullDrag = live; }

    [[nodiscard]] bool KeepProportion() const { return splitter_.KeepProportion; }

    void SetKeepProportion(bool keep) { splitter_.KeepProportion = keep; }

    [[nodiscard]] int Orientation() const { return splitter_.Orientation(); }

    void SetOrientation(int orientation);

    [[nodiscard]] int Position() const { return splitter_.Position(); }

    void SetPosition(int pixels);

    [[nodiscard]] int SplitterSize() const { return splitter_.SplitterSize(); }

    void SetSplitterSize(int pixels);

    /// The smallest extents of the two panes, as width (first) and height (second).
    [[nodiscard]] QSize MinimumPanes() const;
    void SetMinimumPanes(const QSize& pixels);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// Before a drag or a move by key starts, with the pointer's position on the screen. `cancel` set to true prevents
    /// it.
    void BeforeDrag(bool& cancel, const QPoint& pointer);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class Pane;
    class Space;

    [[nodiscard]] QSize Together(QSize (*sizeOf)(const QWidget&)) const;
    void Rebind();
    void PlaceBar();
    bool Keyed(int key, Qt::KeyboardModifiers modifiers);

    cSplitter splitter_;
    std::unique_ptr<Space> space_;
    std::unique_ptr<Pane> first_;
    std::unique_ptr<Pane> second_;
    QWidget* bar_ = nullptr;
    QWidget* ghost_ = nullptr;
    bool sized_ = false;
};
