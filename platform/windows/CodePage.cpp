// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"

#include "platform/windows/System.h"

namespace {

bool IsPage(int page) {
    // The numbers below are names for whatever page the system happens to use.
    constexpr int firstPage = 37;
    return page >= firstPage && ::IsValidCodePage(static_cast<UINT>(page)) != 0;
}

} // namespace

std::optional<QString> CodePage::Decode(int page, QByteArrayView bytes) {
    if (!IsPage(page))
        return std::nullopt;
    if (bytes.isEmpty())
        return QString();
    const int length = static_cast<int>(bytes.size());
    const int count = ::MultiByteToWideChar(static_cast<UINT>(page), 0, bytes.data(), length, nullptr, 0);
    QString text(count, Qt::Uninitialized);
    ::MultiByteToWideChar(static_cast<UINT>(page), 0, bytes.data(), length, reinterpret_cast<wchar_t*>(text.data()),
                          count);
    return text;
}

std::optional<QByteArray> CodePage::Encode(int page, QStringView text) {
    if (!IsPage(page))
        return std::nullopt;
    const auto* const wide = reinterpret_cast<const wchar_t*>(text.utf16());
    const int length = static_cast<int>(text.size());
    const auto number = static_cast<UINT>(page);
    QByteArray bytes(::WideCharToMultiByte(number, 0, wide, length, nullptr, 0, nullptr, nullptr), Qt::Uninitialized);
    ::WideCharToMultiByte(number, 0, wide, length, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    // A letter that the page lacks has become another one.
    return Decode(page, bytes) == text ? std::optional(bytes) : std::nullopt;
}
