// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Windows that open as they were left.
#include "core/LastTime.h"
#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/WindowPlace.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

class tst_windowplace : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<QWidget> Shown() {
        auto window = std::make_unique<QWidget>();
        window->setObjectName(u"frmAny"_s);
        window->resize(300, 200);
        WindowPlace::Remember(*window);
        window->show();
        return window;
    }

    std::unique_ptr<World> world_;

private Q_SLOTS:

    void init() { world_ = std::make_unique<World>(); }

    void cleanup() { world_.reset(); }

    void theFirstTimeItIsAsTheFormSays() { QCOMPARE(Shown()->size(), QSize(300, 200)); }

    void theNextTimeItIsAsItWasLeft() {
        Shown()->setGeometry(50, 60, 320, 240);
        const auto again = Shown();
        QCOMPARE(again->geometry(), QRect(50, 60, 320, 240));
    }

    void aScreenOfAnotherSizeHasAPlaceOfItsOwn() {
        LastTime::Keep(u"frmAny"_s,
                       QJsonObject{{u"screen"_s, u"none 1x1"_s},
                                   {u"none 1x1"_s, QJsonObject{{u"place"_s, QJsonArray{5, 6, 111, 112}}}}});
        QCOMPARE(Shown()->size(), QSize(300, 200));
        QCOMPARE(LastTime::Of(u"frmAny"_s).toObject().size(), 3); // both places, and the screen that was last
    }

    void nonsenseLeavesTheFormsSize() {
        LastTime::Keep(u"frmAny"_s, u"nonsense"_s);
        QCOMPARE(Shown()->size(), QSize(300, 200));
    }
};

WINDOW_TEST(tst_windowplace)

#include "tst_windowplace.moc"
