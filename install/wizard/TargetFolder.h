// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A folder of a game that files are put into, through one gateway: nothing gets out of it.
#pragma once

#include "core/FolderGateway.h"
#include "install/FileWatch.h"

#include <QString>

#include <functional>

class TargetFolder : private FileWatch {
public:
    /// The folder, an inside path with its trailing backslash; its last part is made when missing. Raises 76 when it is
    /// not there then. `watch`, where one is set, is told of each file under the path that is spelt as the folder is.
    TargetFolder(const QString& folder, FileWatch* watch);

    /// The place to write a file to; its folders are made. Raises what the gateway does.
    FilePlace PlaceFor(const QString& name) { return gateway_.PlaceFor(name); }

    void AddFolder(const QString& name) { gateway_.MakeFolder(name); }

    /// How people and the journal know the path of a place.
    [[nodiscard]] QString Spelt(const QString& path) const;

    /// For those who write such paths themselves; null where nobody watches.
    [[nodiscard]] FileWatch* Watch() { return watch_ == nullptr ? nullptr : this; }

    /// Copies a file (inside path) to a place; does not wait for the disk. False for one that is that very file: it
    /// stays as it is. `bytes`, where it is set, is told how many are copied. Yields. Raises what the copying raises.
    bool Copy(const QString& from, const FilePlace& place, const std::function<void(qint64)>& bytes);

    /// Writes values of one section into an INI file; raises what writing it raises. False when the values could not be
    /// put into it.
    struct Value {
        QString Key;
        QString Text;
    };

    bool WriteIni(const FilePlace& place, const QString& section, const std::initializer_list<Value>& values);

private:
    void WillWrite(const QString& path) override;
    bool WillPut(const QString& path, const HashedFile& hashed) override;
    void Written(const QString& path) override;
    void WrittenAs(const QString& path, const HashedFile& hashed) override;

    QString folder_;
    FolderGateway gateway_;
    QString real_; ///< where the gateway's paths begin
    bool isSpeltSo_;
    FileWatch* watch_;
};
