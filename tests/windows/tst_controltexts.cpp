// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/ControlTexts.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

class tst_controltexts : public QObject {
    Q_OBJECT
private:
    static QStringList TextsOf(const std::unique_ptr<QMenu>& menu) {
        QStringList texts;
        for (const QAction* action : menu->actions())
            if (!action->isSeparator())
                texts += action->text().section(u'\t', 0, 0);
        return texts;
    }

private Q_SLOTS:

    void theMenusOfTextBoxesAreInTheUsersLanguage() {
        World world;
        world.UseLanguage("[LNG]\r\nUndo=R\xFC"
                          "ck\r\nRedo=Vor\r\nCut=Aus\r\nCopy=Kopie\r\nPaste=Ein\r\nDelete=Weg\r\nSelectAll=Alles\r\n");
        world.Start();
        ControlTexts texts;
        QApplication::installTranslator(&texts);
        const QStringList expected{u"Rück"_s, u"Vor"_s, u"Aus"_s, u"Kopie"_s, u"Ein"_s, u"Weg"_s, u"Alles"_s};
        QLineEdit line;
        QCOMPARE(TextsOf(std::unique_ptr<QMenu>(line.createStandardContextMenu())), expected);
        QPlainTextEdit box;
        QCOMPARE(TextsOf(std::unique_ptr<QMenu>(box.createStandardContextMenu())), expected);
        QVERIFY(QCoreApplication::translate("frmAbout", "Delete") == u"Delete"_s);
    }
};

WINDOW_TEST(tst_controltexts)
#include "tst_controltexts.moc"
