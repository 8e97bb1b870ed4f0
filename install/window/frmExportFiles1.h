// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one page of the export: the ExportRecords go into a ZIP or into a folder.
#pragma once

#include "install/export/Exporting.h"
#include "ui/window/WizardPage.h"

namespace Ui {
class frmExportFiles1;
}

class frmExportFiles1 : public WizardPage {
    Q_OBJECT
public:
    explicit frmExportFiles1(QWidget* parent = nullptr);
    ~frmExportFiles1() override;

protected:
    /// Exports; of a report that was shown, closes the page.
    void Next() override;

    /// Closes the page; while files are exported, ends that first.
    void Cancel() override;

private:
    void ConnectChoices();
    void FollowChoices();
    void OpenReadMe();
    [[nodiscard]] ExportChoice Choice() const;
    [[nodiscard]] std::optional<ExportReport> Run();
    void ShowWork(bool working);
    void ShowReport(const ExportReport& report);

    std::unique_ptr<Ui::frmExportFiles1> ui_;
    std::vector<ExportRecord> records_;
    bool working_ = false;
    bool cancelled_ = false;
    bool reported_ = false;
};
