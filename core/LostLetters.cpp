// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/LostLetters.h"

#include "core/Host.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "platform/AnsiCodec.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qsizetype mostNamesShown = 10;

} // namespace

QString LostLetters::AsStored(const QString& text) {
    return AnsiCodec::Decode(AnsiCodec::Encode(text));
}

QString LostLetters::Told(const QStringList& lost) {
    return lost.isEmpty() ? QString() : GetText(u"LettersLost"_s).replace("%1"_L1, NameOrCount(lost));
}

bool LostLetters::MaySave(const QStringList& lost, const QString& question) {
    if (lost.isEmpty())
        return true;
    QStringList lines{GetText(question), QString()};
    lines += lost.first(std::min(lost.size(), mostNamesShown));
    if (lost.size() > mostNamesShown)
        lines += u"..."_s;
    return Host::Current().Message(lines.join("\r\n"_L1), Host::Icon::Exclamation, Host::Buttons::SaveCancel,
                                   u"Brindock 2005"_s, Host::Answer::Cancel) == Host::Answer::Save;
}

QString LostLetters::NameOrCount(const QStringList& names) {
    return names.size() == 1 ? names.front() : Sizes::Grouped(names.size());
}
