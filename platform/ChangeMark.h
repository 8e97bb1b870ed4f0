// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tells whether another program has written a file.
#pragma once

#include <QByteArray>
#include <QString>

/// Marks a file (an inside path) when made: its attributes are cleared, the archive attribute among them, which a
/// system that has one sets when the file is written; its time is set back, so that a write in the same moment shows
/// too.
class ChangeMark {
public:
    explicit ChangeMark(const QString& path) : path_(path) {
        Clear(path_);
        state_ = StateOf(path_);
    }

    /// True when the file was written since, or another one was put in its place; false when there is none.
    [[nodiscard]] bool Changed() const {
        const QByteArray state = StateOf(path_);
        return !state.isEmpty() && state != state_;
    }

private:
    /// Failures are ignored: the mark is then as good as the file's own time.
    static void Clear(const QString& path);
    /// What a write changes; empty when there is no such file.
    static QByteArray StateOf(const QString& path);

    QString path_;
    QByteArray state_;
};
