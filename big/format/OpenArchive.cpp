// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"

#include "platform/RuntimeError.h"

namespace {

Archive open;
mBIG::Identity identity = std::make_shared<int>();
int locks = 0;

} // namespace

namespace mBIG {

std::vector<BigEntry>& BigEntries = open.Entries;
qint32& BigVersion = open.Version;
QString& BigFileName = open.FileName;

Archive& Open() {
    return open;
}

Identity CurrentIdentity() {
    return identity;
}

ArchiveLock::ArchiveLock() {
    ++locks;
}

ArchiveLock::~ArchiveLock() {
    --locks;
}

bool ArchiveLock::IsHeld() {
    return locks > 0;
}

} // namespace mBIG
