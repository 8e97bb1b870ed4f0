// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/World.h"

#include "platform/AnsiCodec.h"
#include "tools/demoworld/WorldPlan.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Demo {

namespace {

QString Escaped(QString text) {
    return text.replace(u"\\"_s, u"\\\\"_s).replace(u"\""_s, u"\\\""_s);
}

class RegistryLines {
public:
    void Key(const QString& key) { lines_ += {QString(), u'[' + key + u']'}; }

    void Value(const QString& name, const QString& text) {
        lines_ += u"\"%1\"=\"%2\""_s.arg(Escaped(name), Escaped(text));
    }

    [[nodiscard]] QByteArray Bytes() const {
        return AnsiCodec::Encode(u"REGEDIT4\r\n"_s + lines_.join(u"\r\n"_s) + u"\r\n"_s);
    }

private:
    QStringList lines_;
};

} // namespace

QByteArray RegistryText(const QString& root, const QString& language) {
    RegistryLines lines;
    for (const GamePlan& game : GamePlans()) {
        lines.Key(u"HKEY_LOCAL_MACHINE\\"_s + game.RegistryKey);
        lines.Value(u"InstallPath"_s, root + u"\\Games\\"_s + game.InstallFolder + u'\\');
        lines.Value(u"UserDataLeafName"_s, game.UserFolder);
    }
    lines.Key(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"_s);
    lines.Value(u"Personal"_s, root + u"\\Documents"_s);
    lines.Value(u"AppData"_s, root + u"\\Application Data"_s);
    lines.Key(u"HKEY_CURRENT_USER\\Software\\Halvern\\Brindock\\2005"_s);
    lines.Value(u"TradFileName"_s, language);
    lines.Value(u"AutoCheckForUpdates"_s, u"0"_s);
    lines.Value(u"ViewFileIcons"_s, u"1"_s);
    lines.Value(u"GenShellMapMode"_s, u"Load002"_s);
    lines.Value(u"ZHShellMapMode"_s, u"Load001"_s);
    lines.Value(u"BFMEShellMapMode"_s, u"Random"_s);
    return lines.Bytes();
}

} // namespace Demo
