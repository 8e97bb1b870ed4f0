// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"
#include "app/cli/BigCommands.h"
#include "app/cli/DecodedPicture.h"
#include "app/cli/Output.h"
#include "big/document/ArchiveExtractor.h"
#include "platform/Paths.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The extension of a name where it is of plain letters; it tells the kind of a picture whose bytes don't.
QString Kind(const QString& name) {
    const QString extension = name.sliced(name.lastIndexOf(u'.') + 1).toLower();
    return QRegularExpression(u"^[a-z]{1,4}$"_s).match(extension).hasMatch() ? extension : QString();
}

void SavePreview(const Arguments& given) {
    const Archive archive = ReadArchive(given.Path("ARCHIVE"));
    const QString name = given.Text("NAME");
    const BigEntry& entry = archive.Entries[static_cast<std::size_t>(EntryNamed(archive, name))];
    // A folder and a name of our own: nothing of the archive decides where the bytes go, but the kind that they are of.
    const QTemporaryDir folder;
    if (!folder.isValid())
        Fail(archive.FileName, folder.errorString());
    const QString inside = Paths::FromNative(QDir::toNativeSeparators(folder.path()));
    const QString source = u"picture."_s + Kind(name);
    ArchiveExtractor(archive.FileName, inside).Extract(entry, source);
    if (!DecodeToBitmap(inside + u'\\' + source, given.Path("OUT")))
        Fail(archive.FileName, u"%1 is no picture that can be read"_s.arg(name));
}

} // namespace

std::vector<Command> PreviewCommands() {
    using enum Parameter::Kind;
    return {{"preview",
             "Write the picture of an entry as a bitmap of 32 bits a pixel, or as a PNG where OUT ends in .png",
             {{Place, "ARCHIVE"}, {Place, "NAME"}, {Place, "OUT"}},
             SavePreview}};
}
