// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of all that a CSF string table has, and its writer.
#include "fuzz/Fuzzing.h"

#include "csf/format/CsfWhole.h"
#include "platform/RuntimeError.h"

using Fuzzing::Expect;

namespace {

void Run(const QByteArray& bytes) {
    CsfWhole whole;
    if (!Ignoring([&] { whole = CsfWhole::Read(bytes); }))
        return;
    Expect(whole.Bytes() == bytes, "a file comes back as it was");
    CsfTable table = whole.Table();
    whole.Take(table);
    Expect(whole.Bytes() == bytes, "a table that nobody changed changes nothing");
    if (table.Strings.empty())
        return;
    table.Strings.erase(table.Strings.begin() + static_cast<std::ptrdiff_t>(table.Strings.size() / 2));
    table.Strings.push_back({QStringLiteral("new"), QStringLiteral("new")});
    whole.Take(table);
    Expect(CsfWhole::Read(whole.Bytes()).Table().Strings.size() == table.Strings.size(), "each string is there again");
}

const FuzzTarget target("csf_whole", Run);

} // namespace
