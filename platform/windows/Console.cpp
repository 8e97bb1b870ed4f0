// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Console.h"

#include "platform/RuntimeError.h"
#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <QString>

namespace {

void WriteAll(DWORD stream, const QByteArray& bytes) {
    const HANDLE handle = GetStdHandle(stream);
    DWORD mode = 0;
    DWORD written = 0;
    if (GetConsoleMode(handle, &mode) != 0) {
        const std::wstring text = QString::fromUtf8(bytes).toStdWString();
        if (WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) == 0)
            RaiseLastError(GetLastError(), QStringLiteral("standard output"));
        return;
    }
    for (qsizetype done = 0; done < bytes.size(); done += written) {
        if (WriteFile(handle, bytes.constData() + done, static_cast<DWORD>(bytes.size() - done), &written, nullptr) ==
            0)
            RaiseLastError(GetLastError(), QStringLiteral("standard output"));
    }
}

} // namespace

void Console::Write(const QByteArray& bytes) {
    WriteAll(STD_OUTPUT_HANDLE, bytes);
}

void Console::WriteError(const QByteArray& bytes) {
    Ignoring([&] { WriteAll(STD_ERROR_HANDLE, bytes); });
}
