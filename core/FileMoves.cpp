// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FileMoves.h"

#include <utility>

namespace {

FileFollower* inUse = nullptr;

} // namespace

void FileMoves::Use(FileFollower* follower) {
    inUse = follower;
}

void FileMoves::Moved(const QString& from, const QString& to) {
    if (inUse != nullptr)
        inUse->Moved(from, to);
}

void FileMoves::Copied(const QString& from, const QString& to) {
    if (inUse != nullptr)
        inUse->Copied(from, to);
}

void FileMoves::Deleted(const QString& path) {
    if (inUse != nullptr)
        inUse->Deleted(path);
}

FileMoves::Rewrite::Rewrite(QString path) : path_(std::move(path)) {
    if (inUse != nullptr)
        inUse->Rewriting(path_);
}

FileMoves::Rewrite::~Rewrite() {
    if (inUse != nullptr)
        inUse->Rewritten(path_);
}
