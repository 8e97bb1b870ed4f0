// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Document.h"

#include "core/Game.h"
#include "core/Host.h"
#include "core/LastTime.h"
#include "core/ProgramFolders.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

bool Document::GoOnWithoutChanges(const QString& name, const std::function<Saved()>& save) {
    const QString question = mTraduction::GetText(u"QuitSave"_s).replace(u"%1"_s, name);
    switch (Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNoCancel)) {
    case Host::Answer::Yes: {
        const Saved saved = save();
        return saved == Saved::Yes || saved == Saved::NothingToSave;
    }
    case Host::Answer::No:
        return true;
    default:
        return false;
    }
}

QString Document::FolderForDialogs(const QString& path) {
    const QString folder = Paths::Folder(path);
    return folder.startsWith(ProgramFolders::SharedScratchFolder() + u'\\', Qt::CaseInsensitive) ? QString() : folder;
}

QString Document::FolderToOpenIn(const QString& kind, const QString& path) {
    QString folder = FolderForDialogs(path);
    if (folder.isEmpty())
        folder = LastTime::Folder(kind);
    for (const GameEntry& game : Game)
        if (folder.isEmpty() && !game.InstallPath.isEmpty() && Files::FolderExists(game.InstallFolder()))
            folder = game.InstallFolder();
    return folder;
}

void Document::NoteRecent(const QString& kind, const QString& path) {
    if (!FolderForDialogs(path).isEmpty())
        LastTime::NoteFile(kind, path);
}
