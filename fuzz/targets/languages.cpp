// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Language files, whose texts are in the code page that they name.
#include "fuzz/Fuzzing.h"

#include "platform/INIRuntime.h"

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

void Run(const QByteArray& bytes) {
    const INIRuntime runtime;
    const QString path = Fuzzing::Write(u"a.lng"_s, bytes);
    const QStringList keys{u"Open"_s, u"open"_s, u"K\u00E9y"_s, QString()};
    const QStringList texts = runtime.ReadTexts(u"LNG"_s, keys, path);
    Expect(texts.size() == keys.size(), "each key has its text");
    Expect(texts[0] == texts[1], "keys are found without regard to case");
    for (qsizetype i = 0; i < keys.size(); ++i) {
        Expect(texts[i].size() < 255, "a text has 254 characters at most");
        Expect(runtime.ReadTexts(u"LNG"_s, {keys[i]}, path).first() == texts[i], "a text is the same among others");
    }
    Expect(Fuzzing::Read(u"a.lng"_s) == bytes, "reading changes nothing");
}

const FuzzTarget target("languages", Run);

} // namespace
