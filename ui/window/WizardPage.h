// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A page of a wizard: a heading, a body, the version line, and the buttons Previous, Next and Cancel. Pages are
/// windows of one size. A page's own form is set up in its body:
///
///     ui_->setupUi(Body());
///     Localise(u"ExportFiles"_s);
#pragma once

#include <QDialog>

#include <memory>

class QPushButton;

namespace Ui {
class WizardPage;
}

class WizardPage : public QDialog {
    Q_OBJECT
public:
    explicit WizardPage(QWidget* parent = nullptr);
    ~WizardPage() override;

    /// Escape and the window's cross do what Cancel does; where that is disabled, what Next does; nothing where both
    /// are, as there is work under way.
    void reject() override;

protected:
    [[nodiscard]] QWidget* Body() const;

    /// Gives page and body their texts. The heading has that key; the button Next may have another than its own.
    void Localise(const QString& heading, const QString& next = QStringLiteral("Next"));

    /// Gives the buttons of the page, and the buttons and captions in its body, keys of their own. Behind Localise.
    void AddMnemonics();

    /// Disabled until a page has a use for it.
    [[nodiscard]] QPushButton* PreviousButton() const;
    /// What Enter presses.
    [[nodiscard]] QPushButton* NextButton() const;
    [[nodiscard]] QPushButton* CancelButton() const;

    virtual void Previous() {}

    virtual void Next() = 0;

    /// Closes the page.
    virtual void Cancel();

private:
    void FocusBody();

    std::unique_ptr<Ui::WizardPage> ui_;
};
