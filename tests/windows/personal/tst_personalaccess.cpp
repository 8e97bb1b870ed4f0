// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The Personal Files window for screen readers, for the keyboard alone, and on small screens.
#include "tests/windows/Access.h"
#include "tests/windows/personal/PersonalFilesWindow.h"

using namespace Qt::StringLiterals;

class tst_personalaccess : public PersonalFilesWindow {
    Q_OBJECT
private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void cleanup() { End(); }

    void eachKindOfFile_data() {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("list");
        QTest::newRow("replays") << u"GenReplays"_s << u"lstReplays"_s;
        QTest::newRow("maps") << u"GenMaps"_s << u"lstMaps"_s;
        QTest::newRow("mods") << u"GenMods"_s << u"lstMods"_s;
        QTest::newRow("shell-maps") << u"GenShellMaps"_s << u"lstShellMaps"_s;
    }

    void eachKindOfFile() {
        QFETCH(QString, node);
        QFETCH(QString, list);
        Begin();
        AddReplay(u"Last Replay"_s);
        Write(AddMap(u"Alpine Assault"_s) + u"\\Alpine Assault.tga"_s, Targa(Qt::red));
        AddMod(u"Contra.big"_s, "[Mod]\r\nName=Contra\r\n");
        AddShellMap(u"001"_s, "[Infos]\r\nName=Waves\r\n");
        Open();
        ClickNode(node);
        Click(*List(qPrintable(list)), 0);
        QCoreApplication::processEvents();
        QVERIFY(Access::IsFor(*window_, {.Room = "personal",
                                         .Name = QString::fromLatin1(QTest::currentDataTag()),
                                         .Mask = world_->Root(),
                                         .Date = Cell(*List("lstReplays"), 0, 1)}));
    }
};

WINDOW_TEST(tst_personalaccess)

#include "tst_personalaccess.moc"
