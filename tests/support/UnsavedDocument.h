// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Documents that tell on standard error when they are kept.
#pragma once

#include "core/rescue/RescuedDocument.h"

#include <cstdio>
#include <new>

/// Two parts are to be kept of it.
class UnsavedDocument : public RescuedDocument {
protected:
    bool KeepSome() override {
        std::fputs("kept ", stderr);
        return ++parts_ < 2;
    }

    void TellFailed(const QString& /*reason*/) override {}

private:
    int parts_ = 0;
};

/// One that can't be kept.
class UnkeptDocument : public RescuedDocument {
protected:
    bool KeepSome() override { throw std::bad_alloc(); }

    void TellFailed(const QString& /*reason*/) override { std::fputs("told ", stderr); }
};
