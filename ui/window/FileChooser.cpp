// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/FileChooser.h"

#include "platform/Paths.h"
#include "ui/text/FileFilter.h"

#include <QFileDialog>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

bool IsFilter(const QString& name) {
    return name.contains(u'*') || name.contains(u'?');
}

class Chooser : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    /// Lists what fits a typed text: patterns with semicolons between them, behind a folder or not.
    void Filter(const QString& typed) {
        const QString text = QDir::fromNativeSeparators(typed.trimmed());
        const qsizetype split = text.lastIndexOf(u'/') + 1;
        if (split > 0)
            setDirectory(directory().filePath(text.first(split)));
        const QString filter = text.sliced(split).replace(u';', u' ');
        if (QStringList filters = nameFilters(); !filters.contains(filter))
            setNameFilters(filters << filter);
        selectNameFilter(filter);
    }

protected:
    void accept() override {
        auto* const box = findChild<QLineEdit*>(u"fileNameEdit"_s);
        const bool ofTheSystem = box == nullptr || !box->isVisible();
        if (ofTheSystem || !IsFilter(box->text()))
            return QFileDialog::accept();
        Filter(box->text());
        box->selectAll();
    }
};

QString Chosen(const QFileDialog& dialog) {
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

void SetUp(Chooser& dialog, const Host::FileDialog& wanted, QFileDialog::AcceptMode mode, QFileDialog::FileMode files) {
    dialog.setAcceptMode(mode);
    dialog.setFileMode(files);
    dialog.setNameFilters(ToNameFilters(wanted.Filter));
    dialog.setDefaultSuffix(wanted.DefaultExtension);
    if (!wanted.Folder.isEmpty())
        dialog.setDirectory(Paths::ToNative(wanted.Folder));
    if (!wanted.DefaultName.isEmpty())
        dialog.selectFile(Paths::ToNative(wanted.DefaultName));
}

std::optional<QString> Ask(QWidget* owner, const Host::FileDialog& wanted, QFileDialog::AcceptMode mode) {
    Chooser dialog(owner, wanted.Title);
    SetUp(dialog, wanted, mode, mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    while (dialog.exec() == QDialog::Accepted) {
        const QString chosen = Chosen(dialog);
        if (chosen.isEmpty())
            break;
        // A dialog of the system's own has closed by now: it comes up again.
        if (const QString name = QFileInfo(chosen).fileName(); IsFilter(name) && mode == QFileDialog::AcceptSave)
            dialog.Filter(name);
        else
            return Paths::FromNative(chosen);
    }
    return std::nullopt;
}

} // namespace

std::optional<QString> FileChooser::FileToOpen(QWidget* owner, const Host::FileDialog& wanted) {
    return Ask(owner, wanted, QFileDialog::AcceptOpen);
}

QStringList FileChooser::FilesToOpen(QWidget* owner, const Host::FileDialog& wanted) {
    Chooser dialog(owner, wanted.Title);
    SetUp(dialog, wanted, QFileDialog::AcceptOpen, QFileDialog::ExistingFiles);
    QStringList paths;
    if (dialog.exec() == QDialog::Accepted)
        for (const QString& chosen : dialog.selectedFiles())
            paths += Paths::FromNative(QDir::toNativeSeparators(chosen));
    return paths;
}

std::optional<QString> FileChooser::FileToSave(QWidget* owner, const Host::FileDialog& wanted) {
    return Ask(owner, wanted, QFileDialog::AcceptSave);
}

std::optional<QString> FileChooser::Folder(QWidget* owner, const QString& title, const QString& folder) {
    QFileDialog dialog(owner, title);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (!folder.isEmpty())
        dialog.setDirectory(Paths::ToNative(folder));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return Paths::FromNative(Chosen(dialog));
}
