// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// String tables in the games' own text form.
#include "fuzz/Fuzzing.h"

#include "csf/exchange/CsfExchange.h"
#include "platform/RuntimeError.h"

using CsfExchange::Format;

namespace {

/// What was read may have names that the form can't hold again; it is read or refused.
const FuzzTarget target("csf_str", [](const QByteArray& bytes) {
    Ignoring([&] {
        const QByteArray again = CsfExchange::Export(CsfExchange::Import(bytes, Format::Str), Format::Str);
        static_cast<void>(CsfExchange::Import(again, Format::Str));
    });
});

} // namespace
