// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the second page share: the page, its parts, and an archive with one of each kind.
#pragma once

#include "install/window/FilesTreeModel.h"
#include "media/PictureView.h"
#include "tests/windows/install/AddFilesTest.h"
#include "ui/text/CommentBox.h"
#include "ui/window/NoticeStrip.h"

#include <QLineEdit>
#include <QTreeView>

class FilesPageTest : public AddFilesTest {
protected:
    QTreeView* Tree() { return Part<QTreeView>("tvFiles"); }

    FilesTreeModel* Nodes() { return static_cast<FilesTreeModel*>(Tree()->model()); }

    QModelIndex Node(const QString& key) { return Nodes()->IndexOf(key); }

    QStringList GroupTexts() {
        QStringList texts;
        for (int row = 0; row < Nodes()->rowCount(); ++row)
            texts += Nodes()->index(row, 0).data().toString();
        return texts;
    }

    bool IsGrey(const QModelIndex& node) {
        return node.data(Qt::ForegroundRole).value<QBrush>().color() ==
               QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    }

    static bool IsTicked(const QModelIndex& node) {
        return node.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }

    /// Chooses a file on the first page and goes on.
    void Analyse(const QString& file) {
        Open(file);
        Press("cmdNext");
        if (wizard_->Page() != nullptr)
            Activate();
    }

    void Select(const QString& key) {
        QVERIFY2(Node(key).isValid(), qPrintable(key));
        Tree()->scrollTo(Node(key));
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, Tree()->visualRect(Node(key)).center());
    }

    void Tick(const QString& key) {
        Tree()->setCurrentIndex(Node(key));
        QTest::keyClick(Tree(), Qt::Key_Space);
    }

    /// Which of the name's and comments' captions and boxes are shown.
    QStringList Boxes() {
        QStringList names;
        for (const char* const name : {"lblName", "txtName", "lblComments", "txtComments"})
            if (Part<QWidget>(name)->isVisible())
                names += QString::fromLatin1(name);
        return names;
    }

    QLineEdit* Name() { return Part<QLineEdit>("txtName"); }

    CommentBox* Comments() { return Part<CommentBox>("txtComments"); }

    PictureView* Image() { return Part<PictureView>("Image1"); }

    NoticeStrip* Strip() { return Part<NoticeStrip>("picNotice"); }

    /// A picture file of 24 bits, 16 x 16.
    static QByteArray Targa(const QColor& colour) {
        QByteArray bytes("\0\0\2\0\0\0\0\0\0\0\0\0\x10\0\x10\0\x18\0", 18);
        for (int pixel = 0; pixel < 16 * 16; ++pixel)
            for (const int part : {colour.blue(), colour.green(), colour.red()})
                bytes += static_cast<char>(part);
        return bytes;
    }

    static bool Shows(QWidget* control, const QColor& colour) {
        return control->isVisible() && control->grab().toImage().pixelColor(4, 4) == colour;
    }

    /// One of each kind: 0 a map with a picture, 1 a mod, 2 a replay, 3 a shell map, and what is passed over.
    QString PutAll() {
        return PutZip(QStringLiteral("all.zip"),
                      {{.Name = "Alpine/"},
                       {.Name = "Alpine/Alpine.MAP", .Content = "m"},
                       {.Name = "Alpine/Alpine.tga", .Content = Targa(Qt::red)},
                       {.Name = "Contra.big", .Content = "BIGF"},
                       {.Name = "Contra.ini", .Content = "[Infos]\r\nName=Contra 009\r\nComments=Generals\r\n"},
                       {.Name = "a.rep", .Content = "r"},
                       {.Name = "Shell/shellmap1.map", .Content = "s"},
                       {.Name = "Shell/QvInfos.ini", .Content = "[Infos]\r\nName=Waves\r\nComments=At sea\r\n"},
                       {.Name = "Thumbs.db", .Content = "t"},
                       {.Name = "inner.zip", .Content = "z"}});
    }
};
