// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Dropping a folder on the BIG Editor, from the drop to the list that is shown: the time grows with the files' number.
#include "tests/big/document_support.h"
#include "tests/support/World.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// Half of them in the dropped folder itself, the others in a hundred below.
QString MakeFolder(const World& world, int files) {
    const QString folder = u"dropped %1"_s.arg(files);
    for (int file = 0; file < files; ++file) {
        const QString below = file % 2 == 0 ? QString() : u"Folder %1\\"_s.arg(file / 2 % 100);
        world.WriteFile(folder + u'\\' + below + u"Texture%1.dds"_s.arg(file), "x");
    }
    return world.Root() + u'\\' + folder;
}

void DropsAFolder(benchmark::State& state) {
    World world;
    world.Start();
    const QString folder = MakeFolder(world, static_cast<int>(state.range(0)));
    CountingView view;
    BigEditor editor(view);
    for (auto _ : state) {
        mBIG::BigEntries.assign(1, {});
        editor.CreateDirs();
        editor.DropFiles({folder});
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK(DropsAFolder)->Arg(5000)->Arg(10000)->Arg(20000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

} // namespace

BENCHMARK_MAIN();
