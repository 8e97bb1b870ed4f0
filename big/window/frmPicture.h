// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The picture that the editor's preview shows, in a window beside it that is large enough to judge it.
#pragma once

#include "big/document/PictureRows.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmPicture;
}

class frmPicture : public QDialog {
    Q_OBJECT
public:
    explicit frmPicture(QWidget* parent = nullptr);
    ~frmPicture() override;

    void Begin();

    /// The preview shows something: a picture is shown here too, anything else leaves the one before.
    void Follow(const PreviewState& state, const PictureRows::Place& place);

Q_SIGNALS:
    /// The user wants the picture of another row of the list.
    void RowWanted(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Dress();
    void ConnectKeys();
    void Step(int row);
    void Save();

    std::unique_ptr<Ui::frmPicture> ui_;
    PictureRows::Place place_;
    QString archive_; ///< whose picture is shown
    QString name_;
    QByteArray bitmap_;
};
