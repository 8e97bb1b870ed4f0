// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Decodes pictures in a child process of our own executable: a picture that kills or hangs the decoder costs nothing
/// but the picture. An idle child is kept ready.
#pragma once

#include "media/PictureDecoder.h"

#include <QObject>
#include <QTimer>

class QProcess;

class PictureProcess : public QObject, public PictureDecoder {
    Q_OBJECT
public:
    /// What the executable is started with to be the child.
    static constexpr auto Switch = "--decode-pictures";

    /// A picture that takes longer is given up, milliseconds.
    static constexpr int TimeLimit = 2000;

    PictureProcess();
    ~PictureProcess() override;

    void Prepare() override;
    void Decode(const QString& source, const QString& bitmap, Done done) override;
    void Abandon() override;

    /// Whether a child waits for a picture.
    [[nodiscard]] bool IsReady() const { return stage_ == Stage::Ready; }

private:
    enum class Stage { None, Starting, Ready, Busy };

    void Start();
    void Send();
    void ReadAnswers();
    void Drop();
    void Finish(bool decoded);

    QProcess* child_ = nullptr; ///< owned
    Stage stage_ = Stage::None;
    QByteArray job_; ///< the line for the child, while it is not sent
    Done done_;
    QTimer limit_;
    QTimer preparation_;
};
