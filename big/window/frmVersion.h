// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The chooser of an archive's variant.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmVersion;
}

/// Shows the open archive's variant, and whether its data are saved where the directory says; OK stores the chosen
/// variant, which takes effect at the next save.
class frmVersion : public QDialog {
    Q_OBJECT
public:
    explicit frmVersion(QWidget* parent = nullptr);
    ~frmVersion() override;

    /// The check box for exact offsets; what it is for is the caller's.
    void SetExactOffsets(bool exact);
    [[nodiscard]] bool ExactOffsets() const;

private:
    void Store();

    std::unique_ptr<Ui::frmVersion> ui_;
};
