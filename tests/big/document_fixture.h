// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An editor's document in a world of its own. Texts are their keys unless a test lays a language file.
#pragma once

#include "core/Settings.h"
#include "tests/big/document_support.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

class EditorDocument : public testing::Test {
protected:
    EditorDocument() {
        mBIG::BigEntries.clear();
        mBIG::BigFileName.clear();
        mBIG::BigVersion = 0;
    }

    /// Lays an archive and opens it.
    QString OpenArchive(const std::vector<NamedBytes>& entries, const QString& name = QStringLiteral("a.big")) {
        QString path = Place.WriteFile(name, ArchiveOf(entries));
        Editor.OpenBigFile(path);
        return path;
    }

    QString OpenSample() {
        return OpenArchive({{QStringLiteral("readme.txt"), "hello"},
                            {QStringLiteral("Data\\INI\\Object.ini"), "Object"},
                            {QStringLiteral("Data\\map.tga"), "picture"}});
    }

    [[nodiscard]] QStringList Shown() { return Texts(Editor.List()); }

    [[nodiscard]] const EditorState& State() const { return Editor.State(); }

    [[nodiscard]] int NodeOf(const QString& key) const { return Editor.Tree().Find(key); }

    World Place;
    ScriptedHost Speaker;
    CountingView View;
    BigEditor Editor{View};
};
