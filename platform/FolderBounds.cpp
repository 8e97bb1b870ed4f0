// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FolderBounds.h"

#include "platform/Files.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

FolderBounds::FolderBounds(QString folder) : folder_(folder.isEmpty() ? u"."_s : std::move(folder)) {}

bool FolderBounds::LeadsOut(const QString& path) {
    if (!Files::IsLink(path))
        return false;
    if (real_.isEmpty()) {
        real_ = Paths::Real(folder_);
        if (real_.isEmpty()) // it is gone
            return true;
        if (!real_.endsWith(u'\\'))
            real_ += u'\\';
    }
    return !Paths::Real(path).startsWith(real_);
}
