// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the group `mnuDetails` holds: name and size of the clicked entry, and its picture or its sound. The controls
/// stand in the window's form; the pane shows those that the preview shows.
#pragma once

#include "big/document/Preview.h"

#include <QWidget>

class PreviewPane : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Makes the small picture one that can be clicked. To be called once, behind setupUi and ApplyLanguage.
    void Dress();

    /// The player outlives the pane.
    void Use(SoundPlayer* player);

    /// Shows the state; a bitmap that can't be loaded leaves the old picture.
    void Follow(const PreviewState& state);

Q_SIGNALS:
    /// The small picture was clicked.
    void PictureWanted();

private:
    void ShowPicture(const PreviewState& state);
    void TellPicture(const PreviewState& state);

    QByteArray shown_; ///< the bitmap of the picture that stands there
};
