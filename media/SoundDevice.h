// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The machine's sound device through SDL. A thread of its own opens and closes it, which may take time.
#pragma once

#include "media/SoundPlayer.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

class DeviceOutput : public SoundOutput {
public:
    DeviceOutput();
    ~DeviceOutput() override;

    void Open(const QByteArray& samples, bool plays) override;
    void Stop() override;
    void Play() override;
    void Rewind() override;
    void Seek(qint64 position) override;
    [[nodiscard]] SoundStatus Status() const override;

private:
    using Task = std::function<void()>;

    void Ask(Task task);
    void Work();
    bool OpenDevice();
    void Forget();
    void GoTo(qint64 position);
    static void Feed(void* self, unsigned char* stream, int length);

    // The worker's own.
    quint32 device_ = 0; ///< 0 when it is not open

    // Shared with the device's thread; the samples change only while the device is closed.
    QByteArray samples_;
    std::atomic<qint64> fed_ = 0; ///< bytes that the device has

    // Shared with the caller.
    std::atomic<SoundStatus::Stage> stage_ = SoundStatus::Stage::Empty;
    std::atomic<qint64> length_ = 0;

    std::mutex mutex_;
    std::condition_variable asked_;
    std::deque<Task> tasks_;
    bool ended_ = false;
    std::thread worker_;
};
