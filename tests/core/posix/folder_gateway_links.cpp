// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FolderGateway.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class GatewayLinks : public testing::Test {
protected:
    GatewayLinks() {
        world_.WriteFile(u"outside\\secret"_s, "keep");
        world_.WriteFile(u"out\\inside\\x"_s, "x");
    }

    void Link(const QString& name, const QString& target) {
        const QString native = Paths::ToNative(world_.Root()) + u"/out/"_s + name;
        ASSERT_EQ(::symlink(target.toUtf8().constData(), native.toUtf8().constData()), 0);
    }

    QString Target(const QString& name) const { return FolderGateway(world_.Root() + u"\\out"_s).TargetFor(name); }

    World world_;
};

} // namespace

TEST_F(GatewayLinks, ALinkToAFolderOutsideIsRefused) {
    Link(u"way"_s, u"../outside"_s);
    EXPECT_THROW(Target(u"way\\secret"_s), RuntimeError);
    EXPECT_THROW(Target(u"WAY\\new"_s), RuntimeError);
}

TEST_F(GatewayLinks, ALinkToAFileOutsideIsRefused) {
    Link(u"file"_s, u"../outside/secret"_s);
    EXPECT_THROW(Target(u"file"_s), RuntimeError);
}

TEST_F(GatewayLinks, ALinkThatLeadsNowhereIsRefused) {
    Link(u"file"_s, u"../outside/not yet there"_s);
    EXPECT_THROW(Target(u"file"_s), RuntimeError);
}

TEST_F(GatewayLinks, ALinkInACircleIsRefused) {
    Link(u"loop"_s, u"loop"_s);
    EXPECT_ANY_THROW(Target(u"loop\\x"_s));
}

TEST_F(GatewayLinks, ALinkThatStaysInsidePasses) {
    Link(u"same"_s, u"inside"_s);
    EXPECT_NO_THROW(Target(u"same\\x"_s));
}

TEST_F(GatewayLinks, TheChosenFolderItselfMayBeALink) {
    Link(u"again"_s, u"inside"_s);
    FolderGateway gateway(world_.Root() + u"\\out\\again"_s);
    EXPECT_NO_THROW(gateway.TargetFor(u"y"_s));
}
