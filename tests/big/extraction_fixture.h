// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Extractions of an archive that a test lays, into the folder `out`.
#pragma once

#include "big/document/Extraction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/Archives.h"
#include "tests/big/document_support.h"

#include <vector>

using namespace Qt::StringLiterals;

class DoExtractTest : public ArchiveTest {
protected:
    /// Lays an archive and reads it as the open one.
    void Open(const std::vector<NamedBytes>& entries) {
        mBIG::BigFileName = Put(u"my.big"_s, ArchiveOf(entries));
        ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
    }

    [[nodiscard]] ExtractionTarget Out(bool recreateFolders = true) const {
        return {.ExtractFolder = At(u"out\\"_s), .ExtractCancelled = false, .RecreateFolders = recreateFolders};
    }

    /// Every entry of the table, by its index.
    static std::vector<qint32> All() {
        std::vector<qint32> list;
        Extraction::TakeAll(list);
        return list;
    }

    [[nodiscard]] QByteArray Written(const QString& name) const { return World::ReadFile(At(u"out\\"_s + name)); }

    [[nodiscard]] bool IsThere(const QString& name) const { return Files::FileExists(At(u"out\\"_s + name)); }

    [[nodiscard]] QStringList MessageTexts() const {
        QStringList texts;
        for (const ScriptedHost::Shown& shown : host_.Messages)
            texts += shown.Text;
        return texts;
    }

    /// What is asked about a file that is there already.
    [[nodiscard]] QString Question(const QString& name) const {
        return Paths::ToNative(At(u"out\\"_s)) + Paths::ToNative(name) + u"\r\n\r\nFileAlreadyExists\r\nNoWritesInto"_s;
    }
};
