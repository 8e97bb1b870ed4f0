// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bytes of an INI file, read and changed one key at a time the way the system's private profile calls do it.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

class ProfileText {
public:
    /// A file's bytes: in the ANSI code page, or in UTF-8 or UTF-16 behind a byte order mark.
    explicit ProfileText(const QByteArray& bytes);

    /// The first matching key in the first matching section; empty when there is none. Keys before the first section
    /// belong to the section without a name.
    [[nodiscard]] QString Read(const QString& section, const QString& key) const;

    /// The same for the beginning of a longer file; nothing when it is for the rest to decide.
    [[nodiscard]] std::optional<QString> ReadFromBeginning(const QString& section, const QString& key) const;

    /// Reads from now on in a code page, and letters beyond the system's page as they are.
    void UsePage(int page) { page_ = page; }

    /// The file's new bytes, in which all but the value's place stays as it was; the old bytes when the value stands
    /// there already.
    [[nodiscard]] QByteArray Write(const QString& section, const QString& key, const QString& value) const;

private:
    enum class Encoding { Ansi, Utf8, Utf16 };

    /// Where a key is, or would go.
    struct Place {
        bool SectionFound = false;
        bool KeyFound = false;
        bool HasEqualSign = false;
        bool Settled = false;     ///< no byte behind these can change it
        qsizetype ValueStart = 0; ///< of the value without surrounding blanks, with its quotes
        qsizetype ValueEnd = 0;
        qsizetype SectionEnd = 0; ///< behind the section's last line that isn't blank
    };

    [[nodiscard]] QString ValueAt(const Place& place) const;
    [[nodiscard]] Place Locate(const QString& section, const QString& key) const;
    [[nodiscard]] bool Same(QByteArrayView written, const QString& asked, const QByteArray& askedBytes) const;
    [[nodiscard]] QByteArray Encode(const QString& text) const;
    [[nodiscard]] QString Decode(QByteArrayView bytes) const;
    [[nodiscard]] QByteArray WithMark(const QByteArray& bytes) const;

    Encoding encoding_ = Encoding::Ansi;
    std::optional<int> page_;
    QByteArray bytes_; ///< without the mark; UTF-16 is kept as UTF-8
};
