// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/ModuleLoader.h"
#include "media/SoundPlayer.h"

using namespace Qt::StringLiterals;

std::unique_ptr<SoundOutput> MakeSoundOutput() {
    using Make = SoundOutput* (*)();
    static const auto make = reinterpret_cast<Make>(ModuleEntry(u"brindock-sound"_s, "BrindockMakeSoundOutput"));
    return std::unique_ptr<SoundOutput>(make != nullptr ? make() : nullptr);
}
