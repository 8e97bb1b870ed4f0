// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/Command.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/World.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PreviewCommand : public testing::Test {
protected:
    /// A float map of one blue pixel, a text, and an entry without bytes.
    PreviewCommand() {
        const QByteArray blue = "PF\n1 1\n-1\n" + QByteArray("\0\0\0\0\0\0\0\0\0\0\x80\x3F", 12);
        world_.WriteFile(u"a.big"_s, HeaderOf("BIGF", 3, 66) + Record(66, 22, "Art\\b.pfm") + Record(88, 4, "t.png") +
                                         Record(92, 0, "e.tga") + "L225" + blue + "text");
    }

    Outcome Run(const QString& name) {
        return RunCommand({u"big"_s, u"preview"_s, Native(u"a.big"_s), name, Target()});
    }

    [[nodiscard]] QString Native(const QString& name) const { return Paths::ToNative(world_.Root() + u'\\' + name); }

    [[nodiscard]] QString Target() const { return Native(u"out.bmp"_s); }

    World world_;
};

} // namespace

TEST_F(PreviewCommand, WritesTheEntrysPictureAsABitmap) {
    const Outcome outcome = Run(u"art\\B.pfm"_s);
    EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
    const QByteArray bitmap = World::ReadFile(world_.Root() + u"\\out.bmp"_s);
    EXPECT_EQ(bitmap.size(), 14 + 108 + 4);
    EXPECT_EQ(bitmap.last(4), QByteArray("\xFF\0\0\xFF", 4));
    EXPECT_TRUE(outcome.Output.isEmpty());
}

TEST_F(PreviewCommand, WritesAPngWhereTheTargetSaysSo) {
    const Outcome outcome =
        RunCommand({u"big"_s, u"preview"_s, Native(u"a.big"_s), u"art\\b.pfm"_s, Native(u"o.PNG"_s)});
    EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
    const QByteArray png = World::ReadFile(world_.Root() + u"\\o.PNG"_s);
    EXPECT_TRUE(png.startsWith("\x89PNG\r\n")) << png.size();
    EXPECT_TRUE(png.contains(QByteArray("IHDR\0\0\0\1\0\0\0\1\x08\x06", 14)));
    EXPECT_FALSE(Files::FileExists(world_.Root() + u"\\out.bmp"_s));
}

TEST_F(PreviewCommand, FailsInOneLineForWhatIsNoPictureOrNotThere) {
    for (const QString& name : {u"t.png"_s, u"e.tga"_s, u"none.tga"_s}) {
        const Outcome outcome = Run(name);
        EXPECT_EQ(outcome.Code, 1) << name.toStdString();
        EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
        EXPECT_TRUE(outcome.Error.contains(name.toUtf8())) << outcome.Error.constData();
        EXPECT_FALSE(Files::FileExists(world_.Root() + u"\\out.bmp"_s));
    }
    EXPECT_EQ(RunCommand({u"big"_s, u"preview"_s, Native(u"a.big"_s)}).Code, 2);
}
