// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/Exchange.h"

#include "fuzz/Fuzzing.h"
#include "platform/RuntimeError.h"

void Fuzzing::ImportAndReturn(const QByteArray& bytes, CsfExchange::Format format) {
    CsfTable table;
    if (!Ignoring([&] { table = CsfExchange::Import(bytes, format); }))
        return;
    CsfTable again;
    Expect(Ignoring([&] { again = CsfExchange::Import(CsfExchange::Export(table, format), format); }),
           "what was exported can be imported");
    Expect(again == table, "what was exported comes back the same");
}
