// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The three pages of adding files, one after the other: each takes the place of the one before.
#pragma once

#include "ui/window/WizardPage.h"

#include <QEventLoopLocker>
#include <QObject>
#include <QPointer>

class AddFilesWizard : public QObject {
    Q_OBJECT
public:
    /// The pages are modal over `owner`; without one (null) they are windows of their own.
    explicit AddFilesWizard(QWidget* owner);
    ~AddFilesWizard() override;

    /// Shows the first page, with a file (inside path) where one is given, as if it had been chosen in the dialog.
    void Begin(const QString& file);

    /// Runs a wizard: with an owner until its last page is closed, else it is back at once and the wizard goes by
    /// itself.
    static void Run(QWidget* owner, const QString& file);

    /// The page that is shown; null when the wizard has ended.
    [[nodiscard]] WizardPage* Page() const { return page_; }

Q_SIGNALS:
    void Ended();

private:
    void Show(WizardPage* page);
    void Leave();
    void End();
    void ShowSource(const QString& file);
    void Analyse();
    void Install();

    QWidget* owner_;
    QPointer<WizardPage> page_;
    QEventLoopLocker alive_; ///< between two pages there may be no window
};
