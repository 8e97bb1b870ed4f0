// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/Description.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

using namespace Qt::StringLiterals;

namespace {

QString Word(Parameter::Kind kind) {
    using Kind = Parameter::Kind;
    switch (kind) {
    case Kind::Place:
        return u"place"_s;
    case Kind::Places:
        return u"places"_s;
    case Kind::Option:
        return u"option"_s;
    case Kind::List:
        return u"list"_s;
    case Kind::Number:
        return u"number"_s;
    case Kind::Flag:
        break;
    }
    return u"flag"_s;
}

QJsonObject ToJson(const Parameter& parameter) {
    QJsonArray members;
    for (const std::string& member : parameter.Members)
        members.append(QString::fromStdString(member));
    return {{u"kind"_s, Word(parameter.What)},
            {u"name"_s, QString::fromStdString(parameter.Name)},
            {u"description"_s, QString::fromStdString(parameter.Description)},
            {u"value"_s, QString::fromStdString(parameter.TypeName)},
            {u"required"_s, parameter.Required || parameter.What == Parameter::Kind::Place},
            {u"members"_s, members}};
}

QJsonObject ToJson(const Command& command) {
    QJsonArray parameters;
    for (const Parameter& parameter : command.Parameters)
        parameters.append(ToJson(parameter));
    return {{u"name"_s, QString::fromStdString(command.Name)},
            {u"description"_s, QString::fromStdString(command.Description)},
            {u"parameters"_s, parameters}};
}

} // namespace

QByteArray Described(const std::vector<CommandGroup>& groups) {
    QJsonArray told;
    for (const CommandGroup& group : groups) {
        QJsonArray commands;
        for (const Command& command : group.Commands)
            commands.append(ToJson(command));
        told.append(QJsonObject{{u"name"_s, QString::fromStdString(group.Name)},
                                {u"description"_s, QString::fromStdString(group.Description)},
                                {u"commands"_s, commands}});
    }
    return QJsonDocument(told).toJson();
}
