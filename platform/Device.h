// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Bytes with positions: what formats read from and write to, a file or a piece of memory.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// Positions are offsets in bytes from 0. Failures raise RuntimeErrors that name the device.
class Device {
public:
    virtual ~Device() = default;
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    /// Length in bytes.
    [[nodiscard]] virtual qint64 Length() const = 0;

    /// Up to `count` bytes from `offset` on into memory of the caller's; returns how many there were: fewer at the end.
    /// Raises when reading fails.
    virtual qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const = 0;

    /// Writes all bytes or raises 61 (full), 57 or 70. Behind the end, the bytes between are zeros.
    virtual void Write(qint64 offset, QByteArrayView bytes) = 0;

    /// A longer device reads as zeros behind its old end.
    virtual void SetLength(qint64 length) = 0;

    /// For messages: the path as the system writes it, or what else names it.
    [[nodiscard]] virtual QString Name() const = 0;

    /// Up to `count` bytes from `offset` on; fewer at the end. What is reserved is bounded by the length.
    [[nodiscard]] QByteArray Read(qint64 offset, qint64 count) const;

protected:
    Device() = default;
};

/// A device in memory.
class MemoryDevice : public Device {
public:
    explicit MemoryDevice(QByteArray bytes = {}, QString name = {});

    [[nodiscard]] const QByteArray& Bytes() const { return bytes_; }

    [[nodiscard]] qint64 Length() const override;
    qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const override;
    void Write(qint64 offset, QByteArrayView bytes) override;
    void SetLength(qint64 length) override;
    [[nodiscard]] QString Name() const override;

private:
    QByteArray bytes_;
    QString name_;
};

/// Copies `count` bytes from one device to another, within the system where both are files. Returns how many there
/// were: fewer where the source ends.
qint64 CopyBytes(Device& to, qint64 toOffset, const Device& from, qint64 fromOffset, qint64 count);
