// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The small box that names the version, with a button that copies what a report should tell. A click anywhere else,
/// Esc or Enter closes it.
#pragma once

#include <QDialog>
#include <QPixmap>

#include <memory>

namespace Ui {
class frmAbout;
}

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void CopyDetails();

    std::unique_ptr<Ui::frmAbout> ui_;
    QPixmap picture_;
};
