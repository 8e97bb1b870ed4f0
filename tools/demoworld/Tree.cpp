// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Tree.h"

#include "tools/demoworld/Archives.h"
#include "tools/demoworld/Bytes.h"
#include "tools/demoworld/Random.h"
#include "tools/demoworld/Texts.h"
#include "tools/demoworld/UserFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cmath>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

constexpr qint64 Kilobyte = 1024;
constexpr qint64 Megabyte = 1024 * Kilobyte;
constexpr int FilesInFolder = 40;

/// Between two sizes, every order of size as likely as the next.
qint64 AnySize(Random& random, qint64 low, qint64 high) {
    const double ratio = static_cast<double>(high) / static_cast<double>(low);
    return static_cast<qint64>(static_cast<double>(low) * std::pow(ratio, random.Unit()));
}

/// Small files first; large ones take the places from the front until the sum is reached.
std::vector<qint64> Sizes(int files, qint64 bytes) {
    Random random(2005);
    std::vector<qint64> sizes;
    sizes.reserve(static_cast<size_t>(files));
    for (int i = 0; i < files; ++i)
        sizes.push_back(AnySize(random, Kilobyte, 50 * Kilobyte));
    qint64 sum = std::accumulate(sizes.begin(), sizes.end(), qint64{0});
    for (size_t i = 0; i < sizes.size() && bytes - sum > Megabyte; ++i) {
        const qint64 room = bytes - sum + sizes[i];
        const qint64 size = std::min(room, AnySize(random, Megabyte, 20 * Megabyte));
        sum += size - sizes[i];
        sizes[i] = size;
    }
    if (sum > bytes) {
        for (qint64& size : sizes)
            size =
                static_cast<qint64>(static_cast<double>(size) * static_cast<double>(bytes) / static_cast<double>(sum));
    }
    // Large files lie here and there.
    for (size_t i = sizes.size(); i > 1; --i)
        std::swap(sizes[i - 1], sizes[static_cast<size_t>(random.Below(static_cast<int>(i)))]);
    return sizes;
}

/// A folder name for each run of files; deeper and deeper, then from the root again.
QString FolderOf(int number) {
    static const QStringList names{u"Data"_s,   u"Art"_s, u"Textures"_s, u"Object"_s,  u"Maps"_s,
                                   u"Sounds"_s, u"W3D"_s, u"Window"_s,   u"English"_s, u"Scripts"_s};
    QString folder;
    for (int part = number; part > 0; part /= static_cast<int>(names.size()))
        folder.prepend(names[part % names.size()] + (part < names.size() ? QString() : u" %1"_s.arg(part)) + u'/');
    return folder;
}

QString FileName(int number, bool text) {
    static const QStringList textKinds{u".ini"_s, u".txt"_s, u".str"_s, u".wnd"_s};
    static const QStringList otherKinds{u".dds"_s, u".tga"_s, u".w3d"_s, u".wav"_s};
    const QString unit = QString(UnitName(static_cast<quint64>(number))).remove(u' ');
    const QString name = number % 5 == 0 ? unit.toUpper() : number % 3 == 0 ? unit.toLower() : unit;
    return name + QString::number(number) + (text ? textKinds : otherKinds)[number / 2 % 4];
}

QByteArray Noise(qsizetype size) {
    Random random(1);
    Bytes bytes;
    bytes.Reserve(size + 8);
    while (bytes.Size() < size) {
        const auto value = static_cast<qint64>(random.Next());
        bytes.Little32(value).Little32(value >> 32);
    }
    return bytes.Get();
}

/// Writes a stretch of the material that no other file starts with.
bool WriteStretch(const QString& path, const QByteArray& material, qint64 size, int number) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    qint64 from = qint64{number} * 131 % (material.size() / 2);
    while (size > 0) {
        const qint64 part = std::min(size, material.size() - from);
        if (file.write(material.constData() + from, part) != part)
            return false;
        size -= part;
        from = 0;
    }
    return true;
}

} // namespace

QString MakeTree(const QString& folder, int files, qint64 bytes) {
    const std::vector<qint64> sizes = Sizes(files, bytes);
    const QByteArray text = IniText(1, 6 * Megabyte), noise = Noise(6 * Megabyte);
    QSet<QString> made;
    for (int i = 0; i < files; ++i) {
        const QString parent = folder + u'/' + FolderOf(i / FilesInFolder);
        if (!made.contains(parent)) {
            QDir().mkpath(parent);
            made.insert(parent);
        }
        const bool isText = i % 2 == 0;
        const QString path = parent + FileName(i, isText);
        if (!WriteStretch(path, isText ? text : noise, sizes[static_cast<size_t>(i)], i))
            return u"%1 can't be written."_s.arg(path);
    }
    return {};
}

QString MakeTinyArchive(const QString& file, int entries, bool nested) {
    std::vector<ArchiveEntry> content;
    for (int i = 0; i < entries; ++i) {
        const QString folder =
            nested ? QString(FolderOf(i / FilesInFolder)).replace(u'/', u'\\') : u"Data\\INI\\Object\\"_s;
        content.push_back({folder + u"%1%2.ini"_s.arg(QString(UnitName(static_cast<quint64>(i))).remove(u' ')).arg(i),
                           "Object " + QByteArray::number(i) + "\r\nEnd\r\n"});
    }
    QFile output(file);
    const bool written = output.open(QIODevice::WriteOnly) && WriteArchive(output, 0, content) && output.flush();
    return written ? QString() : u"%1 can't be written."_s.arg(file);
}

QString MakeStrings(const QString& file, int rows) {
    constexpr int french = 3;
    const QByteArray table = Csf(french, CsfEntries(french, rows, 2005));
    QFile output(file);
    const bool written = output.open(QIODevice::WriteOnly) && output.write(table) == table.size() && output.flush();
    return written ? QString() : u"%1 can't be written."_s.arg(file);
}

QString MakeReplays(const QString& folder, int count) {
    QDir().mkpath(folder);
    for (int number = 0; number < count; ++number) {
        const auto seed = static_cast<quint64>(number);
        const QByteArray replay = Replay(0, RandomReplayFacts(0, seed), 0, seed);
        QFile output(folder + u"/%1 %2"_s.arg(PlaceName(seed)).arg(number) + ReplayExtension(0));
        constexpr qint64 started = 1131400000;
        constexpr qint64 secondsBetween = qint64{4} * 60 * 60; // a few replays a day
        const QDateTime played = QDateTime::fromSecsSinceEpoch(started + number * secondsBetween);
        if (!output.open(QIODevice::WriteOnly) || output.write(replay) != replay.size() || !output.flush() ||
            !output.setFileTime(played, QFileDevice::FileModificationTime))
            return u"%1 can't be written."_s.arg(output.fileName());
    }
    return {};
}

} // namespace Demo
