// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/InstallQuestions.h"

#include "core/Host.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qint64 MuchAnyhow = 2LL * 1024 * 1024 * 1024;
constexpr qsizetype MostLines = 15;

bool IsYes(const QString& text) {
    return Host::Current().Message(text, Host::Icon::Question, Host::Buttons::YesNo, u"Brindock 2005"_s,
                                   Host::Answer::No) == Host::Answer::Yes;
}

/// A text, and lines below it; what is too many for a box is counted.
QString WithLines(const QString& key, QStringList lines) {
    if (lines.size() > MostLines) {
        const qsizetype more = lines.size() - MostLines;
        lines.resize(MostLines);
        lines.append(GetText(u"AndMore"_s).replace(u"%1"_s, QString::number(more)));
    }
    return GetText(key) + u"\r\n\r\n"_s + lines.join(u"\r\n"_s);
}

bool ReplacesOwnArchive(const PlannedItem& item) {
    const bool stands = !item.Files.empty() && item.Files.front().What == PlannedFile::Effect::Itself;
    return item.IsOwnArchive && !stands;
}

bool IsSecondMap(const PlannedItem& item) {
    const bool isMap = item.Kind == FileKind::Map || item.Kind == FileKind::ShellMap;
    return isMap && item.Refusal.isEmpty() && item.ReplacesSomething();
}

/// What differs between a map and the one that has its name.
QStringList Differences(const PlannedItem& item) {
    QStringList lines;
    for (const PlannedFile& file : item.Files) {
        if (file.What == PlannedFile::Effect::Replaces)
            lines.append(Paths::ToNativeAsGiven(file.Target));
    }
    return lines;
}

template <typename Test, typename Lines>
void AskAbout(const InstallPlan& plan, const QString& key, const Test& test, const Lines& linesOf,
              std::set<std::size_t>& notWanted) {
    std::set<std::size_t> asked;
    QStringList lines;
    for (const PlannedItem& item : plan.Items) {
        if (!test(item))
            continue;
        asked.insert(item.Number);
        lines += linesOf(item);
    }
    if (!asked.empty() && !IsYes(WithLines(key, lines)))
        notWanted.insert(asked.begin(), asked.end());
}

} // namespace

std::set<std::size_t> InstallQuestions::NotWanted(const InstallPlan& plan) {
    std::set<std::size_t> numbers;
    if (plan.Size > MuchAnyhow || plan.IsDense) {
        const QString text = GetText(u"AskMuch"_s).replace(u"%1"_s, Sizes::KiloBytes(plan.Size));
        if (!IsYes(QString(text).replace(u"%2"_s, Sizes::KiloBytes(plan.Packed)))) {
            for (const PlannedItem& item : plan.Items)
                numbers.insert(item.Number);
            return numbers;
        }
    }
    AskAbout(
        plan, u"AskOwnArchive"_s, ReplacesOwnArchive, [](const PlannedItem& item) { return QStringList(item.Name); },
        numbers);
    AskAbout(plan, u"AskSameMap"_s, IsSecondMap, Differences, numbers);
    return numbers;
}
