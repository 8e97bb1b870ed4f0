// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Arguments.h"

#include "platform/windows/System.h"

#include <QString>

#include <shellapi.h>

std::vector<std::string> ProcessArguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(QString::fromWCharArray(wide[i]).toStdString());
    LocalFree(static_cast<HLOCAL>(wide));
    return arguments;
}
