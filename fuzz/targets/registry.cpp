// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Registries kept as texts: an export that was pasted in, and the hive of a Wine prefix.
#include "fuzz/Fuzzing.h"

#include "platform/AnsiCodec.h"
#include "platform/FileRegistry.h"
#include "platform/Paths.h"
#include "platform/posix/WineHive.h"

using namespace Qt::StringLiterals;
using Fuzzing::Expect;
using RegistryText::Flavour;
using RegistryText::Line;
using Kind = RegistryValue::Kind;

namespace {

constexpr auto User = RootKey::CurrentUser;
const auto Root = u"HKEY_CURRENT_USER\\"_s;

void TakeApart(const QString& text, Flavour flavour) {
    qsizetype at = 0;
    for (const Line& line : RegistryText::Parse(text, flavour)) {
        Expect(line.Start == at && line.End > at, "the lines cover all of the text");
        at = line.End;
        RegistryText::ValueOf(line, flavour);
    }
    Expect(at == text.size(), "the lines end where the text ends");
}

void ReadHive(const QByteArray& bytes, const QString& text) {
    Fuzzing::Write(u"system.reg"_s, bytes);
    const WineHive hive(Paths::EncodeNative(Fuzzing::NativeOf(u"system.reg"_s)));
    for (const Line& line : RegistryText::Parse(text, Flavour::WineHive)) {
        if (line.Type == Line::Kind::Value)
            static_cast<void>(hive.Read(line.Key, line.Name));
    }
}

void ExpectWritten(FileRegistry& registry, const QString& key, const QString& name) {
    const RegistryValue text{Kind::Text, u"C:\\\"Games\"\\\n"_s, 0};
    const RegistryValue number{Kind::Number, {}, 0x2A};
    Expect(registry.Write(User, key, name, text), "a text can be written");
    Expect(registry.Read(User, key, name).Text == text.Text, "a text that was written is read");
    Expect(registry.Write(User, key, name, number), "a number can be written");
    Expect(registry.Read(User, key, name).Number == number.Number, "a number that was written is read");
    Expect(registry.RemoveValue(User, key, name), "a value can be removed");
    Expect(registry.Read(User, key, name).Type == Kind::Missing, "a value that was removed is gone");
}

void Run(const QByteArray& bytes) {
    const QString text = AnsiCodec::Decode(bytes);
    for (const Flavour flavour : {Flavour::AnsiExport, Flavour::WideExport, Flavour::WineHive})
        TakeApart(text, flavour);
    ReadHive(bytes, text);

    Fuzzing::Write(u"registry.reg"_s, bytes);
    FileRegistry registry(Fuzzing::NativeOf(u"registry.reg"_s));
    for (const Line& line : RegistryText::Parse(text, Flavour::AnsiExport)) {
        if (line.Type == Line::Kind::Value && line.Key.startsWith(Root, Qt::CaseInsensitive))
            static_cast<void>(registry.Read(User, line.Key.sliced(Root.size()), line.Name));
    }
    ExpectWritten(registry, u"A"_s, u"b"_s);
    ExpectWritten(registry, u"A\\C"_s, {});
}

const FuzzTarget target("registry", Run);

} // namespace
