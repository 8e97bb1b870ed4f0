// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipWalk.h"

#include "core/NameOrder.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/FolderBounds.h"
#include "platform/FolderEntries.h"
#include "platform/Paths.h"
#include "platform/Wildcards.h"

using namespace Qt::StringLiterals;

namespace {

/// What one listing of a folder has for a walk, each sorted.
struct Listed {
    QStringList Files;
    QStringList Folders;
};

class Walker {
public:
    Walker(const QString& path, bool recurse, const ZipWalk::Visitor& visitor)
        : bounds_(Paths::Folder(path)),
          recurse_(recurse),
          visitor_(visitor) {
        const QString name = Paths::LastPart(path);
        const qsizetype dot = name.lastIndexOf(u'.');
        base_ = name.first(dot < 0 ? name.size() : dot);
        extension_ = dot < 0 ? QString() : name.sliced(dot + 1);
    }

    /// `exact` is the file looked for in a folder (with its backslash), empty where there is none.
    void Enter(const QString& folder, const QString& exact) {
        const bool isPattern = exact.isEmpty() && (base_.contains(u'*') || extension_.contains(u'*'));
        if (!exact.isEmpty())
            visitor_.File(exact);
        if (!isPattern && !(recurse_ && Files::FolderExists(folder)))
            return;
        const Listed listed = List(folder);
        if (isPattern)
            VisitFitting(folder, listed.Files);
        for (const QString& name : listed.Folders) {
            const QString below = folder + name + u'\\';
            Enter(below, ExactIn(below));
            visitor_.BehindFolder();
        }
    }

private:
    [[nodiscard]] Listed List(const QString& folder) const {
        Listed listed;
        for (const FolderEntry& entry : FolderEntries(folder)) {
            if (entry.IsFolder && recurse_ && !Files::IsLink(folder + entry.Name))
                listed.Folders.append(entry.Name);
            else if (!entry.IsFolder && entry.IsPlain)
                listed.Files.append(entry.Name);
        }
        NameOrder::Sort(listed.Files);
        NameOrder::Sort(listed.Folders);
        return listed;
    }

    void VisitFitting(const QString& folder, const QStringList& names) {
        // A name without a dot fits no pattern of a walk. This is meant.
        const QString pattern = base_ + u'.' + extension_;
        for (const QString& name : names) {
            if (IsLike(name, pattern) && !bounds_.LeadsOut(folder + name))
                visitor_.File(folder + name);
        }
    }

    /// The file of the wanted name in a folder further down. A dot at a name's end is none, as on Windows.
    [[nodiscard]] QString ExactIn(const QString& folder) {
        QStringList names{base_ + u'.' + extension_};
        if (extension_.isEmpty())
            names.prepend(base_);
        for (const QString& name : names) {
            if (!StateOf(folder + name).Identity.isEmpty() && !bounds_.LeadsOut(folder + name))
                return folder + name;
        }
        return {};
    }

    FolderBounds bounds_; ///< of the folder that the walk began in
    bool recurse_;
    const ZipWalk::Visitor& visitor_;
    QString base_;
    QString extension_;
};

} // namespace

void ZipWalk::Walk(const QString& path, bool recurse, const Visitor& visitor) {
    const QString folder = Paths::Folder(path);
    if (folder == path) // a drive or the root: no name to look for
        return;
    Walker(path, recurse, visitor).Enter(folder, Files::FileExists(path) ? path : QString());
}
