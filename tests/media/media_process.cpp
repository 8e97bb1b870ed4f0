// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Several who ask one child: who is served when, and what one of them costs the others.

#include "tests/media/media_process_fixture.h"
#include "tests/media/picture_samples.h"

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

class SharedChild : public MediaProcessTest {
protected:
    /// The second client asks for a picture of one red pixel and one that is transparent.
    void BeginOther() {
        otherAnswer_.reset();
        other_->Decode(Place.WriteFile(u"other.gif"_s, SampleGif()), OtherBitmap(),
                       [this](bool decoded) { otherAnswer_ = decoded; });
    }

    [[nodiscard]] QString OtherBitmap() const { return Place.Root() + u"\\other.bmp"_s; }

    std::optional<ChildDecoder> other_{std::in_place, process_};
    std::optional<bool> otherAnswer_;
};

} // namespace

TEST_F(SharedChild, ServesAllOneAfterTheOther) {
    Begin(u"a.pfm"_s, SamplePfm());
    BeginOther();
    EXPECT_TRUE(WaitFor([this] { return otherAnswer_.has_value(); }));
    EXPECT_EQ(answer_, true) << "Who asks first is served first.";
    EXPECT_EQ(otherAnswer_, true);
    EXPECT_EQ(process_->findChildren<QProcess*>().size(), 1);
    EXPECT_EQ(QImage::fromData(World::ReadFile(Bitmap())).pixel(1, 0), 0xFFFFFFFF);
    EXPECT_EQ(QImage::fromData(World::ReadFile(OtherBitmap())).pixel(0, 0), 0xFFFF0000);
}

TEST_F(SharedChild, ServesTheNextWhenTheOneUnderWayIsAbandoned) {
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    Begin(u"b.pfm"_s, SamplePfm());
    BeginOther();
    decoder_.Abandon();
    EXPECT_TRUE(WaitFor([this] { return otherAnswer_.has_value(); }));
    EXPECT_EQ(otherAnswer_, true);
    EXPECT_FALSE(answer_.has_value());
}

TEST_F(SharedChild, WorksOnWhenOneWhoWaitsGivesUp) {
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    const qint64 child = ChildNumber();
    Begin(u"b.pfm"_s, SamplePfm());
    BeginOther();
    other_->Abandon();
    EXPECT_TRUE(WaitFor([this] { return answer_.has_value(); }));
    EXPECT_EQ(answer_, true);
    EXPECT_FALSE(otherAnswer_.has_value());
    EXPECT_EQ(ChildNumber(), child);
}

TEST_F(SharedChild, WorksOnWhenOneWhoWaitsAsksForSomethingElse) {
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    const qint64 child = ChildNumber();
    Begin(u"b.pfm"_s, SamplePfm());
    BeginOther();
    BeginOther();
    EXPECT_TRUE(WaitFor([this] { return otherAnswer_.has_value(); }));
    EXPECT_EQ(answer_, true);
    EXPECT_EQ(otherAnswer_, true);
    EXPECT_EQ(ChildNumber(), child);
}

TEST_F(SharedChild, ForgetsAClientThatHasGone) {
    BeginOther();
    other_.reset();
    EXPECT_EQ(Decode(u"a.pfm"_s, SamplePfm()), true);
    EXPECT_FALSE(otherAnswer_.has_value());
}

TEST_F(SharedChild, CanBeAskedFromAnAnswer) {
    std::optional<bool> second;
    decoder_.Decode(Place.WriteFile(u"a.pfm"_s, SamplePfm()), Bitmap(), [&](bool) {
        decoder_.Decode(Place.WriteFile(u"b.gif"_s, SampleGif()), OtherBitmap(),
                        [&](bool decoded) { second = decoded; });
    });
    EXPECT_TRUE(WaitFor([&] { return second.has_value(); }));
    EXPECT_EQ(second, true);
}

TEST(SharedMediaProcess, IsOneForAllAndEndsWithTheLastOfThem) {
    std::weak_ptr<MediaProcess> seen;
    {
        const std::shared_ptr<MediaProcess> first = MediaProcess::Shared();
        seen = first;
        EXPECT_EQ(MediaProcess::Shared(), first);
    }
    EXPECT_TRUE(seen.expired());
}
