// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A window with two option buttons in a parent of their own and a third one beside it.
#pragma once

#include "ui/look/Style.h"
#include "ui/skin/TavelOptionButton.h"

#include <QApplication>
#include <QTest>

#include <memory>

class SkinOptionsTest : public QObject {
protected:
    /// Makes the window; it is not shown.
    void MakeOptions() {
        Style::Apply(*qApp);
        window_ = std::make_unique<QWidget>();
        window_->resize(400, 300);
        auto* const group = new QWidget(window_.get());
        group->setGeometry(0, 50, 200, 100);
        one_ = Option(QStringLiteral("One"), group, 0);
        two_ = Option(QStringLiteral("Two"), group, 30);
        far_ = Option(QStringLiteral("Far"), window_.get(), 200);
    }

    /// Shows it and waits until it has the keyboard.
    void ShowOptions() {
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    static TavelOptionButton* Option(const QString& caption, QWidget* parent, int y) {
        auto* const option = new TavelOptionButton(parent);
        option->setText(caption);
        option->setGeometry(10, y, 150, 21);
        return option;
    }

    std::unique_ptr<QWidget> window_;
    TavelOptionButton* one_ = nullptr;
    TavelOptionButton* two_ = nullptr;
    TavelOptionButton* far_ = nullptr;
};
