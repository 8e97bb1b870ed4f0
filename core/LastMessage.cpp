// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/LastMessage.h"

#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {
constexpr int OutOfMemory = 7;
} // namespace

RuntimeError LastMessage::AsRuntimeError(const std::exception& failure) {
    if (const auto* error = dynamic_cast<const RuntimeError*>(&failure); error != nullptr)
        return *error;
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr)
        return {OutOfMemory, u"Out of memory."_s};
    const QString told = QString::fromLocal8Bit(failure.what());
    if (dynamic_cast<const std::out_of_range*>(&failure) != nullptr ||
        dynamic_cast<const std::length_error*>(&failure) != nullptr)
        return {ErrorNumber::Subscript, u"Subscript out of range: %1"_s.arg(told)};
    return {ErrorNumber::InvalidCall, told};
}

QString LastMessage::Text(const RuntimeError& error) {
    return u"%1\r\n\r\n%2"_s.arg(error.Number()).arg(error.Description());
}
