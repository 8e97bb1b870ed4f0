// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Modify with the CSF Editor as the other program: it gets the file and the document goes on at once.
#pragma once

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/support/ScriptedNavigator.h"

#include <QFile>

#include <functional>

class EditorModify : public EditorDocument {
protected:
    EditorModify() {
        Programs.OnCall = [this](const QString& call) {
            const QString path = call.sliced(call.indexOf(u' ') + 1);
            Given += path;
            GivenBytes += Files::FileExists(path) ? World::ReadFile(path) : QByteArray();
            if (Program)
                Program(path);
        };
    }

    void OpenStrings() {
        OpenArchive({{QStringLiteral("Data\\One.csf"), "the first"},
                     {QStringLiteral("Data\\two.csf"), "2"},
                     {QStringLiteral("other\\One.csf"), "x"}});
        Editor.ClickNode(NodeOf(QStringLiteral("data\\")));
    }

    [[nodiscard]] static QString Scratch(const QString& name) {
        return Paths::ProgramFolder() + QStringLiteral("\\Temp\\") + name;
    }

    /// Puts bytes over a file that is there.
    static void Write(const QString& path, const QByteArray& bytes) {
        QFile file(Paths::ToNative(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }

    /// The program writes other bytes.
    void LetItWrite() {
        Program = [](const QString& path) { Write(path, "written"); };
    }

    void ModifyByMenu(int place) {
        View.Selected = {place};
        Editor.Modify();
    }

    static BigEntry& Entry(std::size_t index) { return mBIG::BigEntries.at(index); }

    ScriptedNavigator Programs;
    QStringList Given; ///< the paths that the program was asked to open
    QList<QByteArray> GivenBytes;
    std::function<void(const QString&)> Program; ///< what it does with them
};
