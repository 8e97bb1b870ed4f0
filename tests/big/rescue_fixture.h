// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Editors whose process dies with unsaved changes, and the next one's.
#pragma once

#include "core/rescue/RescuedDocument.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "tests/big/document_fixture.h"
#include "tests/support/Printing.h"

#include <memory>

class EditorRescue : public EditorDocument {
protected:
    EditorRescue() {
        dying_ = std::make_unique<BigEditor>(dyingView_);
        next_ = std::make_unique<BigEditor>(nextView_);
    }

    /// Whether one lies there, be its process alive or not.
    static bool LiesThere() { return !FilesThere().isEmpty(); }

    /// The names of the files in the one folder there is.
    static QStringList FilesThere() {
        const QStringList folders = Files::ListFolder(Rescues::Folder() + QStringLiteral("\\*"), true);
        EXPECT_LE(folders.size(), 1);
        QStringList names = Files::ListFolder(Rescues::Folder() + u'\\' + folders.value(0) + QStringLiteral("\\*"));
        names.removeAll(QStringLiteral("~brindock.lock")); // where a lock is a file
        names.sort();
        return names;
    }

    static QString FileThere(const QString& name) {
        return Rescues::Folder() + u'\\' + Files::ListFolder(Rescues::Folder() + QStringLiteral("\\*"), true).value(0) +
               u'\\' + name;
    }

    [[nodiscard]] QString At(const QString& name) const { return Place.Root() + u'\\' + name; }

    void AddTo(BigEditor& editor, const QString& name, const QByteArray& bytes) {
        Speaker.FileNames = {Place.WriteFile(QStringLiteral("sources\\") + name, bytes)};
        editor.Add();
    }

    QString LaySample() {
        return Place.WriteFile(QStringLiteral("t.big"), ArchiveOf({{QStringLiteral("readme.txt"), "hello"},
                                                                   {QStringLiteral("data\\map.tga"), "picture"},
                                                                   {QStringLiteral("data\\old.txt"), "old"}}));
    }

    /// An archive with an added, a replaced, a renamed and a deleted entry.
    static void Change(BigEditor& editor, EditorRescue& test) {
        test.AddTo(editor, QStringLiteral("new.txt"), "new bytes");
        test.AddTo(editor, QStringLiteral("readme.txt"), "replaced");
        ArchiveEdits::RenameEntry(mBIG::Open(), 1, QStringLiteral("map.tga"), QStringLiteral("chart.tga"));
        ArchiveEdits::DeleteEntry(mBIG::Open(), 2);
    }

    /// The process dies; the sources of new entries go with it.
    void Die() {
        while (dying_->KeepRescue()) {
        }
        dying_.reset();
        Files::DeleteFolder(At(QStringLiteral("sources")));
    }

    void LeaveChanged() {
        dying_->OpenBigFile(LaySample());
        Speaker.Answers = {Host::Answer::Yes};
        Change(*dying_, *this);
        Die();
    }

    static void ClickLink(CountingView& view, std::size_t link) {
        ASSERT_LT(link, view.Told.Links.size());
        const auto run = view.Told.Links[link].Run;
        view.Told = {};
        run();
    }

    static QByteArray BytesOf(const QString& archive, const QString& name) {
        for (const BigEntry& entry : Archives::Read(archive).Entries) {
            if (entry.Name == name)
                return World::ReadFile(archive).mid(entry.Offset, entry.Size);
        }
        return "no such entry";
    }

    /// What a link opened, saved with its data where the directory says.
    QString Saved() {
        next_->SetExactOffsets(true);
        next_->Save();
        return mBIG::BigFileName;
    }

    CountingView dyingView_;
    CountingView nextView_;
    std::unique_ptr<BigEditor> dying_;
    std::unique_ptr<BigEditor> next_;
};
