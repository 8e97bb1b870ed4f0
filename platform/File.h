// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An open file that is closed with its scope.
#pragma once

#include "platform/Device.h"

#include <QDateTime>

#include <optional>

/// What tells a file from what it was earlier: another one in its place, another length, written since.
struct FileState {
    QByteArray Identity; ///< the file system and the file's number there; empty where there is no file
    qint64 Length = 0;   ///< bytes
    qint64 Time = 0;     ///< of the last write, in the system's own unit

    bool operator==(const FileState&) const = default;
};

/// A file of the disk; pipes and devices are refused. What is opened to be read leaves others free to read, write,
/// rename and delete it.
class File : public Device {
public:
    enum class Access {
        Read,      ///< the file must exist
        ReadWrite, ///< made when missing, never cut
        Replace,   ///< made, or cut to nothing when it exists
        New,       ///< made; raises 58 when anything stands there, a link to nowhere too
    };

    /// Opens an inside path. Raises 53, 58, 70, 75 or 76 when that fails (75 for what is no plain file).
    static File Open(const QString& path, Access access);

    /// The same for a path whose case is known to be right: nothing is looked up.
    static File OpenAsGiven(const QString& path, Access access);

    /// No file.
    File() = default;

    /// What the system told of a file that is only read when it was opened.
    struct Told {
        qint64 Modified; ///< milliseconds since 1970
        qint64 Length;   ///< bytes
    };

    /// Takes over a file that the system has opened, by the system's own handle. `name` is for messages.
    File(qintptr handle, QString name, std::optional<Told> told = {});

    ~File() override;
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;

    [[nodiscard]] bool IsOpen() const { return handle_ != NoHandle; }

    /// Raises when the system reports a failed write only now; the file is closed all the same. Does nothing when none
    /// is open.
    void Close();

    /// Waits until the file's bytes are on the disk.
    void Flush();

    [[nodiscard]] FileState State() const;

    /// When the file was last written, to the millisecond, in UTC; as far as it is known from the opening, as it was
    /// then.
    [[nodiscard]] QDateTime Modified() const;

    /// In bytes; as far as it is known from the opening, as it was then.
    [[nodiscard]] qint64 LengthWhenOpened() const;

    /// CopyBytes between two files, within the system where it can.
    qint64 CopyFrom(qint64 toOffset, const File& from, qint64 fromOffset, qint64 count);

    /// The system's handle; raises 52 when no file is open.
    [[nodiscard]] qintptr Handle() const;

    [[nodiscard]] qint64 Length() const override;
    qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const override;
    void Write(qint64 offset, QByteArrayView bytes) override;
    void SetLength(qint64 length) override;
    [[nodiscard]] QString Name() const override;

private:
    static constexpr qintptr NoHandle = -1;

    qintptr handle_ = NoHandle;
    QString name_;
    std::optional<Told> told_;
};

/// The state of what stands at an inside path, links followed; without an identity where there is no plain file.
FileState StateOf(const QString& path);

/// A file's bytes. Raises like File::Open, and when reading fails.
QByteArray ReadWhole(const QString& path);

/// The same, and nothing for a file that is missing. One that is there and can't be read is not taken for that.
QByteArray WholeOrNothing(const QString& path);
