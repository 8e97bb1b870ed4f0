// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Keeps a rescue as an editor does that is about to end, so that faults can meet each of its calls.
///
///     rescue_keeper keep TEXT [SOURCE]   goes on with what is left, or begins anew; a source is copied beside
///     rescue_keeper tell                 holds what is left against what was kept, and throws it away
#include "big/document/RescueContents.h"
#include "core/rescue/RescueCopy.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Refusals.h"
#include "platform/RuntimeError.h"

#include <QStringList>

#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString kind = u"kept"_s;
constexpr QByteArrayView namesSource("with ");

void Keep(const QString& text, const QString& source) {
    RescueCopy copy(kind);
    for (const Rescues::Left& left : Rescues::LeftFor(kind))
        if (copy.Adopt(left.Folder))
            break;
    QByteArray content = text.toUtf8();
    if (!source.isEmpty()) {
        RescueContents contents;
        while (contents.CopySome({source}, copy.Folder())) {
        }
        if (const QString failure = contents.TakeFailure(); !failure.isEmpty())
            throw RuntimeError(ErrorNumber::DeviceError, failure);
        contents.Flush(copy.Folder());
        const QByteArray number = QByteArray::number(contents.NumberOf(source, copy.Folder()));
        content = namesSource.toByteArray() + number + ' ' + source.toUtf8();
    }
    // An editor goes on all the same, with what it could read; what that is, is not known beforehand.
    if (!Refusals::All().isEmpty())
        throw RuntimeError(ErrorNumber::DeviceError, u"something can't be read"_s);
    copy.Keep(u"C:\\document"_s, false, content);
    copy.LetGo();
}

/// What a rescue leads to is whole.
void Hold(const Rescues::Left& left) {
    const QByteArray content = Rescues::ContentOf(left);
    if (!content.startsWith(namesSource))
        return;
    const QList<QByteArray> words = content.split(' ');
    if (ReadWhole(left.Folder + QString::fromUtf8(words.at(1))) != ReadWhole(QString::fromUtf8(words.at(2))))
        throw RuntimeError(ErrorNumber::DeviceError,
                           Paths::ToNative(left.Folder) + u": names bytes that are not there"_s);
}

void Tell() {
    for (const Rescues::Left& left : Rescues::LeftFor(kind)) {
        Hold(left);
        Rescues::ThrowAway(left.Folder);
    }
    Rescues::Sweep();
    if (!Files::ListFolder(Rescues::Folder() + u"\\*"_s, true).isEmpty())
        throw RuntimeError(ErrorNumber::DeviceError, Paths::ToNative(Rescues::Folder()) + u": is not empty"_s);
}

void Complain(const QString& line) {
    std::fprintf(stderr, "rescue_keeper: %s\n", line.toUtf8().constData());
}

int Run(const QStringList& words) {
    try {
        if (words.value(0) == "keep"_L1)
            Keep(words.value(1), words.size() > 2 ? Paths::Absolute(words.at(2)) : QString());
        else
            Tell();
        return 0;
    } catch (const RuntimeError& error) {
        Complain(error.Description());
        for (const QString& refusal : Refusals::All())
            Complain(refusal);
        return 1;
    }
}

} // namespace

int main(int count, char** words) {
    QStringList all;
    for (const char* const word : std::vector<const char*>(words + 1, words + count))
        all += QString::fromUtf8(word);
    return Run(all);
}
