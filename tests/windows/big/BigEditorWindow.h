// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the BIG Editor's window share: a window in a world of its own, and ways to reach its parts.
#pragma once

#include "big/window/FileListView.h"
#include "big/window/frmBigEditor.h"
#include "core/mMain.h"
#include "tests/big/document_support.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/SideMenu.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>

class BigEditorWindow : public EditorTest<frmBigEditor> {
protected:
    void Begin(const QByteArray& texts = "[LNG]\r\nReady=Bereit\r\nFile=Datei\r\nNew=Neu\r\nOpen=Auf\r\n"
                                         "BIGFile=BIG-Datei\r\nActions=Aktionen\r\nKiloBytes=KB\r\nSize2=Gr\xF6\xDF"
                                         "e:\r\n") {
        BeginIn(texts);
        mBIG::BigEntries.clear();
        mBIG::BigFileName.clear();
        archive_ = world_->WriteFile(QStringLiteral("a.big"),
                                     ArchiveOf({{QStringLiteral("readme.txt"), "hello"},
                                                {QStringLiteral("Data\\INI\\Object.ini"), "Object"},
                                                {QStringLiteral("Data\\map.tga"), QByteArray(3000, 'x')}}));
    }

    void Open() {
        window_ = std::make_unique<frmBigEditor>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void OpenArchive() {
        window_ = std::make_unique<frmBigEditor>();
        window_->OpenBigFile(archive_);
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    SideLink* Link(int index) { return window_->findChild<SideLink*>(QStringLiteral("Label2_%1").arg(index)); }

    QAction* ViewItem(int index) { return window_->findChild<QAction*>(QStringLiteral("mnuLvView_%1").arg(index)); }

    QTreeView* Tree() { return Part<QTreeView>("tvDirs"); }

    FileListView* Files() { return Part<FileListView>("lvFiles"); }

    QString Status() { return Part<QLabel>("lblStatus")->text(); }

    QStringList Rows() {
        const QAbstractItemModel* model = Files()->Current()->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->index(row, 0).data().toString();
        return rows;
    }

    static void MoveOver(QWidget* widget, QPoint place) {
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(widget, &move);
    }

    void Select(const QString& folderKey) {
        QModelIndex node = Tree()->model()->index(0, 0);
        for (const QString& part : folderKey.split(u'\\', Qt::SkipEmptyParts))
            for (int row = 0; row < Tree()->model()->rowCount(node); ++row)
                if (const QModelIndex child = Tree()->model()->index(row, 0, node); child.data().toString() == part) {
                    node = child;
                    break;
                }
        Tree()->setCurrentIndex(node);
    }

    void ClickRow(int row) { Click(*Files()->Current(), row); }

    /// Does something with the next modal dialog.
    void AnswerDialog(const std::function<void(QWidget*)>& answer) {
        QTimer::singleShot(0, this, [this, answer] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                answer(dialog);
            else
                AnswerDialog(answer);
        });
    }

    QString archive_;
};
