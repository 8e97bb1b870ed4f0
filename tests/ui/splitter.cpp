// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "ui/splitter/cSplitter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Box {
    double Left;
    double Top;
    double Width;
    double Height;

    bool operator==(const Box&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Box& box) {
    return out << box.Left << ',' << box.Top << ' ' << box.Width << 'x' << box.Height;
}

class NotedPane : public SplitterPane {
public:
    void Move(double left, double top, double width, double height) override {
        ++Moves;
        if (Refuses)
            throw RuntimeError(ErrorNumber::InvalidProperty, u"no"_s);
        Place = {left, top, width, height};
    }

    Box Place{-1, -1, -1, -1};
    int Moves = 0;
    bool Refuses = false;
};

/// A container whose own scale is so many units a pixel.
class ScriptedContainer : public SplitterContainer {
public:
    [[nodiscard]] double ScaleWidth() const override { return Window.width() * Units; }

    [[nodiscard]] double ScaleHeight() const override { return Window.height() * Units; }

    [[nodiscard]] double ScaleX(qint32 pixels) const override { return pixels * Units; }

    [[nodiscard]] double ScaleY(qint32 pixels) const override { return pixels * Units; }

    [[nodiscard]] QRect WindowRect() const override { return Window; }

    void ShowGhost(const QRect& bar) override { Ghosts.push_back(bar); }

    QRect Window{1000, 500, 300, 400};
    double Units = 1;
    std::vector<QRect> Ghosts;
};

class Splitter : public testing::Test {
protected:
    void Bind() { splitter_.Bind(&first_, &second_, &container_); }

    void Drag(QPoint from, QPoint to) {
        splitter_.MouseDown(Qt::LeftButton, from);
        splitter_.MouseMove(to);
        splitter_.MouseUp(to);
    }

    void ExpectRefused(const std::function<void()>& step) {
        try {
            step();
            ADD_FAILURE() << "nothing was raised";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 380);
            EXPECT_EQ(error.Source(), u"frmBigEditor.cSplitter"_s);
        }
    }

    NotedPane first_;
    NotedPane second_;
    ScriptedContainer container_;
    cSplitter splitter_{u"frmBigEditor"_s};
};

} // namespace

TEST_F(Splitter, MembersStartWithTheirDefaults) {
    EXPECT_TRUE(splitter_.FullDrag);
    EXPECT_EQ(splitter_.Orientation(), 1);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 50);
    EXPECT_EQ(splitter_.Position(), 128);
    EXPECT_FALSE(splitter_.KeepProportion);
    EXPECT_EQ(splitter_.SplitterSize(), 4);
    EXPECT_EQ(splitter_.MinimumSize(), (cSplitter::Sizes{8, 8}));
    EXPECT_EQ(splitter_.MaximumSize(), (cSplitter::Sizes{-1, -1}));
    EXPECT_EQ(splitter_.Container(), nullptr);
    EXPECT_EQ(splitter_.Cursor(), Qt::SizeVerCursor);
    EXPECT_FALSE(splitter_.Dragging());
}

TEST_F(Splitter, StackedPanesLieAboveEachOther) {
    Bind();
    EXPECT_EQ(first_.Place, (Box{0, 0, 300, 128}));
    EXPECT_EQ(second_.Place, (Box{0, 132, 300, 268}));
    EXPECT_EQ(splitter_.Bar(), QRect(0, 128, 300, 4));
}

TEST_F(Splitter, PanesSideBySideShareTheWidth) {
    splitter_.SetOrientation(2);
    Bind();
    EXPECT_EQ(first_.Place, (Box{0, 0, 128, 400}));
    EXPECT_EQ(second_.Place, (Box{132, 0, 168, 400}));
    EXPECT_EQ(splitter_.Bar(), QRect(128, 0, 4, 400));
    EXPECT_EQ(splitter_.Cursor(), Qt::SizeHorCursor);
}

TEST_F(Splitter, TheLayoutIsInTheContainersOwnScale) {
    container_.Units = 15;
    Bind();
    EXPECT_EQ(first_.Place, (Box{0, 0, 4500, 1920}));
    EXPECT_EQ(second_.Place, (Box{0, 1980, 4500, 4020}));
}

TEST_F(Splitter, UnboundNothingMoves) {
    splitter_.SetProportion(10);
    splitter_.Resize();
    Drag({1000, 630}, {1000, 700});
    splitter_.Nudge(5);
    EXPECT_EQ(splitter_.Position(), 128);
    EXPECT_FALSE(splitter_.Dragging());
    EXPECT_TRUE(splitter_.Bar().isEmpty());
    splitter_.Bind(&first_, nullptr, &container_);
    EXPECT_EQ(first_.Moves, 0);
}

TEST_F(Splitter, ProportionIsInPercentAndMovesTheBar) {
    Bind();
    splitter_.SetProportion(25);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 25);
    EXPECT_EQ(splitter_.Position(), 100);
    EXPECT_EQ(first_.Place.Height, 100);
    splitter_.SetProportion(0);
    EXPECT_EQ(splitter_.Position(), 8);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 0);
}

TEST_F(Splitter, Proportion100LeavesTheSecondPaneItsMinimum) {
    Bind();
    splitter_.SetProportion(100);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 100);
    EXPECT_EQ(splitter_.Position(), 400 - 4 - 8);
    EXPECT_EQ(second_.Place, (Box{0, 392, 300, 8}));
}

TEST_F(Splitter, Proportion101RaisesError380) {
    Bind();
    ExpectRefused([&] { splitter_.SetProportion(101); });
    ExpectRefused([&] { splitter_.SetProportion(-0.5F); });
    ExpectRefused([&] { splitter_.SetProportion(std::numeric_limits<float>::quiet_NaN()); });
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 50);
    EXPECT_EQ(splitter_.Position(), 128);
}

TEST_F(Splitter, ANegativeSizeRaisesError380AndZeroIsTaken) {
    Bind();
    ExpectRefused([&] { splitter_.SetSplitterSize(-1); });
    EXPECT_EQ(splitter_.SplitterSize(), 4);
    splitter_.SetSplitterSize(0);
    EXPECT_EQ(second_.Place, (Box{0, 128, 300, 272}));
}

TEST_F(Splitter, InAContainerTooSmallTheFirstPaneHasItsMinimum) {
    container_.Window.setHeight(10);
    Bind();
    EXPECT_EQ(splitter_.Position(), 8);
}

struct ClampCase {
    qint32 Position;
    cSplitter::Sizes Minimum;
    cSplitter::Sizes Maximum;
    qint32 Result;
};

class SplitterClamp : public Splitter, public testing::WithParamInterface<ClampCase> {};

// Extent 400, bar 4.
TEST_P(SplitterClamp, ALaterRuleWins) {
    splitter_.SetMinimumSize(GetParam().Minimum);
    splitter_.SetMaximumSize(GetParam().Maximum);
    splitter_.SetPosition(GetParam().Position);
    Bind();
    EXPECT_EQ(splitter_.Position(), GetParam().Result);
}

INSTANTIATE_TEST_SUITE_P(Rules, SplitterClamp,
                         testing::Values(ClampCase{200, {8, 8}, {-1, -1}, 200},    // nothing to do
                                         ClampCase{200, {8, 8}, {-1, 100}, 296},   // 1: second too large
                                         ClampCase{200, {8, 8}, {100, -1}, 100},   // 2: first too large
                                         ClampCase{200, {8, 8}, {100, 100}, 100},  // 2 over 1
                                         ClampCase{390, {8, 50}, {-1, -1}, 346},   // 3: second too small
                                         ClampCase{100, {8, 350}, {100, 100}, 46}, // 3 over 2
                                         ClampCase{2, {8, 8}, {-1, -1}, 8},        // 4: first too small
                                         ClampCase{100, {90, 350}, {-1, -1}, 90},  // 4 over 3
                                         ClampCase{50, {0, 0}, {0, 0}, 50},        // below 1 means none
                                         ClampCase{-7, {0, 0}, {-1, -1}, -7}));    // no minimum, no rule

TEST_F(Splitter, OnResizeThePositionStaysUnlessTheProportionIsKept) {
    Bind();
    container_.Window.setHeight(800);
    splitter_.Resize();
    EXPECT_EQ(splitter_.Position(), 128);
    EXPECT_EQ(second_.Place, (Box{0, 132, 300, 668}));
    splitter_.KeepProportion = true;
    splitter_.Resize();
    EXPECT_EQ(splitter_.Position(), 400);
}

TEST_F(Splitter, HalfAPixelGoesToTheEvenSide) {
    splitter_.KeepProportion = true;
    container_.Window.setHeight(101); // 50.5
    Bind();
    EXPECT_EQ(splitter_.Position(), 50);
    container_.Window.setHeight(103); // 51.5
    splitter_.Resize();
    EXPECT_EQ(splitter_.Position(), 52);
}

TEST_F(Splitter, AFullDragMovesThePanesLive) {
    Bind();
    splitter_.MouseDown(Qt::LeftButton, {1100, 630});
    EXPECT_TRUE(splitter_.Dragging());
    splitter_.MouseMove({1150, 660});
    EXPECT_EQ(splitter_.Position(), 158);
    EXPECT_EQ(first_.Place.Height, 158);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 50);
    splitter_.MouseUp({1150, 700});
    EXPECT_EQ(splitter_.Position(), 198);
    EXPECT_EQ(second_.Place.Top, 202);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 49.5F);
    EXPECT_FALSE(splitter_.Dragging());
    for (const QRect& ghost : container_.Ghosts)
        EXPECT_TRUE(ghost.isEmpty());
}

TEST_F(Splitter, WithoutFullDragAGhostFollowsAndThePanesMoveOnRelease) {
    splitter_.FullDrag = false;
    Bind();
    const int moves = first_.Moves;
    splitter_.MouseDown(Qt::LeftButton, {1100, 630});
    splitter_.MouseMove({1100, 640});
    splitter_.MouseMove({1100, 650});
    EXPECT_EQ(first_.Moves, moves);
    splitter_.MouseUp({1100, 660});
    EXPECT_EQ(container_.Ghosts, (std::vector<QRect>{{0, 128, 300, 4}, {0, 138, 300, 4}, {0, 148, 300, 4}, {}}));
    EXPECT_EQ(first_.Place.Height, 158);
}

TEST_F(Splitter, WithoutFullDragADragWithNoMovementRecomputesTheProportion) {
    splitter_.FullDrag = false;
    Bind();
    splitter_.MouseDown(Qt::LeftButton, {1100, 630});
    splitter_.MouseUp({1100, 630});
    EXPECT_EQ(first_.Place, (Box{0, 0, 300, 128}));
    EXPECT_EQ(second_.Place, (Box{0, 132, 300, 268}));
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 32);
}

TEST_F(Splitter, SideBySideTheTravelAcrossCounts) {
    splitter_.SetOrientation(2);
    Bind();
    Drag({1130, 600}, {1080, 790});
    EXPECT_EQ(splitter_.Position(), 78);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 26);
}

TEST_F(Splitter, ThePointerCountsNoFurtherThanTheContainersEdge) {
    splitter_.SetMinimumSize({0, 0});
    Bind();
    splitter_.MouseDown(Qt::LeftButton, {1100, 630}); // two pixels inside the bar
    splitter_.MouseMove({1100, 5000});
    EXPECT_EQ(splitter_.Position(), 128 + (899 - 630));
    splitter_.MouseMove({1100, -5000});
    EXPECT_EQ(splitter_.Position(), 128 - 130);
    splitter_.MouseMove({1100, 640});
    EXPECT_EQ(splitter_.Position(), 138);
}

TEST_F(Splitter, TheHostMayCancelADrag) {
    Bind();
    QPoint seen;
    splitter_.BeforeDrag = [&](bool& cancel, const QPoint& pointer) {
        cancel = true;
        seen = pointer;
    };
    Drag({1100, 630}, {1100, 700});
    EXPECT_EQ(seen, QPoint(1100, 630));
    EXPECT_EQ(splitter_.Position(), 128);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 50);
}

TEST_F(Splitter, OtherButtonsDragNothing) {
    Bind();
    splitter_.BeforeDrag = [](bool&, const QPoint&) { ADD_FAILURE() << "raised for another button"; };
    splitter_.MouseDown(Qt::RightButton, {1100, 630});
    splitter_.MouseMove({1100, 700});
    EXPECT_EQ(splitter_.Position(), 128);
}

TEST_F(Splitter, AnErrorWhileMovingAPaneIsIgnored) {
    first_.Refuses = true;
    Bind();
    EXPECT_EQ(first_.Moves, 1);
    EXPECT_EQ(second_.Place, (Box{0, 132, 300, 268}));
}

TEST_F(Splitter, AnotherContainerLaysThePanesOutAnewAndNoneUnbinds) {
    Bind();
    ScriptedContainer wider;
    wider.Window.setWidth(700);
    splitter_.SetContainer(&wider);
    EXPECT_EQ(splitter_.Container(), &wider);
    EXPECT_EQ(second_.Place, (Box{0, 132, 700, 268}));
    splitter_.SetContainer(nullptr);
    EXPECT_EQ(splitter_.Container(), nullptr);
    splitter_.SetPosition(50);
    EXPECT_EQ(second_.Place.Top, 132);
}

TEST_F(Splitter, ADragThatIsAbandonedGoesBack) {
    splitter_.FullDrag = false;
    Bind();
    splitter_.MouseDown(Qt::LeftButton, {1100, 630});
    splitter_.MouseMove({1100, 700});
    splitter_.AbandonDrag();
    EXPECT_EQ(splitter_.Position(), 128);
    EXPECT_TRUE(container_.Ghosts.back().isEmpty());
    EXPECT_FALSE(splitter_.Dragging());
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 50);
}

TEST_F(Splitter, ANudgeMovesLikeAShortDrag) {
    Bind();
    splitter_.Nudge(72);
    EXPECT_EQ(splitter_.Position(), 200);
    EXPECT_FLOAT_EQ(splitter_.Proportion(), 50);
    splitter_.Nudge(-1000);
    EXPECT_EQ(splitter_.Position(), 8);
    EXPECT_EQ(first_.Place.Height, 8);
}

TEST_F(Splitter, TheGhostsPatternIsAChequerOfAAAA5555) {
    for (std::size_t row = 0; row < cSplitter::GhostPattern.size(); ++row)
        EXPECT_EQ(cSplitter::GhostPattern.at(row), row % 2 == 0 ? 0x5555 : 0xAAAA);
}
