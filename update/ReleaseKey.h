// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Who signs releases, where `updater.cfg` holds a public key. Off unless it does.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class ReleaseKey {
public:
    /// What the signed comment says of a file besides that it is whole.
    struct Claim {
        QString Version; ///< Major.Minor.Revision
        QString File;    ///< the file's name
    };

    ReleaseKey() = default;
    ReleaseKey(const ReleaseKey&) = delete;
    ReleaseKey& operator=(const ReleaseKey&) = delete;
    virtual ~ReleaseKey() = default;

    /// Holds a file (an inside path) against the text of its `.minisig`. Raises with the reason when that is not this
    /// key's signature of these bytes.
    [[nodiscard]] virtual Claim Verify(const QString& path, const QByteArray& signature) const = 0;

    /// The key of that text. Raises 5 for a text that is none. Without a maker every signature is refused.
    static std::function<std::unique_ptr<ReleaseKey>(const QString& text)> Make;
};

namespace VersionNumbers {

using Numbers = std::array<quint32, 3>;

/// Major.Minor.Revision in plain decimal numbers; nothing for any other text.
std::optional<Numbers> Of(const QString& version);

} // namespace VersionNumbers
