// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/PreviewCommand.h"

#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/format/mBIG.h"
#include "media/MediaProcess.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <array>
#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace {

struct Options {
    std::string Archive;
    std::string Name;
    std::string Target;
};

/// The extension of a name where it is of plain letters; it tells the kind of a picture whose bytes don't.
QString Kind(const QString& name) {
    const QString extension = name.sliced(name.lastIndexOf(u'.') + 1).toLower();
    return QRegularExpression(u"^[a-z]{1,4}$"_s).match(extension).hasMatch() ? extension : QString();
}

/// Decodes in the child process and waits for it.
bool Decode(const QString& source, const QString& target) {
    std::array<char, 1> name{};
    char* arguments = name.data();
    int count = 1;
    const QCoreApplication application(count, &arguments);
    MediaClient client;
    QEventLoop loop;
    bool decoded = false;
    client.Ask({MediaJob::Kind::Picture, source, target}, [&](bool done) {
        decoded = done;
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    return decoded;
}

void SavePreview(const Options& options) {
    const QString archive = ArgumentPath(options.Archive);
    const QString target = ArgumentPath(options.Target);
    const QString name = ArgumentText(options.Name);
    ReadArchive(archive);
    const int index = mBIG::FindEntry(name);
    if (index < 0)
        Fail(archive, u"no entry is named %1"_s.arg(name));
    // A folder and a name of our own: nothing of the archive decides where the bytes go, but the kind that they are of.
    const QTemporaryDir folder;
    if (!folder.isValid())
        Fail(archive, folder.errorString());
    const QString inside = Paths::FromNative(QDir::toNativeSeparators(folder.path()));
    const QString source = inside + u"\\picture."_s + Kind(name);
    const QString bitmap = inside + u"\\preview.out"_s;
    mBIG::ExtractEntry(index, archive, source);
    if (!Decode(source, bitmap))
        Fail(archive, u"%1 is no picture that can be read"_s.arg(name));
    Files::Copy(bitmap, target);
}

} // namespace

void AddPreviewCommand(CLI::App& commands) {
    CLI::App* preview = commands.get_subcommand("big")->add_subcommand(
        "preview", "Write the picture of an entry as a bitmap of 32 bits a pixel");
    const auto options = std::make_shared<Options>();
    preview->add_option("ARCHIVE", options->Archive)->required();
    preview->add_option("NAME", options->Name)->required();
    preview->add_option("OUT.bmp", options->Target)->required();
    preview->callback([options] { SavePreview(*options); });
}
