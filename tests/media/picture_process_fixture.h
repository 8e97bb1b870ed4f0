// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The decoding child process, with a wait for its answer.
#pragma once

#include "media/PictureProcess.h"
#include "platform/Files.h"
#include "tests/support/World.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

class PictureProcessTest : public testing::Test {
protected:
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
        process_.Decode(Place.WriteFile(name, bytes), Bitmap(), [this](bool decoded) { answer_ = decoded; });
    }

    /// The answer, in the end.
    std::optional<bool> Decode(const QString& name, const QByteArray& bytes) {
        Begin(name, bytes);
        WaitFor([this] { return answer_.has_value(); });
        return answer_;
    }

    [[nodiscard]] QString Bitmap() const { return Place.Root() + QStringLiteral("\\out.bmp"); }

    World Place;
    PictureProcess process_;
    std::optional<bool> answer_;
};
