// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/AddFilesWizard.h"

#include "core/Host.h"
#include "core/LastMessage.h"
#include "core/mTraduction.h"
#include "install/window/frmAddFiles1.h"
#include "install/window/frmAddFiles2.h"
#include "install/window/frmAddFiles3.h"
#include "platform/RuntimeError.h"

#include <QEventLoop>
#include <QGuiApplication>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A page that works takes no input. The keyboard comes back to where it was.
class AtWork {
public:
    explicit AtWork(QWidget* page) : page_(page), focus_(page->focusWidget()) {
        page_->setEnabled(false);
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }

    ~AtWork() {
        QGuiApplication::restoreOverrideCursor();
        if (page_ != nullptr)
            page_->setEnabled(true);
        if (focus_ != nullptr)
            focus_->setFocus();
    }

    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;

private:
    QPointer<QWidget> page_;
    QPointer<QWidget> focus_;
};

/// Whether there is something to show; nothing when the analysis has failed, which is told.
std::optional<bool> Analysed(frmAddFiles2& page, const SourcePage& source) {
    try {
        return page.AnalizeFile(source.SourcePath(), source.SourceName());
    } catch (const RuntimeError& failure) {
        Host::Current().Message(LastMessage::Text(failure), Host::Icon::Critical);
        return std::nullopt;
    }
}

} // namespace

AddFilesWizard::AddFilesWizard(QWidget* owner) : owner_(owner) {}

AddFilesWizard::~AddFilesWizard() {
    delete page_;
}

void AddFilesWizard::Run(QWidget* owner, const QString& file) {
    if (owner == nullptr) {
        auto* const wizard = new AddFilesWizard(nullptr);
        connect(wizard, &AddFilesWizard::Ended, wizard, &QObject::deleteLater);
        wizard->Begin(file);
        return;
    }
    AddFilesWizard wizard(owner);
    QEventLoop loop;
    connect(&wizard, &AddFilesWizard::Ended, &loop, &QEventLoop::quit);
    wizard.Begin(file);
    if (wizard.Page() != nullptr)
        loop.exec();
}

void AddFilesWizard::Begin(const QString& file) {
    ShowSource(file);
}

// In the place of the page before, which goes when the new one stands.
void AddFilesWizard::Show(WizardPage* page) {
    if (owner_ != nullptr)
        page->setWindowModality(Qt::ApplicationModal);
    if (page_ != nullptr)
        page->setGeometry(page_->geometry());
    connect(page, &QDialog::finished, this, &AddFilesWizard::End);
    page->show();
    Leave();
    page_ = page;
}

void AddFilesWizard::Leave() {
    if (page_ == nullptr)
        return;
    page_->disconnect(this);
    page_->hide();
    page_->deleteLater();
    page_.clear();
}

void AddFilesWizard::End() {
    Leave();
    Q_EMIT Ended();
}

void AddFilesWizard::ShowSource(const QString& file) {
    auto* const page = new frmAddFiles1(owner_);
    connect(page, &frmAddFiles1::Chosen, this, &AddFilesWizard::Analyse);
    Show(page);
    page->TakeCommandLine();
    if (!file.isEmpty())
        page->Take(file);
}

void AddFilesWizard::Analyse() {
    const SourcePage source = qobject_cast<frmAddFiles1*>(page_.data())->Source();
    auto page = std::make_unique<frmAddFiles2>(owner_);
    std::optional<bool> found;
    {
        const AtWork work(page_);
        found = Analysed(*page, source);
    }
    if (found == true) {
        connect(page.get(), &frmAddFiles2::BackWanted, this, [this] { ShowSource({}); });
        connect(page.get(), &frmAddFiles2::InstallWanted, this, &AddFilesWizard::Install);
        Show(page.release());
    } else if (found == false) {
        page.reset();
        Leave();
        Host::Current().Message(mTraduction::GetText(u"EmptyFile"_s), Host::Icon::Critical);
        End();
    }
}

void AddFilesWizard::Install() {
    const std::optional<QString> password = qobject_cast<frmAddFiles2*>(page_.data())->Password();
    auto* const page = new frmAddFiles3(owner_);
    Show(page);
    page->InstallFiles(password);
}
