// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/Launchers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// Settings are short; what is longer is something else.
constexpr qint64 LongestSettings = qint64{4} * 1024 * 1024;

QByteArray Contents(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.read(LongestSettings) : QByteArray();
}

QStringList FilesIn(const QString& folder, const QString& pattern) {
    QStringList files;
    for (const QString& name : QDir(folder).entryList({pattern}, QDir::Files, QDir::Name))
        files << folder + u'/' + name;
    return files;
}

/// The first of the programs that is there.
QString FirstThere(const QStringList& programs) {
    for (const QString& program : programs) {
        if (QFileInfo(program).isFile())
            return program;
    }
    return {};
}

QString WithHome(const QString& path, const QString& home) {
    return path == u'~' || path.startsWith(u"~/"_s) ? home + path.sliced(1) : path;
}

QString WithoutQuotes(const QString& text) {
    const bool isQuoted =
        text.size() > 1 && text.front() == text.back() && (text.front() == u'\'' || text.front() == u'"');
    return isQuoted ? text.sliced(1, text.size() - 2) : text;
}

/// The settings of a launcher that writes one key a line, in sections whose keys are indented.
class IndentedText {
public:
    explicit IndentedText(const QString& fileName) : lines_(QString::fromUtf8(Contents(fileName)).split(u'\n')) {}

    /// The key's value in a section; a key that is not indented has the section without a name.
    [[nodiscard]] QString Value(const QString& section, const QString& key) const {
        QString at;
        for (const QString& line : lines_) {
            const qsizetype colon = line.indexOf(u':');
            if (colon < 0 || line.startsWith(u'#'))
                continue;
            const bool isIndented = line.front().isSpace();
            const QString value = line.sliced(colon + 1).trimmed();
            if (!isIndented && value.isEmpty())
                at = line.first(colon).trimmed();
            else if (line.first(colon).trimmed() == key && section == (isIndented ? at : QString()))
                return WithoutQuotes(value);
        }
        return {};
    }

private:
    QStringList lines_;
};

class Lutris {
public:
    explicit Lutris(QString home) : home_(std::move(home)) {
        const QString sandbox = home_ + u"/.var/app/net.lutris.Lutris"_s;
        folders_ = {home_ + u"/.local/share/lutris"_s, home_ + u"/.config/lutris"_s, sandbox + u"/data/lutris"_s,
                    sandbox + u"/config/lutris"_s};
    }

    [[nodiscard]] std::vector<Launchers::Prefix> Prefixes() const {
        std::vector<Launchers::Prefix> prefixes;
        for (const QString& folder : folders_) {
            for (const QString& file : FilesIn(folder + u"/games"_s, u"*.yml"_s)) {
                const IndentedText game(file);
                if (const QString prefix = game.Value(u"game"_s, u"prefix"_s); !prefix.isEmpty())
                    prefixes.push_back({WithHome(prefix, home_), RunnerOf(game)});
            }
        }
        return prefixes;
    }

private:
    /// The game's own choice of a build, else the one for all games.
    [[nodiscard]] QString RunnerOf(const IndentedText& game) const {
        QString version = game.Value(u"wine"_s, u"version"_s);
        for (const QString& folder : folders_) {
            if (version.isEmpty())
                version = IndentedText(folder + u"/runners/wine.yml"_s).Value(u"wine"_s, u"version"_s);
        }
        if (version.isEmpty())
            return {};
        QStringList programs;
        for (const QString& folder : folders_)
            programs << folder + u"/runners/wine/"_s + version + u"/bin/wine"_s
                     << folder + u"/runners/proton/"_s + version + u"/proton"_s;
        for (const QString& steam : Launchers::SteamFolders(home_))
            programs << steam + u"/compatibilitytools.d/"_s + version + u"/proton"_s
                     << steam + u"/steamapps/common/"_s + version + u"/proton"_s;
        return FirstThere(programs);
    }

    QString home_;
    QStringList folders_;
};

class Heroic {
public:
    explicit Heroic(QString home) : home_(std::move(home)) {}

    [[nodiscard]] std::vector<Launchers::Prefix> Prefixes() const {
        std::vector<Launchers::Prefix> prefixes;
        for (const QString& folder :
             {home_ + u"/.config/heroic"_s, home_ + u"/.var/app/com.heroicgameslauncher.hgl/config/heroic"_s}) {
            const QStringList files = FilesIn(folder + u"/GamesConfig"_s, u"*.json"_s) << folder + u"/config.json"_s;
            for (const QString& file : files) {
                // Each game's settings stand under its name, those for all games under another.
                const QJsonObject games = QJsonDocument::fromJson(Contents(file)).object();
                for (const auto& game : games)
                    Add(prefixes, game.toObject());
            }
        }
        return prefixes;
    }

private:
    void Add(std::vector<Launchers::Prefix>& prefixes, const QJsonObject& settings) const {
        const QString prefix = WithHome(settings[u"winePrefix"_s].toString(), home_);
        if (prefix.isEmpty())
            return;
        const QString runner = FirstThere({settings[u"wineVersion"_s].toObject()[u"bin"_s].toString()});
        // Proton makes its prefix in a folder below the one that it is given.
        prefixes.push_back({prefix + u"/pfx"_s, runner});
        prefixes.push_back({prefix, runner});
    }

    QString home_;
};

/// Proton writes down which fonts it linked into the prefix: those of its own build.
QString ProtonOf(const QString& prefix) {
    const QString record = QString::fromUtf8(Contents(QFileInfo(prefix).path() + u"/config_info"_s));
    for (const QString& line : record.split(u'\n')) {
        for (const QString& below : {u"/files/"_s, u"/dist/"_s}) {
            const qsizetype end = line.indexOf(below);
            QString program = end > 0 ? FirstThere({line.first(end) + u"/proton"_s}) : QString();
            if (!program.isEmpty())
                return program;
        }
    }
    return {};
}

} // namespace

std::vector<Launchers::Prefix> Launchers::NamedPrefixes(const QString& home) {
    std::vector<Prefix> prefixes = Lutris(home).Prefixes();
    for (Prefix& prefix : Heroic(home).Prefixes())
        prefixes.push_back(std::move(prefix));
    return prefixes;
}

QStringList Launchers::SteamFolders(const QString& home) {
    QStringList folders;
    for (const QString& below : {QString(), u"/.var/app/com.valvesoftware.Steam"_s, u"/snap/steam/common"_s})
        folders << home + below + u"/.steam/steam"_s << home + below + u"/.local/share/Steam"_s;
    return folders << home + u"/.var/app/com.valvesoftware.Steam/data/Steam"_s;
}

QString Launchers::RunnerBeside(const QString& prefix) {
    if (QString proton = ProtonOf(prefix); !proton.isEmpty())
        return proton;
    const QString build = IndentedText(prefix + u"/bottle.yml"_s).Value({}, u"Runner"_s);
    // The bottles lie in a folder of the same name as the program's, beside that of the builds.
    return build.isEmpty() ? QString()
                           : FirstThere({QDir::cleanPath(prefix + u"/../../runners/"_s + build + u"/bin/wine"_s)});
}
