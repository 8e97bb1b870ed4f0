// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// String tables as CSV.
#include "fuzz/Exchange.h"
#include "fuzz/Fuzzing.h"

namespace {

const FuzzTarget target("csf_csv",
                        [](const QByteArray& bytes) { Fuzzing::ImportAndReturn(bytes, CsfExchange::Format::Csv); });

} // namespace
