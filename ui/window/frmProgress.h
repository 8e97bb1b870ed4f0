// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The window that shows how far a save or an extraction has come.
#pragma once

#include "ui/window/ProgressWindow.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class frmProgress;
}

class frmProgress : public QWidget, public ProgressWindow {
    Q_OBJECT
public:
    explicit frmProgress(QWidget* parent = nullptr);
    ~frmProgress() override;

    QWidget* Widget() override { return this; }

    void SetText(const QString& text) override;
    void SetValue(int percent) override;

    /// Set by the button and by closing the window; a save never looks at it.
    [[nodiscard]] bool Cancelled() const override { return cancelled_; }

    void Cancel() override;
    void StopTimer() override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    std::unique_ptr<Ui::frmProgress> ui_;
    QTimer timer_; ///< brings the window to the front at each tick
    bool cancelled_ = false;
};
