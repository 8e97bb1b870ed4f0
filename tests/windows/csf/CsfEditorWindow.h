// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the CSF Editor's window share: a window in a world of its own, and ways to reach its parts.
#pragma once

#include "core/mMain.h"
#include "csf/format/mCSF.h"
#include "csf/window/frmCSFEditor.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/SideMenu.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTreeView>

class CsfEditorWindow : public EditorTest<frmCSFEditor> {
protected:
    void Begin(const QByteArray& texts = "[LNG]\r\nNew=Neu\r\nFind=Suchen\r\nText=Wert\r\nKiloBytes=KB\r\n"
                                         "Name=Name\r\nValue=Wert\r\nRowCount=%1 rows\r\nMatchCount=%1 matches\r\n") {
        BeginIn(texts);
        mMain::CsfOpenedByHost = false;
        mMain::CommandLine.clear();
    }

    void End() {
        EditorTest::End();
        mMain::CsfOpenedByHost = false;
    }

    void Open(const std::vector<CsfString>& table, qint16 language = 3) {
        path_ = world_->Root() + QStringLiteral("\\a.csf");
        CsfTable{language, table}.Write(path_);
        window_ = std::make_unique<frmCSFEditor>();
        window_->OpenCSFFile(path_);
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void OpenThree() {
        Open({{QStringLiteral("2"), QStringLiteral("beta")},
              {QStringLiteral("1\nlines"), QStringLiteral("alpha")},
              {QStringLiteral("3"), QStringLiteral("Gamma")}});
    }

    void Show() {
        window_ = std::make_unique<frmCSFEditor>();
        window_->show();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    QTreeView* List() { return Part<QTreeView>("lvStrings2"); }

    QLineEdit* NameBox() { return Part<QLineEdit>("txtName"); }

    QPlainTextEdit* ValueBox() { return Part<QPlainTextEdit>("txtValue"); }

    QLineEdit* FindBox() { return Part<QLineEdit>("txtFind"); }

    QString Cell(int row, int column) { return List()->model()->index(row, column).data().toString(); }

    QStringList Names() {
        QStringList names;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            names += Cell(row, 0);
        return names;
    }

    void ClickRow(int row) { Click(*List(), row); }

    QString Told() { return window_->statusBar()->findChild<QLabel*>()->text(); }

    QString path_;
};
