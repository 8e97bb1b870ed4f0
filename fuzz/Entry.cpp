// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where libFuzzer comes in; the program has one target.
#include "fuzz/Fuzzing.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // No copy: a read behind the last byte is seen.
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    FuzzTarget::All().begin()->second(bytes);
    return 0;
}
