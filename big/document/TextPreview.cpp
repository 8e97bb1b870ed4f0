// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/TextPreview.h"

#include "big/document/ArchiveSearch.h"
#include "big/format/OpenArchive.h"
#include "platform/AnsiCodec.h"
#include "platform/RuntimeError.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray BytesOf(const BigEntry& entry) {
    QByteArray bytes;
    Ignoring([&] {
        if (entry.IsNew) {
            bytes = File::Open(entry.SourcePath, File::Access::Read).Read(0, TextPreview::Most);
            return;
        }
        const OpenArchive::Source source;
        if (source.Bytes() != nullptr && entry.Offset >= 0 && OpenArchive::IsAsRead())
            bytes = source.Bytes()->Read(entry.Offset, std::clamp<qint64>(entry.Size, 0, TextPreview::Most));
    });
    return bytes;
}

} // namespace

bool TextPreview::IsShown(const QString& name) {
    return ArchiveSearch::IsText(name) && !name.endsWith(".csf"_L1, Qt::CaseInsensitive);
}

QString TextPreview::Of(const BigEntry& entry) {
    if (!IsShown(entry.Name))
        return {};
    const QByteArray bytes = BytesOf(entry);
    QString text;
    if (const auto encoding = QStringConverter::encodingForData(bytes); encoding)
        text = QStringDecoder(*encoding).decode(bytes);
    else
        text = AnsiCodec::Decode(bytes);
    // What ends a text elsewhere is a sign like others here.
    return text.replace(u'\0', u' ');
}
