// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/export/ExportReport.h"

#include "core/mTraduction.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString KeyOf(ExportOutcome outcome) {
    switch (outcome) {
    case ExportOutcome::Done:
        return u"ExportDone"_s;
    case ExportOutcome::AlreadyThere:
        return u"ExportAlreadyThere"_s;
    case ExportOutcome::NoPath:
        return u"ExportNoPath"_s;
    case ExportOutcome::Refused:
        return u"ExportRefused"_s;
    case ExportOutcome::Empty:
        return u"ExportEmpty"_s;
    case ExportOutcome::LeftOut:
        return u"ExportLeftOut"_s;
    case ExportOutcome::NoDot:
        return u"ExportNoDot"_s;
    case ExportOutcome::NotPlain:
        return u"ExportNotPlain"_s;
    case ExportOutcome::Subfolder:
        return u"ExportSubfolder"_s;
    case ExportOutcome::Gone:
        return u"ExportGone"_s;
    case ExportOutcome::LettersLost:
        return u"ExportLettersLost"_s;
    case ExportOutcome::Replaced:
        return u"ExportReplaced"_s;
    case ExportOutcome::NotWritten:
        return u"ExportNotWritten"_s;
    case ExportOutcome::Failed:
        break;
    }
    return u"ExportFailed"_s;
}

} // namespace

bool IsDone(const ExportLine& line) {
    return line.Outcome == ExportOutcome::Done || line.Outcome == ExportOutcome::AlreadyThere;
}

bool ExportReport::HasFailures() const {
    return !std::ranges::all_of(Lines, IsDone);
}

QString ExportText(const ExportLine& line) {
    QString text = mTraduction::GetText(KeyOf(line.Outcome));
    if (!line.Item.isEmpty())
        text.prepend(line.Item + u": "_s);
    return line.Reason.isEmpty() ? text : text + u" ("_s + line.Reason + u')';
}

QString ExportText(const ExportReport& report) {
    QStringList undone{mTraduction::GetText(u"NotExported"_s)};
    QStringList done{mTraduction::GetText(u"Exported"_s)};
    for (const ExportLine& line : report.Lines)
        (IsDone(line) ? done : undone).append(u"  "_s + ExportText(line));
    QStringList all;
    if (undone.size() > 1)
        all += undone;
    if (undone.size() > 1 && done.size() > 1)
        all += QString();
    if (done.size() > 1)
        all += done;
    return all.join(u'\n');
}
