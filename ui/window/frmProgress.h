// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The window that shows how far a save or an extraction has come.
#pragma once

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class frmProgress;
}

class frmProgress : public QWidget {
    Q_OBJECT
public:
    explicit frmProgress(QWidget* parent = nullptr);
    ~frmProgress() override;

    /// Line breaks are CR LF.
    void SetText(const QString& text);
    /// 0 to 100.
    void SetValue(int percent);

    /// Set by the button and by closing the window; a save never looks at it.
    [[nodiscard]] bool Cancelled() const { return cancelled_; }

    /// As the button: stops the timer and sets Cancelled.
    void Cancel();
    /// The window comes to the front by itself no longer.
    void StopTimer();

    /// Nobody works behind the window any more: what cancels it closes it.
    void LetGo() { letGo_ = true; }

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void PressCancel();

    std::unique_ptr<Ui::frmProgress> ui_;
    QTimer timer_; ///< brings the window to the front at each tick
    bool cancelled_ = false;
    bool letGo_ = false;
};
