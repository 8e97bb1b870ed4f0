// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Places of the command line that may be a standard stream, "-", or a pipe.
#pragma once

#include "app/cli/Command.h"
#include "platform/SaveLock.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

/// Whether a place names a stream.
bool IsStream(const Arguments& given, const std::string& place);

/// How a message names it.
QString ShownPlace(const Arguments& given, const std::string& place);

/// All bytes of the file or stream. Standard input is read once.
QByteArray ReadPlace(const Arguments& given, const std::string& place);

/// Writes all bytes: into a stream, or as a file that is whole or as before.
void WritePlace(const Arguments& given, const std::string& place, const QByteArray& bytes);

/// Keeps other saves of a place away while it lives; nobody saves a stream.
class PlaceLock {
public:
    PlaceLock(const Arguments& given, const std::string& place);

private:
    std::optional<SaveLock> lock_;
};
