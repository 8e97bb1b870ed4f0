// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "tests/windows/ui/Pixels.h"
#include "tests/windows/ui/SkinOptionsTest.h"

#include <QAccessible>
#include <QDialog>
#include <QSignalSpy>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QColor border(0, 50, 115);

} // namespace

class tst_skinoptions : public SkinOptionsTest {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        MakeOptions();
        ShowOptions();
    }

    void cleanup() { window_.reset(); }

    void oneOfAGroupIsChosenAcrossTheWholeWindow() {
        QTest::mouseClick(one_, Qt::LeftButton);
        QTest::mouseClick(far_, Qt::LeftButton); // another parent
        QCOMPARE(one_->Value(), 0);
        QCOMPARE(far_->Value(), 1);
        QTest::mouseClick(far_, Qt::LeftButton);
        QCOMPARE(far_->Value(), 1); // a second click takes nothing back
    }

    void groupsLeaveEachOtherAlone() {
        const QSignalSpy regrouped(far_, &TavelOptionButton::GroupChanged);
        far_->SetGroup(7);
        QCOMPARE(regrouped.size(), 1);
        QTest::mouseClick(one_, Qt::LeftButton);
        QTest::mouseClick(far_, Qt::LeftButton);
        QCOMPARE(one_->Value(), 1);
        QCOMPARE(far_->Value(), 1);
    }

    void settingOneWalksTheGroupAndTellsOfNoMouse() {
        one_->SetValue(1);
        const QSignalSpy changing(two_, &TavelOptionButton::ValueChanging);
        const QSignalSpy mouse(two_, &TavelOptionButton::MouseUp);
        const QSignalSpy cleared(one_, &TavelOptionButton::ValueChanged);
        two_->SetValue(1);
        QCOMPARE(changing.size(), 1);
        QCOMPARE(mouse.size(), 0);
        QCOMPARE(cleared.size(), 1);
        QCOMPARE(one_->Value(), 0);
        QCOMPARE(two_->Value(), 1);
        two_->SetValue(0);
        QCOMPARE(one_->Value(), 0);
        one_->setChecked(true); // as a host of plain option buttons does
        two_->setChecked(true);
        QCOMPARE(one_->Value(), 0);
    }

    void settingTellsOfItselfWalksTheGroupAndStores() {
        one_->SetValue(1);
        const QStringList& told = Told();
        two_->SetValue(1);
        QCOMPARE(told, (QStringList{u"two changes"_s, u"one changes"_s, u"one 0"_s, u"far changes"_s, u"far 0"_s,
                                    u"two 1"_s}));
    }

    // A click walks the group by itself, and its value once more.
    void aClickWalksTheGroupBeforeItTellsOfItself() {
        one_->SetValue(1);
        const QStringList& told = Told();
        QTest::mouseClick(two_, Qt::LeftButton);
        const QStringList walk{u"one changes"_s, u"one 0"_s, u"far changes"_s, u"far 0"_s};
        QCOMPARE(told, walk + QStringList{u"two changes"_s} + walk + QStringList{u"two 1"_s});
    }

    void aTickOfTheHostsWalksTheGroupOnce() {
        one_->SetValue(1);
        const QStringList& told = Told();
        two_->setChecked(true);
        QCOMPARE(told.count(u"one 0"_s), 1);
        QCOMPARE(told.count(u"two 1"_s), 1);
        two_->setChecked(false);
        QCOMPARE(two_->Value(), 0);
        two_->setChecked(true); // again
        QCOMPARE(told.count(u"far 0"_s), 2);
    }

    void aWindowThatTheWindowOwnsHasGroupsOfItsOwn() {
        QDialog dialog(window_.get());
        TavelOptionButton* const theirs = Option(u"Theirs"_s, &dialog, 0);
        theirs->SetValue(1);
        QTest::mouseClick(one_, Qt::LeftButton);
        QCOMPARE(theirs->Value(), 1);
        theirs->SetValue(1);
        QCOMPARE(one_->Value(), 1);
    }

    void theRoundMarkIsDrawnInTheMiddle() {
        one_->SetValue(1);
        const int middle = (one_->height() - 13) / 2 + 6;
        QCOMPARE(PixelOf(*one_, {6, middle}), border);
        QVERIFY(PixelOf(*two_, {6, middle}) != border);
        QCOMPARE(PixelOf(*two_, {0, middle - 6}), window_->palette().color(QPalette::Window)); // round
    }

    void aScreenReaderMeetsAnOptionWithItsNameAndStates() {
        QAccessibleInterface* option = QAccessible::queryAccessibleInterface(one_);
        QCOMPARE(option->role(), QAccessible::RadioButton);
        QCOMPARE(option->text(QAccessible::Name), u"One"_s);
        QVERIFY(!option->state().checked);
        QVERIFY(!option->state().disabled);
        one_->SetValue(1);
        QVERIFY(option->state().checked);
        one_->setFocus();
        QVERIFY(option->state().focused);
        one_->setEnabled(false);
        QVERIFY(option->state().disabled);
        option = QAccessible::queryAccessibleInterface(two_);
        option->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(two_->Value(), 1);
    }

private:
    /// From now on, what the three option buttons tell of.
    const QStringList& Told() {
        told_.clear();
        for (const auto& [name, option] :
             {std::pair{u"one"_s, one_}, std::pair{u"two"_s, two_}, std::pair{u"far"_s, far_}}) {
            connect(option, &TavelOptionButton::ValueChanging, this,
                    [this, name = name] { told_ += name + u" changes"_s; });
            connect(option, &TavelOptionButton::ValueChanged, this,
                    [this, name = name](int value) { told_ += u"%1 %2"_s.arg(name).arg(value); });
        }
        return told_;
    }

    QStringList told_;
};

WINDOW_TEST(tst_skinoptions)

#include "tst_skinoptions.moc"
