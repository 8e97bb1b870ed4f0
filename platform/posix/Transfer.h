// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// File descriptors and the copying between them.
#pragma once

#include <QString>

/// Owns a file descriptor.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}

    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool Valid() const { return number_ >= 0; }

    [[nodiscard]] int Number() const { return number_; }

    int Release();

private:
    int number_;
};

/// Copies `count` bytes between two files at the offsets given, inside the kernel where it can. Returns how many there
/// were: fewer where the source ends. Raises when reading or writing fails; the names are for the message.
qint64 TransferBytes(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count, const QString& targetName,
                     const QString& sourceName);

/// Writes all bytes at an offset or raises.
void WriteFully(int to, qint64 offset, const char* bytes, qint64 count, const QString& targetName);

/// Reads up to `count` bytes; fewer at the end of the file. Raises when reading fails.
qint64 ReadFully(int from, qint64 offset, char* bytes, qint64 count, const QString& sourceName);
