// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/StreamPlaces.h"

#include "app/cli/Output.h"
#include "platform/Console.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/Streams.h"
#include "platform/WriteAside.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool IsStandard(const Arguments& given, const std::string& place) {
    return given.Raw(place) == "-";
}

} // namespace

bool IsStream(const Arguments& given, const std::string& place) {
    return IsStandard(given, place) || Streams::IsAt(given.Path(place));
}

QString ShownPlace(const Arguments& given, const std::string& place) {
    if (!IsStandard(given, place))
        return Paths::ToNative(given.Path(place));
    return place == "TARGET" || place == "OUT" ? u"standard output"_s : u"standard input"_s;
}

QByteArray ReadPlace(const Arguments& given, const std::string& place) {
    static bool isRead = false;
    if (!IsStream(given, place))
        return ReadWhole(given.Path(place));
    if (!IsStandard(given, place))
        return Streams::ReadAll(given.Path(place));
    if (std::exchange(isRead, true))
        Fail(ShownPlace(given, place), u"can be read only once"_s);
    return Streams::ReadInput();
}

void WritePlace(const Arguments& given, const std::string& place, const QByteArray& bytes) {
    if (IsStandard(given, place))
        Console::Write(bytes);
    else if (IsStream(given, place))
        Streams::WriteAll(given.Path(place), bytes);
    else
        WriteWhole(given.Path(place), bytes);
}

PlaceLock::PlaceLock(const Arguments& given, const std::string& place) {
    if (!IsStream(given, place))
        lock_.emplace(given.Path(place));
}
