// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/LastMessage.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

RuntimeError Told(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& failure) {
        return LastMessage::AsRuntimeError(failure);
    }
    return {0, {}};
}

} // namespace

TEST(LastMessage, ARunTimeErrorIsToldByItsNumberAndDescription) {
    const RuntimeError told = Told([] { throw RuntimeError(ErrorNumber::DiskFull, u"The disk is full."_s); });
    EXPECT_EQ(told.Number(), 61);
    EXPECT_EQ(LastMessage::Text(told), u"61\r\n\r\nThe disk is full."_s);
}

TEST(LastMessage, NoMemoryIsNumber7) {
    const RuntimeError told = Told([] { throw std::bad_alloc(); });
    EXPECT_EQ(LastMessage::Text(told), u"7\r\n\r\nOut of memory."_s);
}

TEST(LastMessage, AnIndexOutOfRangeIsNumber9) {
    const std::vector<int> none;
    EXPECT_EQ(Told([&] { static_cast<void>(none.at(0)); }).Number(), 9);
    EXPECT_TRUE(Told([&] { static_cast<void>(none.at(0)); }).Description().startsWith(u"Subscript out of range: "_s));
}

TEST(LastMessage, ALengthThatNothingHasIsNumber9) {
    std::vector<int> none;
    EXPECT_EQ(Told([&] { none.reserve(none.max_size() + 1); }).Number(), 9);
}

TEST(LastMessage, AnyOtherFailureIsNumber5WithItsOwnText) {
    const RuntimeError told = Told([] { throw std::logic_error("quite impossible"); });
    EXPECT_EQ(LastMessage::Text(told), u"5\r\n\r\nquite impossible"_s);
}
