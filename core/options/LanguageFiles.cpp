// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/options/LanguageFiles.h"

#include "core/NameOrder.h"
#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Looks for the section Infos in a file that comes in blocks, in whichever encoding: the zeros that UTF-16 has between
/// these letters count as nothing. What is found is for the INI reader to judge, which would hold a long file whole.
class SectionSearch {
public:
    /// Whether a bracket, blanks and the section's name have come by.
    bool IsIn(QByteArrayView block) {
        constexpr QByteArrayView name("infos");
        for (qsizetype at = 0; matched_ < name.size(); ++at) {
            if (matched_ < 0)
                at = block.indexOf('[', at);
            if (at < 0 || at >= block.size())
                return false;
            Take(block[at], name);
        }
        return true;
    }

private:
    void Take(char byte, QByteArrayView name) {
        const bool blank = byte == ' ' || (byte >= '\t' && byte <= '\r') || byte == '\x1A';
        if (byte == '[')
            matched_ = 0;
        else if (matched_ >= 0 && byte != '\0' && (matched_ > 0 || !blank))
            matched_ = (byte | 0x20) == name[matched_] ? matched_ + 1 : -1;
    }

    qsizetype matched_ = -1; ///< letters of the name; -1 before a bracket
};

bool MayNameLanguage(const QString& path) {
    constexpr qint64 block = 65536;
    const File file = File::Open(path, File::Access::Read);
    std::array<char, block> bytes{};
    SectionSearch search;
    qint64 at = 0;
    for (qint64 count = block; count == block; at += count) {
        count = file.ReadInto(at, bytes.data(), block);
        if (search.IsIn({bytes.data(), static_cast<qsizetype>(count)}))
            return true;
    }
    return false;
}

void AddTo(std::vector<LanguageFile>& found, const QString& name) {
    const QString path = mMain::ProgramFolder + u'\\' + name;
    if (!MayNameLanguage(path))
        return;
    const QStringList infos = mMain::INI().ReadTexts(u"Infos"_s, {u"Language"_s, u"Version"_s, u"Translator"_s}, path);
    if (!infos[0].isEmpty() && infos[1] == u"2005")
        found.push_back({.FileName = name, .Shown = infos[0] + u" \\ "_s + infos[2]});
}

} // namespace

std::vector<LanguageFile> LanguageFiles::InProgramFolder() {
    QStringList names = Files::ListFolder(mMain::ProgramFolder + u"\\*.lng"_s);
    NameOrder::Sort(names);
    std::vector<LanguageFile> found;
    for (const QString& name : std::as_const(names))
        Ignoring([&] { AddTo(found, name); });
    return found;
}
