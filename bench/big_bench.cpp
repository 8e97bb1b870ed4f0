// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The steps behind the editor's window, on tables as large as the format allows.
#include "big/document/FileList.h"
#include "big/document/FolderTree.h"
#include "big/format/mBIG.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void FillTable(int entries, int folders) {
    mBIG::BigEntries.clear();
    for (int i = 0; i < entries; ++i) {
        const QString folder = folders == 0 ? QString() : u"Data\\Folder %1\\"_s.arg(i % folders);
        mBIG::BigEntries.push_back({u"Art\\"_s + folder + u"Texture%1.dds"_s.arg(i), 16, 100, false, false, {}});
    }
}

void FindsAnEntry(benchmark::State& state) {
    FillTable(static_cast<int>(state.range(0)), 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(mBIG::FindEntry(u"Art\\nowhere.dds"_s));
}

void BuildsTheTree(benchmark::State& state) {
    FillTable(static_cast<int>(state.range(0)), 1000);
    FolderTree tree;
    for (auto _ : state)
        tree.CreateDirs(u"bench.big"_s, mBIG::BigEntries);
}

void SwitchesTheFolder(benchmark::State& state) {
    FillTable(static_cast<int>(state.range(0)), 0);
    FolderTree tree;
    tree.CreateDirs(u"bench.big"_s, mBIG::BigEntries);
    FileList list;
    for (auto _ : state)
        list.ShowFolder(tree, tree.Find(u"art\\"_s), u"art\\"_s, mBIG::BigEntries, u"Folder"_s);
}

void SortsByName(benchmark::State& state) {
    FillTable(static_cast<int>(state.range(0)), 0);
    FolderTree tree;
    tree.CreateDirs(u"bench.big"_s, mBIG::BigEntries);
    FileList list;
    list.ShowFolder(tree, tree.Find(u"art\\"_s), u"art\\"_s, mBIG::BigEntries, u"Folder"_s);
    for (auto _ : state)
        list.SortBy(FileList::Filename);
}

BENCHMARK(FindsAnEntry)->Arg(4096)->Arg(32768)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildsTheTree)->Arg(4096)->Arg(32768)->Unit(benchmark::kMillisecond);
BENCHMARK(SwitchesTheFolder)->Arg(4096)->Arg(32768)->Unit(benchmark::kMillisecond);
BENCHMARK(SortsByName)->Arg(4096)->Arg(32768)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
