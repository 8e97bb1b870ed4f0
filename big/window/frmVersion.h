// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The chooser of an archive's variant.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmVersion;
}

/// Shows the open archive's variant; OK stores the chosen one, which takes effect at the next save.
class frmVersion : public QDialog {
    Q_OBJECT
public:
    explicit frmVersion(QWidget* parent = nullptr);
    ~frmVersion() override;

private:
    void Store();

    std::unique_ptr<Ui::frmVersion> ui_;
};
