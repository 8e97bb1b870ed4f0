// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A decoder that answers from a script and records what it was asked for.
#pragma once

#include "media/PictureDecoder.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/World.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <utility>

class ScriptedDecoder : public PictureDecoder {
public:
    QByteArray Bitmap; ///< written for every picture; empty: none can be read
    bool Waits = false;
    int Abandoned = 0;
    QStringList Sources;
    QStringList Bitmaps;
    QByteArray SourceBytes; ///< of the last source, when it was asked for
    Done Pending;
    int Prepared = 0;

    void Prepare() override { ++Prepared; }

    void Decode(const QString& source, const QString& bitmap, Done done) override {
        Sources += source;
        Bitmaps += bitmap;
        SourceBytes = Files::FileExists(source) ? World::ReadFile(source) : QByteArray();
        target_ = bitmap;
        Pending = std::move(done);
        if (!Waits)
            Answer();
    }

    void Abandon() override {
        ++Abandoned;
        Pending = {};
    }

    void Answer() {
        if (!Bitmap.isEmpty()) {
            QFile file(Paths::ToNative(target_));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(Bitmap);
        }
        if (const Done done = std::exchange(Pending, {}))
            done(!Bitmap.isEmpty());
    }

private:
    QString target_;
};
