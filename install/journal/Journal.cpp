// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/Journal.h"

#include "platform/File.h"

#include <QCryptographicHash>

#include <algorithm>

const JournalEntry* Journal::Find(int id) const {
    const auto found = std::ranges::find(Entries, id, &JournalEntry::Id);
    return found == Entries.end() ? nullptr : &*found;
}

JournalEntry* Journal::Find(int id) {
    const auto found = std::ranges::find(Entries, id, &JournalEntry::Id);
    return found == Entries.end() ? nullptr : &*found;
}

HashedFile HashOf(const QString& path) {
    constexpr qint64 atOnce = 1 << 18;
    const File file = File::Open(path, File::Access::Read);
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    QByteArray bytes(std::clamp<qint64>(file.Length(), 1, atOnce), Qt::Uninitialized);
    HashedFile hashed;
    for (;;) {
        const qint64 count = file.ReadInto(hashed.Length, bytes.data(), bytes.size());
        if (count <= 0)
            break;
        hash.addData(QByteArrayView(bytes).first(count));
        hashed.Length += count;
    }
    hashed.Hash = hash.result();
    return hashed;
}

QString JournalKey(const QString& path) {
    return path.toCaseFolded();
}

bool IsAtOrBelow(const QString& path, const QString& above) {
    return path.startsWith(above, Qt::CaseInsensitive) &&
           (path.size() == above.size() || above.endsWith(u'\\') || path[above.size()] == u'\\');
}
