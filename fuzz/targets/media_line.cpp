// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The line by which the decoding child is asked.
#include "fuzz/Fuzzing.h"

#include "media/MediaJob.h"

using Fuzzing::Expect;

namespace {

void Run(const QByteArray& bytes) {
    const MediaJob job = MediaJob::OfLine(bytes);
    const QByteArray line = job.Line();
    Expect(line.count('\n') == 1 && line.endsWith('\n'), "a job is one line");
    const MediaJob again = MediaJob::OfLine(line);
    Expect(again.What == job.What, "the kind comes back as it was");
    Expect(MediaJob::OfLine(again.Line()).Source == again.Source, "a path that the system has seen stays as it is");
}

const FuzzTarget target("media_line", Run);

} // namespace
