// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The asset preview of the BIG Editor, without any control: which of picture, sound player and neither the group
/// `mnuDetails` shows for a row, and the temporary files behind them.
#pragma once

#include "big/format/mBIG.h"
#include "media/PictureDecoder.h"
#include "media/PictureFacts.h"
#include "media/SoundPlayer.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <functional>

struct PreviewState {
    int GroupHeight = 80;       ///< of mnuDetails, which decides what is seen
    bool PictureShown = false;  ///< Picture1
    bool PlayerShown = false;   ///< MediaPlayer1, shown and enabled
    QByteArray Bitmap;          ///< of Image8; empty before the first picture
    QSize PictureSize;          ///< of Image8, pixels
    QString PictureName;        ///< of the row whose picture was asked for last
    bool PictureUnread = false; ///< that one can't be read: Image8 shows the one before
    QSize WholeSize;            ///< of that one, empty until it has come
    PictureFacts Facts;         ///< of Image8, as long as it is that row's
    QString SoundFile;          ///< PreviewSoundFile: inside path of the temporary file, empty when there is none
};

class Preview {
public:
    static constexpr int PictureHeight = 200;
    static constexpr int SoundHeight = 141;
    static constexpr int PlainHeight = 80;

    /// `changed` is called when a picture has come after its row was clicked.
    explicit Preview(std::function<void()> changed);
    ~Preview();
    Preview(const Preview&) = delete;
    Preview& operator=(const Preview&) = delete;

    /// Both outlive the preview or their use; without them (null) the rest of the preview works all the same.
    void Use(PictureDecoder* decoder, SoundPlayer* player);

    [[nodiscard]] const PreviewState& State() const { return state_; }

    /// Shows a file row. False when its sound is in place already: then the click ends there.
    bool ShowFile(int index, const QString& rowText);
    void ShowFolderRow();
    /// No row is shown any more.
    void Clear();

    /// Whether a row of that text has a picture.
    static bool IsPicture(const QString& rowText);
    /// Fits a picture into a square of 105 on its longer side, a small picture too.
    static QSize Fit(QSize picture);
    /// The size that a bitmap's bytes tell; empty when they are none.
    static QSize SizeOf(const QByteArray& bitmap);

private:
    void ShowPicture(int index, const QString& rowText);
    bool ShowSound(int index, const QString& rowText);
    void PictureCame(bool decoded);
    void TakePicture();
    void DeletePictureFiles();
    void AbandonPicture();
    void DeleteSoundFile() const;
    void HidePlayer();

    std::function<void()> changed_;
    PictureDecoder* decoder_ = nullptr;
    SoundPlayer* player_ = nullptr;
    PreviewState state_;
    qint16 soundFileNumber_ = 0;
    QString extracted_; ///< temporary file of the decoding under way, empty when there is none
    QString source_;    ///< what it reads
    QString bitmap_;    ///< the file that the decoding under way writes
};
