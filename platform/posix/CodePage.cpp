// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"

#include "platform/AnsiCodec.h"

#include <iconv.h>

#include <array>
#include <memory>
#include <utility>

namespace {

constexpr int Windows1252 = 1252;
constexpr int Utf8 = 65001;
constexpr const char* Utf16 = "UTF-16LE";

QByteArray NameOf(int page) {
    return "CP" + QByteArray::number(page);
}

/// The system's converter between a page and text.
class Converter {
public:
    Converter(const QByteArray& to, const QByteArray& from) : system_(::iconv_open(to.constData(), from.constData())) {}

    ~Converter() {
        if (IsOpen())
            ::iconv_close(system_);
    }

    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    [[nodiscard]] bool IsOpen() const {
        return system_ != reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr)
    }

    QString Decode(QByteArrayView bytes) {
        QByteArray given = bytes.toByteArray();
        char* from = given.data();
        std::size_t left = static_cast<std::size_t>(given.size());
        QString text;
        while (left > 0) {
            std::array<char16_t, 256> units{};
            char* to = reinterpret_cast<char*>(units.data());
            std::size_t room = sizeof(units);
            const bool isDone = ::iconv(system_, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
            const std::size_t count = units.size() - room / sizeof(char16_t);
            text += QStringView(units.data(), static_cast<qsizetype>(count));
            // It stops at a byte that stands for nothing, or where there is no more room.
            if (isDone || count > 0)
                continue;
            text += QChar::ReplacementCharacter;
            ++from;
            --left;
        }
        return text;
    }

    /// Nothing where the page lacks a letter.
    std::optional<QByteArray> Encode(QStringView text) {
        QByteArray given(reinterpret_cast<const char*>(text.utf16()), text.size() * qsizetype{sizeof(char16_t)});
        constexpr qsizetype mostOfALetter = 4;
        QByteArray bytes(text.size() * mostOfALetter, Qt::Uninitialized);
        char* from = given.data();
        std::size_t left = static_cast<std::size_t>(given.size());
        char* to = bytes.data();
        std::size_t room = static_cast<std::size_t>(bytes.size());
        if (::iconv(system_, &from, &left, &to, &room) != 0)
            return std::nullopt;
        return bytes.first(to - bytes.data());
    }

private:
    iconv_t system_;
};

} // namespace

std::optional<QString> CodePage::Decode(int page, QByteArrayView bytes) {
    if (page == Windows1252)
        return AnsiCodec::Decode(bytes);
    if (page == Utf8)
        return QString::fromUtf8(bytes);
    Converter converter(Utf16, NameOf(page));
    return converter.IsOpen() ? std::optional(converter.Decode(bytes)) : std::nullopt;
}

std::optional<QByteArray> CodePage::Encode(int page, QStringView text) {
    if (page == Utf8)
        return text.toUtf8();
    if (page == Windows1252) {
        QByteArray bytes = AnsiCodec::Encode(text);
        return AnsiCodec::Decode(bytes) == text ? std::optional(std::move(bytes)) : std::nullopt;
    }
    Converter converter(NameOf(page), Utf16);
    return converter.IsOpen() ? converter.Encode(text) : std::nullopt;
}
