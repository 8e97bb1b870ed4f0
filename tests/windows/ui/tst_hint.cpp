// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rows/RowList.h"
#include "tests/windows/WindowTests.h"
#include "ui/list/RowListModel.h"
#include "ui/list/RowListView.h"
#include "ui/look/DrawnIcon.h"
#include "ui/look/Hint.h"

using namespace Qt::StringLiterals;

class tst_hint : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void aHintStandsInTheMiddleOfItsPane() {
        HintPane pane;
        pane.resize(400, 300);
        pane.SetHint({{}, u"Nothing here\nAdd something."_s});
        const QRect drawn = Drawn(pane.grab().toImage());
        QVERIFY(!drawn.isEmpty());
        QVERIFY(qAbs(drawn.center().x() - 200) <= 3);
        QVERIFY(drawn.top() > 60 && drawn.bottom() < 240);
        QCOMPARE(pane.accessibleName(), u"Nothing here\nAdd something."_s);
    }

    void withoutATextNothingIsDrawn() {
        HintPane pane;
        pane.resize(400, 300);
        pane.SetHint({u"folder"_s, {}});
        QVERIFY(Drawn(pane.grab().toImage()).isEmpty());
    }

    void aPictureStandsAboveTheText() {
        HintPane pane;
        pane.resize(400, 300);
        pane.SetHint({u"no-such-picture"_s, u"Nothing"_s});
        const int plain = Drawn(pane.grab().toImage()).height();
        pane.SetHint({u"folder"_s, u"Nothing"_s});
        QVERIFY(Drawn(pane.grab().toImage()).height() >= plain + 48);
        QVERIFY(DrawnIcon::Has(u"folder"_s) && !DrawnIcon::Has(u"no-such-picture"_s));
    }

    void aLongTextIsWrappedAndNeverCut() {
        HintPane pane;
        pane.resize(160, 300);
        pane.SetHint({{}, u"Nothing\nA text of many words that does not fit into one line of a narrow pane."_s});
        const QRect drawn = Drawn(pane.grab().toImage());
        QVERIFY(drawn.left() >= 14 && drawn.right() <= 146);
        QVERIFY(drawn.height() > 4 * pane.fontMetrics().lineSpacing());
    }

    void aListShowsItsHintOnlyWhileItHasNoRows() {
        RowList rows({{.Caption = u"Name"_s}});
        RowListModel model(rows);
        RowListView view;
        view.SetRows(&model);
        view.resize(400, 300);
        const QImage empty = view.viewport()->grab().toImage();
        view.SetHint({{}, u"Nothing here"_s});
        QVERIFY(view.viewport()->grab().toImage() != empty);
        QCOMPARE(view.accessibleDescription(), u"Nothing here"_s);
        model.Begin(RowChange::Insert);
        rows.Add({.Text = u"a"_s});
        model.End(RowChange::Insert);
        const QImage withRow = view.viewport()->grab().toImage();
        view.SetHint({});
        QCOMPARE(view.viewport()->grab().toImage(), withRow);
    }

private:
    /// What differs from the ground.
    static QRect Drawn(const QImage& picture) {
        QRect drawn;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != picture.pixel(0, 0))
                    drawn |= QRect(x, y, 1, 1);
        return drawn;
    }
};

WINDOW_TEST(tst_hint)
#include "tst_hint.moc"
