// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The two buttons of the skin, one under the other in a window, for tests that hold for both or compare them.
#pragma once

#include "ui/look/Style.h"
#include "ui/skin/CommandButton.h"
#include "ui/skin/UserControl1.h"

#include <QApplication>
#include <QTest>

#include <memory>

class SkinButtonsTest : public QObject {
protected:
    /// Makes the window; it is not shown.
    void MakeButtons() {
        Style::Apply(*qApp);
        window_ = std::make_unique<QWidget>();
        window_->resize(400, 200);
        painted_ = new CommandButton(QStringLiteral("Go"), window_.get());
        painted_->setGeometry(10, 10, 100, 28);
        slices_ = new UserControl1(window_.get());
        slices_->setText(QStringLiteral("Go"));
        slices_->setGeometry(10, 60, 100, 28);
    }

    /// The data of a test that is run with each.
    static void Both() {
        QTest::addColumn<bool>("painted");
        QTest::newRow("CommandButton") << true;
        QTest::newRow("UserControl1") << false;
    }

    /// The one that this run is for.
    QPushButton& Chosen() {
        QFETCH(const bool, painted);
        if (painted)
            return *painted_;
        return *slices_;
    }

    std::unique_ptr<QWidget> window_;
    CommandButton* painted_ = nullptr;
    UserControl1* slices_ = nullptr;
};
