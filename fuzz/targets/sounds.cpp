// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the suite looks at in a sound file before its library sees it.
#include "fuzz/Fuzzing.h"

#include "media/SoundReaders.h"

using Fuzzing::Expect;

namespace {

void Run(const QByteArray& bytes) {
    for (const auto check : {Sounds::CheckedWav, Sounds::CheckedMpeg}) {
        const QByteArray checked = check(bytes);
        Expect(checked.size() <= bytes.size() + 1, "nothing is added but the byte that makes a length even");
        Expect(check(checked) == checked, "what was checked passes as it is");
    }
}

const FuzzTarget target("sounds", Run);

} // namespace
