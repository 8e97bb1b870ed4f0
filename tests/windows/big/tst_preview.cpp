// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The group of details in the BIG Editor's window: the picture through the real child process, and the sound's control.

#include "big/window/PreviewPane.h"
#include "media/PictureView.h"
#include "media/SoundPane.h"
#include "platform/Files.h"
#include "tests/media/picture_samples.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QAccessible>
#include <QSlider>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// A player whose status is set by the test.
class ShownPlayer : public SoundPlayer {
public:
    SoundStatus Now;
    int Plays = 0;
    int Rewinds = 0;
    qint64 Sought = -1;

    void Open(const QString& /*path*/) override {}

    void Stop() override {}

    void Play() override { ++Plays; }

    void Rewind() override { ++Rewinds; }

    void Seek(qint64 position) override { Sought = position; }

    [[nodiscard]] SoundStatus Status() const override { return Now; }
};

} // namespace

class PreviewWindow : public BigEditorWindow {
    Q_OBJECT

private Q_SLOTS:

    void init() {
        qputenv("SDL_AUDIODRIVER", "dummy");
        Begin();
        archive_ = world_->WriteFile(u"b.big"_s, ArchiveOf({{u"a.gif"_s, SampleGif()},
                                                            {u"b.png"_s, "no picture"},
                                                            {u"c.wav"_s, "no sound"},
                                                            {u"d.txt"_s, "text"}}));
        OpenArchive();
    }

    void cleanup() {
        End();
        qunsetenv("SDL_AUDIODRIVER");
    }

    void aPictureAppearsWithItsTransparency() {
        ClickRow(0);
        auto* const view = Part<PictureView>("Image8");
        QTRY_VERIFY(!view->IsEmpty());
        QCOMPARE(Part<QWidget>("mnuDetails")->height(), 200);
        QVERIFY(Part<QWidget>("Picture1")->isVisible());
        QVERIFY(!Part<QWidget>("MediaPlayer1")->isVisible());
        QCOMPARE(view->size(), QSize(105, 52));
        QVERIFY(!Part<QWidget>("Image13")->isVisible());
        QCOMPARE(Part<QWidget>("Image13")->size(), QSize(2, 1));
        const QImage seen = view->grab().toImage();
        QCOMPARE(seen.pixelColor(4, 4), QColor(Qt::red));
        QCOMPARE(seen.pixelColor(104, 4), QColor(Qt::white));
        QCOMPARE(seen.pixelColor(97, 4), QColor(204, 204, 204));
    }

    void aPictureThatCannotBeReadLeavesTheOldOne() {
        ClickRow(0);
        auto* const view = Part<PictureView>("Image8");
        QTRY_VERIFY(!view->IsEmpty());
        ClickRow(1);
        QCOMPARE(Part<QLabel>("lblFName")->text(), u"b.png"_s);
        const QString folder = world_->ProgramFolder() + u"\\TempPrev\\*"_s;
        QTRY_COMPARE(::Files::ListFolder(folder), QStringList());
        QCOMPARE(view->size(), QSize(105, 52));
    }

    void theGroupIsAsHighAsItsContents() {
        QWidget* group = Part<QWidget>("mnuDetails");
        ClickRow(2);
        QTRY_COMPARE(group->height(), 141);
        QVERIFY(Part<QWidget>("MediaPlayer1")->isVisible());
        QVERIFY(!Part<QWidget>("Picture1")->isVisible());
        ClickRow(3);
        QTRY_COMPARE(group->height(), 80);
        QVERIFY(!Part<QWidget>("MediaPlayer1")->isVisible());
        QCOMPARE(Part<QLabel>("lblFSize")->text(), u"0 KB"_s);
    }

    void aFoldedGroupStaysFolded() {
        ClickRow(3);
        Part<SideGroup>("mnuDetails")->SetFolded(true);
        ClickRow(0);
        QTRY_COMPARE(Part<QWidget>("mnuDetails")->height(), int{SideGroup::HeadingHeight});
        QVERIFY(!Part<QWidget>("Picture1")->isVisible());
    }

    void theSoundsControlFollowsItsPlayer() {
        ShownPlayer player;
        SoundPane pane;
        pane.Use(&player);
        pane.show();
        auto* const play = pane.findChild<QToolButton*>(u"cmdPlay"_s);
        auto* const position = pane.findChild<QSlider*>(u"sldPosition"_s);
        auto* const time = pane.findChild<QLabel*>(u"lblTime"_s);
        QVERIFY(!play->isEnabled());
        player.Now = {SoundStatus::Stage::Playing, 61000, 125000};
        QTRY_COMPARE(time->text(), u"1:01 / 2:05"_s);
        QCOMPARE(position->value(), 61000);
        QCOMPARE(player.Sought, qint64{-1});
        QCOMPARE(play->accessibleName(), u"StopSound"_s);
        QTest::keyClick(play, Qt::Key_Space);
        QCOMPARE(player.Rewinds, 1);
        player.Now.What = SoundStatus::Stage::Stopped;
        QTRY_COMPARE(play->accessibleName(), u"PlaySound"_s);
        QTest::mouseClick(play, Qt::LeftButton);
        QCOMPARE(player.Plays, 1);
        QTest::keyClick(position, Qt::Key_Right);
        QCOMPARE(player.Sought, qint64{62000});
        QCOMPARE(position->accessibleName(), u"SoundPosition"_s);
    }

    void aSilentControlSaysWhy() {
        ShownPlayer player;
        SoundPane pane;
        pane.Use(&player);
        pane.show();
        auto* const reason = pane.findChild<QLabel*>(u"lblReason"_s);
        player.Now = {SoundStatus::Stage::NoDevice};
        QTRY_COMPARE(reason->text(), u"NoSoundDevice"_s);
        QVERIFY(reason->isVisible());
        QVERIFY(!pane.findChild<QToolButton*>(u"cmdPlay"_s)->isEnabled());
        player.Now = {SoundStatus::Stage::Unplayable};
        QTRY_COMPARE(reason->text(), u"SoundUnplayable"_s);
        player.Now = {SoundStatus::Stage::Playing, 0, 1000};
        QTRY_VERIFY(!reason->isVisible());
    }

    void aSoundWithoutADeviceIsSilentAndSaysSo() {
        qputenv("SDL_AUDIODRIVER", "none of them");
        ClickRow(2);
        auto* const reason = Part<QLabel>("lblReason");
        QTRY_COMPARE(reason->text(), u"NoSoundDevice"_s);
        QVERIFY(Part<QToolButton>("cmdPlay")->isVisible());
    }
};

WINDOW_TEST(PreviewWindow)

#include "tst_preview.moc"
