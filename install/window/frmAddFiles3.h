// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The last page of adding files: how far the installation has come, and what it did not do.
#pragma once

#include "install/wizard/Installation.h"
#include "ui/window/WizardPage.h"

#include <memory>
#include <optional>

namespace Ui {
class frmAddFiles3;
}

class frmAddFiles3 : public WizardPage, private InstallationView {
    Q_OBJECT
public:
    explicit frmAddFiles3(QWidget* parent = nullptr);
    ~frmAddFiles3() override;

    /// Installs AddFiles::Source into AddFiles::ActiveGame; the page is shown by then. `password` is tried before
    /// anybody is asked for one. A click on Cancel waits until all is done, and closes the page then, unless there is a
    /// failure to read about. Raises what the installation raises.
    void InstallFiles(const std::optional<QString>& password);

protected:
    void Next() override;
    void Cancel() override;

private:
    void ShowText(const QString& text) override;
    void ShowProgress(int percent) override;
    void ShowFinished() override;
    void ShowOutcome(const QStringList& lines);

    std::unique_ptr<Ui::frmAddFiles3> ui_;
    bool working_ = false;
    bool closeWanted_ = false; ///< Cancel was clicked while it works
};
