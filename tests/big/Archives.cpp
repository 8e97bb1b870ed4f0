// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/Archives.h"

#include "platform/RuntimeError.h"

ArchiveTest::ArchiveTest() {
    world_.Start();
    mBIG::Close();
    mBIG::BigVersion = 0;
}

ArchiveTest::~ArchiveTest() {
    NumberedFiles::CloseAll();
}

void ArchiveTest::AddNew(const QString& name, const QByteArray& bytes) {
    const QString source = Put(QStringLiteral("source%1").arg(++sources_), bytes);
    mBIG::BigEntries.push_back({name, 0, static_cast<qint32>(bytes.size()), true, false, source});
}

QString ArchiveTest::FailureOf(const QString& path) {
    try {
        mBIG::Save(path);
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

QByteArray ArchiveTest::SavedAs(int version) {
    mBIG::BigVersion = version;
    const QString target = At(QStringLiteral("out.big"));
    EXPECT_TRUE(mBIG::Save(target));
    return World::ReadFile(target);
}
