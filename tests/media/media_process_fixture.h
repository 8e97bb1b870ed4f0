// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The decoding child process, with a wait for its answer.
#pragma once

#include "media/ChildDecoder.h"
#include "platform/Files.h"
#include "tests/support/World.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

class MediaProcessTest : public testing::Test {
protected:
    explicit MediaProcessTest(MediaLimits limits = {})
        : process_(std::make_shared<MediaProcess>(limits)),
          decoder_(process_) {}

    /// Runs events until something holds; false after so many milliseconds.
    static bool WaitFor(const std::function<bool()>& holds, int limit = 20000) {
        QElapsedTimer timer;
        timer.start();
        while (!holds()) {
            if (timer.hasExpired(limit))
                return false;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        }
        return true;
    }

    void Begin(const QString& name, const QByteArray& bytes) {
        answer_.reset();
        decoder_.Decode(Place.WriteFile(name, bytes), Bitmap(), [this](bool decoded) { answer_ = decoded; });
    }

    /// The answer, in the end.
    std::optional<bool> Decode(const QString& name, const QByteArray& bytes) {
        Begin(name, bytes);
        WaitFor([this] { return answer_.has_value(); });
        return answer_;
    }

    [[nodiscard]] QString Bitmap() const { return Place.Root() + QStringLiteral("\\out.bmp"); }

    /// The child's; 0 when there is none.
    [[nodiscard]] qint64 ChildNumber() const {
        const auto* child = process_->findChild<QProcess*>();
        return child != nullptr ? child->processId() : 0;
    }

    World Place;
    std::shared_ptr<MediaProcess> process_;
    ChildDecoder decoder_;
    std::optional<bool> answer_;
};
