// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A text over a list of any length that can be selected and copied.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmLeftOut;
}

class frmLeftOut : public QDialog {
    Q_OBJECT
public:
    frmLeftOut(const QString& text, const QStringList& lines, QWidget* parent);
    ~frmLeftOut() override;

private:
    std::unique_ptr<Ui::frmLeftOut> ui_;
};
