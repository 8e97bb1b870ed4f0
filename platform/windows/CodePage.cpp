// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"

#include "platform/windows/System.h"

std::optional<QString> CodePage::Decode(int page, QByteArrayView bytes) {
    // The numbers below are names for whatever page the system happens to use.
    constexpr int firstPage = 37;
    if (page < firstPage || ::IsValidCodePage(static_cast<UINT>(page)) == 0)
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
