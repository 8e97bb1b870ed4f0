// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/ModuleLoader.h"
#include "media/SoundReaders.h"

using namespace Qt::StringLiterals;

QByteArray DecodeSound(const QByteArray& checked) {
    using Entry = void (*)(const QByteArray*, QByteArray*);
    static const auto entry = reinterpret_cast<Entry>(ModuleEntry(u"brindock-mixer"_s, "BrindockDecodeSound"));
    QByteArray samples;
    if (entry != nullptr)
        entry(&checked, &samples);
    return samples;
}
