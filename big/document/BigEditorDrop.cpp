// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "big/document/ScratchFolders.h"
#include "big/format/EntryIndex.h"
#include "big/format/mBIG.h"
#include "core/Host.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// What a record that is there keeps of its own.
enum class Found { ComesBack, StaysDeleted };

QString WithoutTrailingBackslash(const QString& path) {
    return path.endsWith(u'\\') ? path.chopped(1) : path;
}

/// Where a new record goes. Meant so: while record 0 is blank the highest index is taken as it is, and a record that
/// stands there is lost.
int IndexForNew() {
    const bool increase = !mBIG::BigEntries.empty() && !mBIG::BigEntries.front().Name.isEmpty();
    return mBIG::HighestIndex() + (increase ? 1 : 0);
}

bool MayReplace(const QString& name) {
    const QString question = name + "\r\n\r\n"_L1 + GetText(u"FileAlreadyExists"_s);
    return Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo) == Host::Answer::Yes;
}

void DropFile(EntryIndex& names, const QString& name, const Files::FoundFile& file, Found found) {
    int index = names.Find(name);
    if (index >= 0 && !MayReplace(name))
        return;
    if (index < 0) {
        index = IndexForNew();
        names.SetLast(index, name);
    }
    BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(index)];
    entry.Name = name;
    entry.IsNew = true;
    entry.SourcePath = file.Path;
    // A size that no archive can hold is not taken over.
    if (file.Size <= std::numeric_limits<qint32>::max())
        entry.Size = static_cast<qint32>(file.Size);
    if (found == Found::ComesBack)
        entry.Deleted = false;
}

// Meant so: a file over a deleted entry of a dropped folder stays hidden.
void DropFolder(EntryIndex& names, const QString& prefix, const QString& folder) {
    // The root of all folders has no name to stand under.
    if (folder.isEmpty())
        return;
    for (const Files::FoundFile& file : Files::ListFolderFiles(folder, true))
        DropFile(names, prefix + Paths::LastPart(folder) + file.Path.sliced(folder.size()), file, Found::StaysDeleted);
}

} // namespace

QStringList BigEditor::AdoptDragged(QStringList paths) {
    static int drops = 0;
    const QString folder = ScratchFolders::Dropped() + QString::number(++drops) + u'\\';
    for (QString& path : paths) {
        if (!path.startsWith(mMain::ScratchFolder() + u"\\Drag"_s, Qt::CaseInsensitive))
            continue;
        const QString kept = folder + Paths::LastPart(path);
        const bool moved = Ignoring([&] {
            Files::MakeFolders(folder);
            Files::Rename(path, kept);
        });
        if (moved)
            path = kept;
    }
    return paths;
}

void BigEditor::ForgetAdopted() {
    Files::DeleteFolder(ScratchFolders::Dropped());
}

void BigEditor::DropFiles(const QStringList& paths) {
    if (Locked() || paths.isEmpty())
        return;
    {
        // The names are looked up in an index, which holds while nothing else changes the table.
        const QScopedValueRollback lock(busy_, true);
        DropPaths(paths);
    }
    state_.Modified = true;
    ShowFolder(SelectedKey());
}

void BigEditor::DropPaths(const QStringList& paths) {
    EntryIndex names(mBIG::Open());
    QString prefix = SelectedKey();
    const auto lastFolder = std::find_if(paths.rbegin(), paths.rend(), &Files::FolderExists).base();
    for (auto path = paths.begin(); path != paths.end(); ++path) {
        if (Files::FolderExists(*path)) {
            Ignoring([&] { DropFolder(names, prefix, WithoutTrailingBackslash(*path)); });
            // Meant so: the tree is made anew and the root selected, where the paths behind go. Only the last folder's
            // tree is ever seen.
            prefix.clear();
            if (path + 1 == lastFolder)
                CreateDirs();
        } else if (Files::FileExists(*path)) {
            Files::FoundFile file{*path, 0};
            Ignoring([&] { file.Size = Files::FileLength(*path); });
            DropFile(names, prefix + Paths::LastPart(*path), file, Found::ComesBack);
        }
    }
}
