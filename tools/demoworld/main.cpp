// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// demoworld: makes the demo world, the tree that is measured with, an archive of many entries, a string table of many
/// rows, and a folder of many replays.
#include "tools/demoworld/Tree.h"
#include "tools/demoworld/World.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QImage>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

QByteArray EncodeJpeg(const Demo::Picture& picture) {
    QImage image(picture.Width, picture.Height, QImage::Format_RGB32);
    for (int y = 0; y < picture.Height; ++y)
        for (int x = 0; x < picture.Width; ++x) {
            const Demo::Colour colour = picture.At(x, y);
            image.setPixel(x, y, qRgb(colour.Red, colour.Green, colour.Blue));
        }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 90);
    return buffer.data();
}

/// A number of bytes such as "1GiB", "64MiB", "10KiB" or "5000".
std::optional<qint64> ByteCount(QString text) {
    qint64 unit = 1;
    for (const QString& name : {u"KiB"_s, u"MiB"_s, u"GiB"_s}) {
        unit *= 1024;
        if (text.endsWith(name)) {
            text.chop(name.size());
            break;
        }
        if (name == "GiB"_L1)
            unit = 1;
    }
    bool isNumber = false;
    const qint64 count = text.toLongLong(&isNumber);
    return isNumber && count > 0 ? std::optional(count * unit) : std::nullopt;
}

int Report(const QString& failure) {
    if (failure.isEmpty())
        return 0;
    QTextStream(stderr) << "demoworld: " << failure << '\n';
    return 1;
}

int WrongUsage(const QCommandLineParser& parser) {
    QTextStream(stderr) << parser.helpText();
    return 2;
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Makes a world to try the suite in, or something to measure it with."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"folder"_s, u"where the world goes: an empty folder, or an earlier world"_s);
    const QCommandLineOption language(u"language"_s,
                                      u"language file that the settings name; with \"\" the suite chooses"_s, u"file"_s,
                                      u"English.lng"_s);
    const QCommandLineOption small(u"small"_s, u"a small world, for tests"_s);
    const QCommandLineOption again(u"again"_s, u"leave a complete world of the same options alone (as always)"_s);
    const QCommandLineOption tree(u"tree"_s, u"make a tree of files instead"_s, u"folder"_s);
    const QCommandLineOption files(u"files"_s, u"number of files in the tree"_s, u"number"_s, u"20000"_s);
    const QCommandLineOption bytes(u"bytes"_s, u"size of the tree"_s, u"size"_s, u"1GiB"_s);
    const QCommandLineOption archive(u"archive"_s, u"make an archive of tiny entries instead"_s, u"file"_s);
    const QCommandLineOption entries(u"entries"_s, u"number of entries in the archive"_s, u"number"_s, u"32768"_s);
    const QCommandLineOption folders(u"folders"_s, u"spread the entries over nested folders"_s);
    const QCommandLineOption strings(u"strings"_s, u"make a string table instead"_s, u"file"_s);
    const QCommandLineOption rows(u"rows"_s, u"number of rows in the string table"_s, u"number"_s, u"20000"_s);
    const QCommandLineOption replays(u"replays"_s, u"make a folder of replays instead"_s, u"folder"_s);
    const QCommandLineOption count(u"count"_s, u"number of replays in the folder"_s, u"number"_s, u"5000"_s);
    parser.addOptions(
        {language, small, again, tree, files, bytes, archive, entries, folders, strings, rows, replays, count});
    parser.process(application);

    const std::optional<qint64> size = ByteCount(parser.value(bytes));
    const int fileCount = parser.value(files).toInt(), entryCount = parser.value(entries).toInt();
    const int rowCount = parser.value(rows).toInt(), replayCount = parser.value(count).toInt();
    if (!size || fileCount <= 0 || entryCount <= 0 || rowCount <= 0 || replayCount <= 0)
        return WrongUsage(parser);
    if (parser.isSet(tree))
        return Report(Demo::MakeTree(parser.value(tree), fileCount, *size));
    if (parser.isSet(archive))
        return Report(Demo::MakeTinyArchive(parser.value(archive), entryCount, parser.isSet(folders)));
    if (parser.isSet(strings))
        return Report(Demo::MakeStrings(parser.value(strings), rowCount));
    if (parser.isSet(replays))
        return Report(Demo::MakeReplays(parser.value(replays), replayCount));
    if (parser.positionalArguments().size() != 1)
        return WrongUsage(parser);
    return Report(Demo::MakeWorld(
        {parser.positionalArguments().constFirst(), parser.value(language), parser.isSet(small), EncodeJpeg}));
}
