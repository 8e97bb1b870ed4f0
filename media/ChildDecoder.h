// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Decodes pictures in the child process.
#pragma once

#include "media/MediaProcess.h"
#include "media/PictureDecoder.h"

class ChildDecoder : public PictureDecoder {
public:
    explicit ChildDecoder(std::shared_ptr<MediaProcess> process = MediaProcess::Shared())
        : client_(std::move(process)) {}

    void Prepare() override { client_.Prepare(); }

    void Decode(const QString& source, const QString& bitmap, Done done) override {
        client_.Ask({MediaJob::Kind::Picture, source, bitmap}, std::move(done));
    }

    void Abandon() override { client_.Abandon(); }

private:
    MediaClient client_;
};
