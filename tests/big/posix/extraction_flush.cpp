// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An extraction waits for the disk once at its end, not once a file.
#include "tests/big/document_fixture.h"

#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

int systemFlushes = 0;
int fileFlushes = 0;

class ExtractionFlush : public EditorDocument {
protected:
    ExtractionFlush() {
        Place.Start();
        OpenSample();
        View.Target = {
            .ExtractFolder = Place.Root() + u"\\out\\"_s, .ExtractCancelled = false, .RecreateFolders = true};
        systemFlushes = fileFlushes = 0;
    }
};

} // namespace

/// These stand before the system library's in this program.
extern "C" int syncfs(int file) noexcept { // NOLINT(readability-inconsistent-declaration-parameter-name)
    ++systemFlushes;
    return static_cast<int>(::syscall(SYS_syncfs, file));
}

extern "C" int fsync(int file) { // NOLINT(readability-inconsistent-declaration-parameter-name)
    ++fileFlushes;
    return static_cast<int>(::syscall(SYS_fsync, file));
}

TEST_F(ExtractionFlush, ComesOnceForAllFiles) {
    Editor.Extract();
    EXPECT_EQ(World::ReadFile(View.Target.ExtractFolder + u"Data\\map.tga"_s), "picture");
    EXPECT_EQ(systemFlushes, 1);
    EXPECT_EQ(fileFlushes, 0);
}

TEST_F(ExtractionFlush, IsNotForADragWhoseFilesDoNotLast) {
    View.Selected = {0};
    EXPECT_EQ(Editor.ExtractForDrag().size(), 1);
    EXPECT_EQ(systemFlushes, 0);
    EXPECT_EQ(fileFlushes, 0);
}

TEST_F(ExtractionFlush, OfASaveIsTheFilesOwn) {
    Editor.Save();
    EXPECT_EQ(systemFlushes, 0);
    EXPECT_GT(fileFlushes, 0);
}
