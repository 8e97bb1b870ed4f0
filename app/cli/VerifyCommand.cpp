// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"
#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/format/OffsetShift.h"
#include "big/format/Verification.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/SaveLock.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;
using Verification::Finding;

namespace {

using Kind = Parameter::Kind;

bool IsFault(const Finding& finding) {
    return Verification::ClassOf(finding.What) == Verification::Class::Fault;
}

/// Empty for the archive as a whole.
QString NameOf(const Archive& archive, const Finding& finding) {
    return finding.Index < 0 ? QString() : archive.Entries[static_cast<std::size_t>(finding.Index)].Name;
}

void PrintJson(const Archive& archive, const std::vector<Finding>& findings, qsizetype faults) {
    QJsonArray told;
    for (const Finding& finding : findings)
        told.append(QJsonObject{{u"class"_s, IsFault(finding) ? u"fault"_s : u"note"_s},
                                {u"kind"_s, Verification::Word(finding.What)},
                                {u"index"_s, finding.Index},
                                {u"name"_s, NameOf(archive, finding)},
                                {u"text"_s, finding.Text}});
    const QJsonObject whole{{u"version"_s, archive.Version},
                            {u"entries"_s, static_cast<qint64>(archive.Entries.size())},
                            {u"findings"_s, told},
                            {u"faults"_s, faults},
                            {u"notes"_s, told.size() - faults}};
    Print(QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Indented)).trimmed());
}

void PrintLines(const Archive& archive, const std::vector<Finding>& findings, qsizetype faults, bool withNotes) {
    for (const Finding& finding : findings) {
        if (!withNotes && !IsFault(finding))
            continue;
        const QString index = finding.Index < 0 ? u"-"_s : QString::number(finding.Index);
        PrintRow({Verification::Word(finding.What), index, InLine(NameOf(archive, finding)), finding.Text});
    }
    Print(u"%1 entries, %2 faults, %3 notes"_s.arg(archive.Entries.size())
              .arg(faults)
              .arg(static_cast<qsizetype>(findings.size()) - faults));
}

void Verify(const Arguments& given) {
    Archive archive = ReadArchive(given.Path("ARCHIVE"));
    File file = File::Open(archive.FileName, File::Access::Read);
    while (file.State() != archive.Stood) { // saved over meanwhile
        archive = ReadArchive(archive.FileName);
        file = File::Open(archive.FileName, File::Access::Read);
    }
    const std::vector<Finding> findings = Verification::Verify(archive, file);
    const qsizetype faults = std::ranges::count_if(findings, IsFault);
    if (given.Has("--json"))
        PrintJson(archive, findings, faults);
    else
        PrintLines(archive, findings, faults, given.Has("--notes"));
    if (faults > 0)
        EndWith(1);
}

void Repair(const Arguments& given) {
    const SaveLock lock(given.Path("TARGET"));
    Archive archive = ReadArchive(given.Path("ARCHIVE"));
    const qint64 length = File::Open(archive.FileName, File::Access::Read).Length();
    const OffsetShift::Shift shift = OffsetShift::ShiftOf(archive, length);
    if (shift.IsNone())
        Fail(Paths::ToNative(archive.FileName),
             u"the data lie where the directory says, or are shifted in no way that saves shift them"_s);
    if (shift.ExactFits && !given.Has("--shifted"))
        Fail(Paths::ToNative(archive.FileName), u"the archive can as well be right; --shifted takes it for shifted"_s);
    Archives::Write(OffsetShift::ReadShiftedBack(std::move(archive), shift), given.Path("TARGET"),
                    Archives::Placement::Exact);
}

} // namespace

std::vector<Command> VerifyCommands() {
    return {
        {"verify",
         "Read every entry and tell what is wrong, a line each: kind, index, name, what; then the counts. Faults are "
         "what gives readers wrong bytes, notes what is only unlike a save. The exit code is 1 when there is a fault",
         {{Kind::Place, "ARCHIVE"},
          {Kind::Flag, "--notes", "Print the notes too"},
          {Kind::Flag, "--json", "Print JSON"}},
         Verify},
        {"repair",
         "Write an archive whose data lie beside the directory's offsets, as saves shift them, anew and exact",
         {{Kind::Place, "ARCHIVE"},
          {Kind::Place, "TARGET", "May be ARCHIVE itself"},
          {Kind::Flag, "--shifted", "Take it for shifted although it can as well be right"}},
         Repair}};
}
