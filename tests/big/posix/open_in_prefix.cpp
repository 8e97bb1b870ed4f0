// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where Open begins when a game was found in a Wine prefix.
#include "core/Game.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class OpenInPrefix : public EditorDocument {
protected:
    ~OpenInPrefix() override { Game = {}; }
};

} // namespace

TEST_F(OpenInPrefix, OpenBeginsInTheFolderInsideTheGamesOwnPrefix) {
    Game = {};
    Place.WriteFile(u"second\\drive_c\\Games\\x.big"_s, "x");
    Files::MakeFolder(Place.Root() + u"\\first"_s);
    Game[0].InstallPath = Game[1].InstallPath = u"C:\\Games\\"_s;
    Game[0].Prefix = Paths::ToNative(Place.Root() + u"\\first"_s);
    Game[1].Prefix = Paths::ToNative(Place.Root() + u"\\second"_s);
    Speaker.FileNames = {std::nullopt};
    Editor.Open();
    EXPECT_EQ(Paths::ToNative(Speaker.Dialogs.back().Folder),
              Paths::ToNative(Place.Root() + u"\\second\\drive_c\\Games\\"_s));
}
