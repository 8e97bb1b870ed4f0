// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/KeyedTreeModel.h"
#include "tests/windows/WindowTests.h"

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;

class tst_keyedtree : public QObject {
    Q_OBJECT
private:
    static std::vector<KeyedNode> Games() {
        return {{u"Gen"_s, u"Generals"_s, {}},
                {u"GenReplays"_s, u"Replays (1)"_s, u"Gen"_s},
                {u"GenMaps"_s, u"Maps (2)"_s, u"Gen"_s},
                {u"ZH"_s, u"Zero Hour"_s, {}},
                {u"ZHMaps"_s, u"<b>Maps"_s, u"ZH"_s}};
    }

private Q_SLOTS:

    void theModelKeepsTheRules() {
        KeyedTreeModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.Reset(Games());
        model.Reset({});
        model.Reset(Games());
    }

    void nodesStandBelowTheirParents() {
        KeyedTreeModel model;
        model.Reset(Games());
        QCOMPARE(model.rowCount(), 2);
        const QModelIndex maps = model.IndexOf(u"GenMaps"_s);
        QCOMPARE(maps.row(), 1);
        QCOMPARE(maps.data().toString(), u"Maps (2)"_s);
        QCOMPARE(model.KeyOf(maps.parent()), u"Gen"_s);
        QCOMPARE(model.rowCount(model.IndexOf(u"ZH"_s)), 1);
    }

    void aKeyThatNoNodeHasIsNowhere() {
        KeyedTreeModel model;
        model.Reset(Games());
        QVERIFY(!model.IndexOf(u"BFME"_s).isValid());
        QCOMPARE(model.KeyOf({}), QString());
    }

    void aNodeWithoutItsParentIsLeftOut() {
        KeyedTreeModel model;
        model.Reset({{u"a"_s, u"a"_s, u"nobody"_s}, {u"b"_s, u"b"_s, {}}});
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.KeyOf(model.index(0, 0)), u"b"_s);
    }

    void aTipNeverTakesATextForMarkup() {
        KeyedTreeModel model;
        model.Reset(Games());
        QVERIFY(model.IndexOf(u"ZHMaps"_s).data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;Maps"_s));
    }
};

WINDOW_TEST(tst_keyedtree)
#include "tst_keyedtree.moc"
