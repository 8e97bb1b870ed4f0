// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The window in which a picture is large enough to be judged, with the real child process behind it.
#include "big/window/frmPicture.h"
#include "media/PictureCanvas.h"
#include "platform/Files.h"
#include "tests/media/picture_samples.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QAbstractButton>
#include <QComboBox>

using namespace Qt::StringLiterals;

class tst_picture : public BigEditorWindow {
    Q_OBJECT
private:
    frmPicture* Whole() { return window_->findChild<frmPicture*>(); }

    PictureCanvas* Canvas() { return Part<PictureCanvas>("picWhole"); }

    QString Facts() { return Part<QLabel>("lblPicture")->text(); }

    int Percent() { return Canvas()->Zoom().Percent(); }

    QColor Centre() { return Canvas()->viewport()->grab().toImage().pixelColor(Canvas()->viewport()->rect().center()); }

    void Make() {
        Demo::Picture picture(64, 32);
        for (int y = 0; y < picture.Height; ++y)
            for (int x = 0; x < picture.Width; ++x)
                picture.At(x, y) = {255, 0, 0, 0};
        archive_ = world_->WriteFile(u"b.big"_s, ArchiveOf({{u"a.gif"_s, SampleGif()},
                                                            {u"b.txt"_s, "text"},
                                                            {u"c.tga"_s, Tga(picture, 32, false, {})},
                                                            {u"d.png"_s, "no picture"}}));
    }

    void OpenWhole(int row) {
        OpenArchive();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        ClickRow(row);
        QTRY_VERIFY(!Facts().isEmpty());
        QTest::mouseClick(Part<QWidget>("cmdPicture"), Qt::LeftButton);
        QVERIFY(Whole() != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(Whole()));
        // Without a window manager the click's own window may come to the front again.
        Whole()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), Whole());
    }

private Q_SLOTS:

    void init() {
        Begin("[LNG]\r\nMipmapCount=mipmaps: %1\r\nPictureUnread=unread\r\nShowPicture=show\r\n");
        Make();
    }

    void cleanup() { End(); }

    void theSmallPictureLeadsToTheWholeOne() {
        OpenWhole(2);
        QCOMPARE(Facts(), u"64\u00D732, TGA 32 bits"_s);
        QCOMPARE(Whole()->windowTitle(), u"c.tga"_s);
        QCOMPARE(Part<QLabel>("lblFacts")->text(), Facts());
        QCOMPARE(Part<QLabel>("lblPlace")->text(), u"2 / 3"_s);
        QCOMPARE(Percent(), 100);
        QVERIFY(Canvas()->hasFocus());
        QCOMPARE(Part<QAbstractButton>("cmdPicture")->accessibleName(), u"show"_s);
        window_->hide();
        QVERIFY(!Whole()->isVisible());
    }

    void theSmallPictureAnswersToTheKeyboard() {
        OpenArchive();
        ClickRow(2);
        QTRY_VERIFY(!Facts().isEmpty());
        Part<QWidget>("cmdPicture")->setFocus();
        QTest::keyClick(Part<QWidget>("cmdPicture"), Qt::Key_Return);
        QVERIFY(Whole() != nullptr && Whole()->isVisible());
    }

    void theLineHasNoPlaceWithoutAPicture() {
        OpenArchive();
        ClickRow(2);
        QTRY_VERIFY(Part<QWidget>("lblPicture")->isVisible());
        QCOMPARE(Part<QWidget>("mnuDetails")->height(), 200);
        const QWidget* const line = Part<QWidget>("lblPicture");
        QTRY_VERIFY(line->height() >= line->fontMetrics().height());
        QVERIFY(line->geometry().bottom() <= Part<QWidget>("picDetails")->height());
        ClickRow(1);
        QVERIFY(!line->isVisible());
        QTRY_COMPARE(Part<QWidget>("mnuDetails")->height(), 80);
    }

    void keysAndWheelZoom() {
        OpenWhole(2);
        QTest::keyClick(Canvas(), Qt::Key_Plus);
        QCOMPARE(Percent(), 150);
        QCOMPARE(Part<QLabel>("lblZoom")->text(), u"150 %"_s);
        QTest::keyClick(Canvas(), Qt::Key_Minus);
        QTest::keyClick(Canvas(), Qt::Key_Minus);
        QCOMPARE(Percent(), 67);
        QTest::keyClick(Canvas(), Qt::Key_1);
        QCOMPARE(Percent(), 100);
        QTest::keyClick(Canvas(), Qt::Key_0);
        QVERIFY(Percent() > 600);
        const int fitted = Percent();
        const QPointF place = Canvas()->viewport()->rect().center();
        QWheelEvent wheel(place, Canvas()->viewport()->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(Canvas()->viewport(), &wheel);
        QVERIFY(Percent() > fitted);
    }

    void theGroundStandsBehindWhatIsTransparent() {
        OpenWhole(2);
        auto* const ground = Part<QComboBox>("cmbGround");
        const QColor checked = Centre();
        QVERIFY(checked == QColor(Qt::white) || checked == QColor(204, 204, 204));
        ground->setCurrentIndex(1);
        QCOMPARE(Centre(), QColor(Qt::white));
        ground->setCurrentIndex(2);
        QCOMPARE(Centre(), QColor(Qt::black));
        ground->setCurrentIndex(3);
        QCOMPARE(Centre(), QColor(Qt::black));
        QTest::keyClick(Canvas(), Qt::Key_PageUp); // its left half is opaque
        QTRY_COMPARE(Whole()->windowTitle(), u"a.gif"_s);
        QTRY_COMPARE(Part<QLabel>("lblFacts")->text(), u"2\u00D71, GIF"_s);
        QTest::keyClick(Canvas(), Qt::Key_0);
        const QImage seen = Canvas()->viewport()->grab().toImage();
        const int middle = seen.height() / 2;
        QCOMPARE(seen.pixelColor(seen.width() / 2 - 8, middle), QColor(Qt::white));
        QCOMPARE(seen.pixelColor(seen.width() / 2 + 8, middle), QColor(Qt::black));
    }

    void thePicturesOfTheFolderFollowEachOther() {
        OpenWhole(0);
        QVERIFY(!Part<QWidget>("cmdBefore")->isEnabled());
        QTest::keyClick(Canvas(), Qt::Key_PageDown);
        QCOMPARE(Whole()->windowTitle(), u"c.tga"_s);
        QCOMPARE(Files()->SelectedRows(), std::vector<int>{2});
        QCOMPARE(Part<QLabel>("lblFName")->text(), u"c.tga"_s);
        QTRY_COMPARE(Canvas()->Zoom().Shown(), QSize(64, 32));
        QTest::keyClick(Canvas(), Qt::Key_PageDown);
        QTRY_COMPARE(Part<QLabel>("lblFacts")->text(), u"unread"_s);
        QCOMPARE(Whole()->windowTitle(), u"d.png"_s);
        QCOMPARE(Canvas()->Zoom().Shown(), QSize());
        QVERIFY(!Part<QWidget>("cmdSave")->isEnabled());
        QVERIFY(!Part<QWidget>("cmdBehind")->isEnabled());
    }

    void itIsSavedAsPng() {
        OpenWhole(2);
        host_->FileNames = {world_->Root() + u"\\out.png"_s};
        QTest::keyClick(Canvas(), Qt::Key_S, Qt::ControlModifier);
        const QImage read = QImage::fromData(World::ReadFile(world_->Root() + u"\\out.png"_s), "PNG");
        QCOMPARE(read.size(), QSize(64, 32));
        QCOMPARE(read.pixel(5, 5), qRgba(255, 0, 0, 0));
    }

    void anotherArchiveClosesIt() {
        OpenWhole(2);
        const QString other = world_->WriteFile(u"c.big"_s, ArchiveOf({{u"a.txt"_s, "a"}, {u"b.txt"_s, "b"}}));
        window_->OpenBigFile(other);
        QVERIFY(!Whole()->isVisible());
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        End();
        QFETCH(const QString, language);
        BeginInLanguage(language);
        frmPicture window;
        window.resize(window.minimumSize());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(AllTextsHaveRoom(window));
    }
};

WINDOW_TEST(tst_picture)

#include "tst_picture.moc"
