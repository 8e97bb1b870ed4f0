// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The first page of adding files: one file is chosen or dropped, and the game that it is for.
#pragma once

#include "install/wizard/SourcePage.h"
#include "ui/window/WizardPage.h"

#include <memory>

namespace Ui {
class frmAddFiles1;
}

class frmAddFiles1 : public WizardPage {
    Q_OBJECT
public:
    explicit frmAddFiles1(QWidget* parent = nullptr);
    ~frmAddFiles1() override;

    /// What the user chose; complete when Chosen is told.
    [[nodiscard]] const SourcePage& Source() const { return source_; }

    /// Both for a page that is shown: the file that the program was started with, where there is one, or a file (inside
    /// path) as if it had been chosen in the dialog.
    void TakeCommandLine();
    void Take(const QString& path);

Q_SIGNALS:
    /// Next, with a file that goes into the selected game.
    void Chosen();

protected:
    void Next() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Follow();

    std::unique_ptr<Ui::frmAddFiles1> ui_;
    SourcePage source_;
};
