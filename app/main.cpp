// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Answers.h"
#include "app/Start.h"
#include "media/MediaChild.h"
#include "platform/Console.h"
#include "platform/RuntimeError.h"

#include <span>

int main(int argc, char** argv) {
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    if (const auto answer = Answers::To(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)))
        return Ignoring([&] { Console::Write(*answer); }) ? 0 : 1;
    return RunSuite(argc, argv, nullptr);
}
