// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mTraduction.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

class tst_noticestrip : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nClose=Zumachen\r\n");
        world_->Start();
        window_ = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(window_.get());
        layout->setContentsMargins(0, 0, 0, 0);
        strip_ = new NoticeStrip;
        field_ = new QLineEdit;
        layout->addWidget(strip_);
        layout->addWidget(field_, 1);
        window_->resize(700, 300);
        window_->show();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void cleanup() {
        window_.reset();
        world_.reset();
    }

    void itIsHiddenUntilThereIsANotice() {
        QVERIFY(!strip_->isVisible());
        strip_->ShowNotice({.Text = u"Something"_s});
        QVERIFY(strip_->isVisible());
        QCOMPARE(strip_->Text(), u"Something"_s);
    }

    void anEmptyNoticeHidesIt() {
        strip_->ShowNotice({.Text = u"Something"_s});
        strip_->ShowNotice({});
        QVERIFY(!strip_->isVisible());
        QCOMPARE(strip_->Text(), QString());
    }

    void aNoticeShowsAsManyLinksAsItHas() {
        strip_->ShowNotice({u"Two"_s, {{u"First"_s, {}}, {u"Second"_s, {}}}});
        QVERIFY(Link(0)->isVisible() && Link(1)->isVisible());
        QCOMPARE(Link(1)->text(), u"Second"_s);
        strip_->ShowNotice({u"One"_s, {{u"Only"_s, {}}}});
        QVERIFY(Link(0)->isVisible() && !Link(1)->isVisible());
        QCOMPARE(Link(0)->text(), u"Only"_s);
        strip_->ShowNotice({.Text = u"None"_s});
        QVERIFY(!Link(0)->isVisible() && !Link(1)->isVisible());
    }

    void aNoticeGoesBeforeItsLinkRuns() {
        bool shownThen = true;
        strip_->ShowNotice({u"Shifted"_s, {{u"Save exactly"_s, [&] { shownThen = strip_->isVisible(); }}}});
        QTest::mouseClick(Link(0), Qt::LeftButton);
        QVERIFY(!shownThen);
        QVERIFY(!strip_->isVisible());
    }

    void aLinkMayShowTheNextNotice() {
        const Notice next{.Text = u"Done"_s};
        strip_->ShowNotice({u"Shifted"_s, {{u"Save exactly"_s, [&] { strip_->ShowNotice(next); }}}});
        QTest::mouseClick(Link(0), Qt::LeftButton);
        QVERIFY(strip_->isVisible());
        QCOMPARE(strip_->Text(), u"Done"_s);
    }

    void aLinkMayEndTheWindow() {
        strip_->ShowNotice({u"Shifted"_s, {{u"Leave"_s, [this] { window_.reset(); }}}});
        QTest::mouseClick(Link(0), Qt::LeftButton);
        QVERIFY(window_ == nullptr);
    }

    void theCrossClosesItWithoutRunningALink() {
        bool ran = false;
        strip_->ShowNotice({u"Shifted"_s, {{u"Save exactly"_s, [&] { ran = true; }}}});
        QTest::mouseClick(Cross(), Qt::LeftButton);
        QVERIFY(!strip_->isVisible());
        QVERIFY(!ran);
    }

    void escapeClosesItFromAnywhereInTheWindow() {
        strip_->ShowNotice({.Text = u"Something"_s});
        field_->setFocus();
        QTest::keyClick(field_, Qt::Key_Escape);
        QVERIFY(!strip_->isVisible());
        QVERIFY(field_->hasFocus());
    }

    void escapeEndsTheEditOfARowFirst() {
        QStandardItemModel model(1, 1);
        auto* list = new QTreeView;
        list->setModel(&model);
        window_->layout()->addWidget(list);
        strip_->ShowNotice({.Text = u"Something"_s});
        list->edit(model.index(0, 0));
        auto* editor = list->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        QTest::keyClick(editor, Qt::Key_Escape);
        QVERIFY(strip_->isVisible());
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!strip_->isVisible());
        delete list;
    }

    void linksAndCrossAreReachedAndPressedWithTheKeyboard_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Enter of the number block") << int(Qt::Key_Enter);
        QTest::newRow("blank") << int(Qt::Key_Space);
    }

    void linksAndCrossAreReachedAndPressedWithTheKeyboard() {
        QFETCH(const int, key);
        QString ran;
        const Notice notice{u"Two"_s, {{u"First"_s, [&] { ran += u'1'; }}, {u"Second"_s, [&] { ran += u'2'; }}}};
        strip_->ShowNotice(notice);
        field_->setFocus();
        for (QAbstractButton* wanted : {Link(0), Link(1), Cross()}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), wanted);
        }
        Link(1)->setFocus();
        QTest::keyClick(Link(1), static_cast<Qt::Key>(key));
        QCOMPARE(ran, u"2"_s);
        strip_->ShowNotice(notice);
        Cross()->setFocus();
        QTest::keyClick(Cross(), static_cast<Qt::Key>(key));
        QVERIFY(!strip_->isVisible());
    }

    void theKeyboardGoesBackToWhereItCameFrom() {
        auto* last = new QLineEdit;
        window_->layout()->addWidget(last);
        last->show();
        strip_->ShowNotice({.Text = u"Something"_s});
        last->setFocus();
        Cross()->setFocus();
        QTest::keyClick(Cross(), Qt::Key_Escape);
        QVERIFY(last->hasFocus());
    }

    void aNoticeTakesNoKeyboardAway() {
        field_->setFocus();
        strip_->ShowNotice({u"Shifted"_s, {{u"Save exactly"_s, {}}}});
        QVERIFY(field_->hasFocus());
    }

    void aTextThatFitsTakesOneLineAndALongerOneTwo() {
        strip_->ShowNotice({.Text = u"Something"_s});
        const int one = strip_->heightForWidth(700);
        strip_->ShowNotice({.Text = u"word "_s.repeated(34)});
        QVERIFY(!strip_->IsElided());
        QVERIFY(strip_->heightForWidth(700) > one);
        QTRY_COMPARE(strip_->height(), strip_->heightForWidth(700));
    }

    void whatTwoLinesDoNotHoldIsLeftOutAndShownInTheTip() {
        strip_->ShowNotice({.Text = u"word "_s.repeated(34)});
        const int two = strip_->heightForWidth(700);
        strip_->ShowNotice({.Text = u"word "_s.repeated(340)});
        QVERIFY(strip_->IsElided());
        QCOMPARE(strip_->heightForWidth(700), two);
    }

    void linksGoBelowATextThatLeavesThemNoRoom() {
        const QList<NoticeLink> both{{u"Save exactly"_s, {}}, {u"Always"_s, {}}};
        strip_->ShowNotice({u"Shifted"_s, {both.begin(), both.end()}});
        QTRY_COMPARE(strip_->height(), strip_->heightForWidth(700));
        QCOMPARE(Link(0)->geometry().center().y(), Cross()->geometry().center().y());
        strip_->ShowNotice({u"word "_s.repeated(34), {both.begin(), both.end()}});
        QVERIFY(!strip_->IsElided());
        QTRY_COMPARE(strip_->height(), strip_->heightForWidth(700));
        QVERIFY(Link(0)->y() > Cross()->geometry().bottom());
        QVERIFY(strip_->rect().contains(Link(1)->geometry()));
    }

    void linksAreNeverCutOrOverlaid() {
        strip_->ShowNotice({u"A text"_s, {{u"A link of some length"_s, {}}, {u"Another one"_s, {}}}});
        for (int width = strip_->minimumSizeHint().width(); width < 700; width += 7) {
            strip_->resize(width, strip_->heightForWidth(width));
            for (int link : {0, 1}) {
                QVERIFY(Link(link)->width() >= Link(link)->sizeHint().width());
                QVERIFY(strip_->rect().contains(Link(link)->geometry()));
                QVERIFY(!Link(link)->geometry().intersects(Cross()->geometry()));
            }
            QVERIFY(!Link(0)->geometry().intersects(Link(1)->geometry()));
        }
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    // In the narrowest of the windows that have a strip.
    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        constexpr int narrowest = 560;
        const QList<QStringList> notices{{u"ArchiveChanged"_s},
                                         {u"ArchiveShifted"_s, u"ReadShiftedBack"_s},
                                         {u"CommentNotRead"_s, u"KeepIt"_s},
                                         {u"EditNotKept"_s},
                                         {u"MayBeShifted"_s},
                                         {u"NotMarkedAsChanged"_s, u"AskBeforeClosing"_s},
                                         {u"OneEntryCut"_s, u"Show"_s, u"SaveExactly"_s},
                                         {u"OneEntryMayBeShifted"_s, u"Show"_s},
                                         {u"OneEntryNotSaved"_s, u"SaveExactly"_s},
                                         {u"OneEntryShifted"_s, u"Show"_s, u"ReadShiftedBack"_s},
                                         {u"ReplayStaysOpen"_s, u"LetGoOfIt"_s},
                                         {u"SavedCut"_s, u"SaveExactly"_s, u"Always"_s},
                                         {u"SavedShifted"_s, u"SaveExactly"_s, u"Always"_s},
                                         {u"TextWasCut"_s, u"KeepIt"_s}};
        for (const QStringList& keys : notices) {
            Notice notice{.Text = GetText(keys.first()).replace(u"%1"_s, u"12"_s).replace(u"%2"_s, u"36"_s)};
            for (const QString& link : keys.mid(1))
                notice.Links.push_back({GetText(link), {}});
            strip_->ShowNotice(notice);
            strip_->resize(narrowest, strip_->heightForWidth(narrowest));
            QVERIFY2(!strip_->IsElided(), qPrintable(notice.Text));
            QVERIFY(AllTextsHaveRoom(*strip_));
        }
    }

    void aTextLikeMarkupIsShownAsItStands() {
        strip_->ShowNotice({.Text = u"<b>a</b>\r\nb"_s});
        QCOMPARE(strip_->Text(), u"<b>a</b>\nb"_s);
    }

    void screenReadersMeetItAsAnAlertWithNamedButtons() {
        strip_->ShowNotice({u"Something"_s, {{u"Do it"_s, {}}}});
        const QAccessibleInterface* announced = QAccessible::queryAccessibleInterface(strip_);
        QCOMPARE(announced->role(), QAccessible::AlertMessage);
        QCOMPARE(announced->text(QAccessible::Name), u"Something"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(Link(0))->text(QAccessible::Name), u"Do it"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(Cross())->text(QAccessible::Name), u"Zumachen"_s);
    }

private:
    QAbstractButton* Link(int which) { return strip_->findChild<QAbstractButton*>(u"lblNoticeLink_%1"_s.arg(which)); }

    QAbstractButton* Cross() { return strip_->findChild<QAbstractButton*>(u"cmdCloseNotice"_s); }

    std::unique_ptr<World> world_;
    std::unique_ptr<QWidget> window_;
    NoticeStrip* strip_ = nullptr;
    QLineEdit* field_ = nullptr;
};

WINDOW_TEST(tst_noticestrip)
#include "tst_noticestrip.moc"
