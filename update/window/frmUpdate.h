// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The window of the update client: one of four panels, and the buttons Download and Cancel.
#pragma once

#include "update/UpdateClient.h"

#include <QDialog>
#include <QTimer>

#include <memory>

class QLabel;

namespace Ui {
class frmUpdate;
}

class frmUpdate : public QDialog, private UpdateView {
    Q_OBJECT
public:
    explicit frmUpdate(std::unique_ptr<HttpClient> http);
    ~frmUpdate() override;

    /// Loads the window and runs the whole check, unless one is loaded: comes back when the check is over or has found
    /// something. The window goes when it is closed.
    static void LoadOnce(const std::function<std::unique_ptr<HttpClient>()>& makeHttp);

    /// Escape.
    void reject() override;

    [[nodiscard]] UpdateClient& Client() { return client_; }

    /// The check.
    void Load();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void ShowWindow() override;
    void ShowPanel(Panel panel) override;
    void SetText(Field field, const QString& text) override;
    void SetProgress(int percent) override;
    void EnableDownload(bool enabled) override;
    void RunTimers(bool running) override;
    void BringToFront() override;
    void CloseWindow() override;

    void Dress();
    void ConnectControls();
    [[nodiscard]] QLabel* LabelOf(Field field) const;
    void Run(void (UpdateClient::*work)());
    void GoIfDone();

    std::unique_ptr<Ui::frmUpdate> ui_;
    std::unique_ptr<HttpClient> http_;
    UpdateClient client_;
    QTimer order_;
    QTimer rate_;
    QTimer time_;
    int running_ = 0; ///< work that waits in the event loop and comes back to this window
    bool closed_ = false;
};
