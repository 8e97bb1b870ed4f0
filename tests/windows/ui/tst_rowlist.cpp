// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rows/RowList.h"
#include "tests/windows/WindowTests.h"
#include "ui/list/RowListModel.h"
#include "ui/list/RowListView.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

RowList Maps() {
    RowList list({{.Caption = u"Name"_s, .Fraction = 0.5},
                  {.Caption = u"Size"_s, .Sort = SortKind::Number, .Fraction = 0.25},
                  {.Caption = u"Comments"_s}},
                 RowList::Checks::Yes, RowList::Edits::Yes);
    list.Add({.Text = u"desert"_s, .SubItems = {u"100"_s, u"two\nlines"_s}, .Key = u"d"_s});
    list.Add({.Text = u"<b>alpine"_s, .SubItems = {u"9"_s}, .Key = u"a"_s});
    list.Add({.Text = u"city"_s, .SubItems = {u"20"_s}, .Key = u"c"_s});
    return list;
}

} // namespace

class tst_rowlist : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        list_ = std::make_unique<RowList>(Maps());
        model_ = std::make_unique<RowListModel>(*list_);
        view_ = std::make_unique<RowListView>();
        view_->SetRows(model_.get());
        view_->resize(402, 200);
        view_->show();
        view_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(view_.get()));
        view_->setFocus();
    }

    void cleanup() {
        view_.reset();
        model_.reset();
        list_.reset();
    }

    void theModelKeepsTheRules() {
        const QAbstractItemModelTester tester(model_.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        model_->SortBy(1);
        model_->SortBy(0);
        model_->Begin(RowChange::Insert, 3);
        list_->Add({.Text = u"new"_s});
        model_->End(RowChange::Insert);
        model_->Begin(RowChange::Remove, 0);
        list_->Remove(0);
        model_->End(RowChange::Remove);
        model_->CheckAll(true);
        model_->RowChanged(1);
        model_->Begin(RowChange::Reset);
        list_->Clear();
        model_->End(RowChange::Reset);
        QCOMPARE(model_->rowCount(), 0);
    }

    void cellsShowOneLineAndTipsTheWholeTextAsItStands() {
        QCOMPARE(Data(0, 2).toString(), u"two\u21B5lines"_s);
        QCOMPARE(Data(0, 2, Qt::EditRole).toString(), u"two\nlines"_s);
        QVERIFY(Data(1, 0, Qt::ToolTipRole).toString().contains(u"&lt;b&gt;alpine"_s));
    }

    void columnsHaveTheirCaptionsAndNumbersStandAtTheRight() {
        QCOMPARE(model_->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"Name"_s);
        QCOMPARE(model_->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), u"Comments"_s);
        QVERIFY((Data(0, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0);
        QVERIFY(!Data(0, 0, Qt::TextAlignmentRole).isValid());
    }

    void columnsTakeTheirPartOfTheWidth() {
        const int width = view_->viewport()->width();
        QCOMPARE(view_->columnWidth(0), width / 2);
        QCOMPARE(view_->columnWidth(1), width / 4);
        QCOMPARE(view_->columnWidth(2), width - width / 2 - width / 4);
        view_->resize(602, 200);
        QCOMPARE(view_->columnWidth(0), view_->viewport()->width() / 2);
    }

    void widthsThatTheUserChoseStay() {
        const int border = view_->columnWidth(0) - 1;
        QWidget* header = view_->header()->viewport();
        QTest::mousePress(header, Qt::LeftButton, {}, {border, 8});
        QTest::mouseMove(header, {border - 60, 8});
        QTest::mouseRelease(header, Qt::LeftButton, {}, {border - 60, 8});
        const int chosen = view_->columnWidth(0);
        QVERIFY(chosen < border - 40);
        view_->resize(602, 200);
        QCOMPARE(view_->columnWidth(0), chosen);
    }

    void headerClicksSortBackAndForthAndShowTheirMark() {
        QVERIFY(!view_->header()->isSortIndicatorShown());
        ClickHeader(1);
        QCOMPARE(Shown(), QStringList({u"<b>alpine"_s, u"city"_s, u"desert"_s}));
        QVERIFY(view_->header()->isSortIndicatorShown());
        QCOMPARE(view_->header()->sortIndicatorSection(), 1);
        QCOMPARE(view_->header()->sortIndicatorOrder(), Qt::AscendingOrder);
        ClickHeader(1);
        QCOMPARE(Shown(), QStringList({u"desert"_s, u"city"_s, u"<b>alpine"_s}));
        QCOMPARE(view_->header()->sortIndicatorOrder(), Qt::DescendingOrder);
        ClickHeader(0);
        QCOMPARE(view_->header()->sortIndicatorSection(), 0);
        QCOMPARE(view_->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    void anotherListingTakesTheMarkAway() {
        ClickHeader(1);
        model_->Begin(RowChange::Reset);
        *list_ = Maps();
        model_->End(RowChange::Reset);
        QVERIFY(!view_->header()->isSortIndicatorShown());
    }

    void theSelectionFollowsItsRowThroughASort() {
        view_->SelectRow(2);
        ClickHeader(0);
        QCOMPARE(view_->currentIndex().data().toString(), u"city"_s);
        QCOMPARE(view_->Gestures()->SelectedRows(), std::vector<int>{1});
    }

    void aSortOfTheOwnersTakesTheModelsPlace() {
        int clicked = -1;
        view_ = std::make_unique<RowListView>();
        view_->SetRows(model_.get(), [&](int column) { clicked = column; });
        view_->show();
        ClickHeader(1);
        QCOMPARE(clicked, 1);
        QCOMPARE(Shown().first(), u"desert"_s);
    }

    void aClickOnTheMarkChecksTheRow() {
        const QSignalSpy told(model_.get(), &RowListModel::CheckChanged);
        ClickMark(1);
        QVERIFY(list_->IsChecked(1));
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.first().first().toInt(), 1);
        QCOMPARE(told.first().at(1).toBool(), true);
        ClickMark(1);
        QVERIFY(!list_->IsChecked(1));
    }

    void theBlankKeyTurnsTheMarksOfAllSelectedRows() {
        view_->SelectRow(1);
        QTest::keyClick(view_.get(), Qt::Key_Space);
        QCOMPARE(list_->Checked(), std::vector<int>{1});
        QTest::keyClick(view_.get(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view_.get(), Qt::Key_Space);
        QCOMPARE(list_->Checked(), std::vector<int>{}); // the current row had its mark
        QTest::keyClick(view_.get(), Qt::Key_Space);
        QCOMPARE(list_->Checked(), (std::vector<int>{0, 1, 2}));
        QCOMPARE(view_->Gestures()->SelectedRows().size(), std::size_t{3});
    }

    void allRowsAreCheckedAndNone() {
        model_->CheckAll(true);
        QCOMPARE(Data(2, 0, Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
        QVERIFY(!Data(2, 1, Qt::CheckStateRole).isValid());
        model_->CheckAll(false);
        QCOMPARE(Data(2, 0, Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Unchecked));
    }

    void anEditIsToldAndChangesNothingByItself() {
        const QSignalSpy told(model_.get(), &RowListModel::RenameWanted);
        Edit(0, u"oasis"_s);
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.first().first().toInt(), 0);
        QCOMPARE(told.first().at(1).toString(), u"oasis"_s);
        QCOMPARE(list_->Text(0, 0), u"desert"_s);
    }

    void anEditToTheSameOrNoTextIsNotTold() {
        const QSignalSpy told(model_.get(), &RowListModel::RenameWanted);
        Edit(0, u"desert"_s);
        Edit(0, QString());
        QCOMPARE(told.count(), 0);
    }

    void aSecondClickOnASelectedRowEditsItsText() {
        view_->SelectRow(0);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, TextOf(0));
        QTRY_VERIFY(Field() != nullptr);
    }

    void keysOfAnEditAreNotTheRows() {
        const QSignalSpy clicked(view_->Gestures(), &RowGestures::RowClicked);
        const QSignalSpy activated(view_->Gestures(), &RowGestures::RowActivated);
        view_->SelectRow(0);
        QTest::keyClick(view_.get(), Qt::Key_F2);
        const auto told = clicked.count();
        QTest::keyClicks(Field(), u"a b"_s);
        QTest::keyClick(Field(), Qt::Key_Return);
        QCOMPARE(clicked.count(), told);
        QCOMPARE(activated.count(), 0);
        QVERIFY(list_->Checked().empty());
    }

    void typingFindsARow() {
        view_->SelectRow(0);
        QTest::keyClicks(view_.get(), u"ci"_s);
        QCOMPARE(view_->currentIndex().row(), 2);
    }

    void clicksAndKeysOnRowsAreTold() {
        const QSignalSpy clicked(view_->Gestures(), &RowGestures::RowClicked);
        const QSignalSpy activated(view_->Gestures(), &RowGestures::RowActivated);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, TextOf(1));
        QCOMPARE(clicked.last().first().toInt(), 1);
        QTest::keyClick(view_.get(), Qt::Key_Down);
        QCOMPARE(clicked.last().first().toInt(), 2);
        QTest::keyClick(view_.get(), Qt::Key_Return);
        QCOMPARE(activated.last().first().toInt(), 2);
        QCOMPARE(clicked.count(), 2);
    }

    void aClickBesideTheRowsIsTold() {
        const QSignalSpy entered(view_->Gestures(), &RowGestures::Entered);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, {20, view_->viewport()->height() - 5});
        QCOMPARE(entered.count(), 1);
    }

    void theMenuIsAskedForOverARowWhichIsThenTheOnlySelectedOne() {
        const QSignalSpy wanted(view_->Gestures(), &RowGestures::MenuWanted);
        view_->selectAll();
        Q_EMIT view_->customContextMenuRequested(TextOf(1));
        QCOMPARE(wanted.last().first().toInt(), 1);
        QCOMPARE(view_->Gestures()->SelectedRows(), std::vector<int>{1});
        Q_EMIT view_->customContextMenuRequested({20, view_->viewport()->height() - 5});
        QCOMPARE(wanted.last().first().toInt(), -1);
    }

    void aListWithoutMarksAndEditsHasNone() {
        RowList plain({{.Caption = u"Name"_s}});
        plain.Add({.Text = u"a"_s});
        RowListModel model(plain);
        QVERIFY(!model.flags(model.index(0, 0)).testFlag(Qt::ItemIsEditable));
        QVERIFY(!model.flags(model.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
        QVERIFY(!model.data(model.index(0, 0), Qt::CheckStateRole).isValid());
        QVERIFY(!model.setData(model.index(0, 0), u"b"_s, Qt::EditRole));
        QVERIFY(!model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    }

private:
    [[nodiscard]] QVariant Data(int row, int column, int role = Qt::DisplayRole) const {
        return model_->data(model_->index(row, column), role);
    }

    [[nodiscard]] QStringList Shown() const {
        QStringList texts;
        for (int row = 0; row < model_->rowCount(); ++row)
            texts += Data(row, 0).toString();
        return texts;
    }

    [[nodiscard]] QPoint TextOf(int row) const { return view_->visualRect(model_->index(row, 0)).center(); }

    void ClickMark(int row) {
        const QRect cell = view_->visualRect(model_->index(row, 0));
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
    }

    void ClickHeader(int column) {
        const QHeaderView* header = view_->header();
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }

    [[nodiscard]] QLineEdit* Field() const { return view_->viewport()->findChild<QLineEdit*>(); }

    void Edit(int row, const QString& text) {
        view_->SelectRow(row);
        QTest::keyClick(view_.get(), Qt::Key_F2);
        QVERIFY(Field() != nullptr);
        Field()->setText(text);
        QTest::keyClick(Field(), Qt::Key_Return);
        QTRY_VERIFY(Field() == nullptr);
    }

    std::unique_ptr<RowList> list_;
    std::unique_ptr<RowListModel> model_;
    std::unique_ptr<RowListView> view_;
};

WINDOW_TEST(tst_rowlist)
#include "tst_rowlist.moc"
