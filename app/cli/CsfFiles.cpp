// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfFiles.h"

#include "app/cli/Output.h"
#include "app/cli/StreamPlaces.h"
#include "platform/AnsiCodec.h"
#include "platform/Console.h"
#include "platform/Device.h"
#include "platform/Paths.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int HighestLanguage = 255;

bool FitsEightBits(const QString& text) {
    return AnsiCodec::Decode(AnsiCodec::Encode(text)) == text;
}

TableFile TableOf(const Arguments& given, const std::string& place, const QByteArray& bytes) {
    try {
        if (const auto format = CsfExchange::FormatOf(given.Text(place)))
            return {.Table = CsfExchange::Import(bytes, *format, nullptr, WishesOf(given)),
                    .Whole = std::nullopt,
                    .HasLanguage = *format != CsfExchange::Format::Str};
        if (given.Has(EightBit().Name))
            return {.Table = CsfTable::Read(QByteArrayView(bytes)), .Whole = std::nullopt};
        CsfWhole whole = CsfWhole::Read(bytes);
        CsfTable table = whole.Table();
        return {.Table = std::move(table), .Whole = std::move(whole)};
    } catch (const RuntimeError& error) {
        Fail(ShownPlace(given, place), u"not a CSF file that can be read: "_s + error.Description());
    }
}

} // namespace

Parameter CsfLanguage() {
    return {.What = Parameter::Kind::Number,
            .Name = "--language",
            .Description = "0 English, 2 German, 3 French, 8 Korean; a byte is stored",
            .Least = 0,
            .Most = 255};
}

Parameter CodePageOption() {
    return {.What = Parameter::Kind::Number,
            .Name = "--page",
            .Description = "The code page of the games' own text where it is not UTF-8; 1252 without it",
            .TypeName = "PAGE",
            .Least = 1};
}

CsfExchange::Wishes WishesOf(const Arguments& given) {
    CsfExchange::Wishes wishes;
    wishes.Page = given.Number("--page").value_or(wishes.Page);
    return wishes;
}

Parameter EightBit() {
    return {.What = Parameter::Kind::Flag,
            .Name = "--8-bit",
            .Description = "Read and write as 8-bit editors do: any file that they open, and only what they keep"};
}

TableFile ReadTableFile(const Arguments& given, const std::string& place) {
    return TableOf(given, place, ReadPlace(given, place));
}

TableFile ReadTableOrNothing(const Arguments& given, const std::string& place) {
    const QByteArray bytes = ReadPlace(given, place);
    return bytes.isEmpty() ? TableFile() : TableOf(given, place, bytes);
}

void WriteTableFile(const Arguments& given, TableFile file) {
    const QString shown = ShownPlace(given, "TARGET");
    const CsfTable& table = file.Table;
    if (table.Strings.empty())
        Fail(shown, u"a table without strings can't be saved"_s);
    if (!given.Has(EightBit().Name)) {
        CsfWhole whole = std::move(file.Whole).value_or(CsfWhole());
        whole.Take(table);
        return WritePlace(given, "TARGET", whole.Bytes());
    }
    if (table.Strings.size() > CsfTable::MaximumStrings)
        Fail(shown, u"%1 strings; %2 are the most that can be read again"_s.arg(table.Strings.size())
                        .arg(CsfTable::MaximumStrings));
    if (table.Language < 0 || table.Language > HighestLanguage)
        Fail(shown, u"the language number %1 can't be stored; --language gives another"_s.arg(table.Language));
    if (!IsStream(given, "TARGET"))
        return table.Write(given.Path("TARGET"));
    MemoryDevice bytes;
    table.Write(bytes);
    WritePlace(given, "TARGET", bytes.Bytes());
}

void WarnOfLostLetters(const Arguments& given, const CsfString& entry) {
    if (!FitsEightBits(entry.Name) || (given.Has(EightBit().Name) && !FitsEightBits(entry.Value)))
        Console::WriteError(
            Paths::EncodeNative(u"a letter becomes '?'\t"_s + CsfExchange::Escaped(entry.Name) + u'\n'));
}
