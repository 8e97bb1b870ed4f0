// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of JSON, CSV and PO share.
#pragma once

#include "csf/exchange/CsfExchange.h"
#include "platform/RuntimeError.h"
#include "tests/csf/Tables.h"

inline CsfTable Small() {
    return {3,
            {{QStringLiteral("Caf\u00E9\nnoir"), QStringLiteral("GUI:A")},
             {QStringLiteral("say \"hi\", you"), {}},
             {{}, QStringLiteral("GUI:A")}}};
}

/// The reason why the bytes are refused; "read" when they are not.
inline QString RefusalOf(const QByteArray& bytes, CsfExchange::Format format) {
    try {
        CsfExchange::Import(bytes, format);
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 13);
        return error.Description();
    }
    return QStringLiteral("read");
}
