// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/Signature.h"

#include "tests/support/Raised.h"
#include "tests/update/SigningKey.h"

#include <QList>
#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Comment = "version:3.5.5\tfile:setup.exe";

/// Written by minisign 0.11 for a file that holds "hello".
const QString MinisignKey = u"RWQ/uHnfPwrf2oJItoLhk7C+BfPs473o4JzPt/tCQ38OjC79SKqFrNQh"_s;
const QByteArray MinisignFile =
    "untrusted comment: signature from minisign secret key\n"
    "RUQ/uHnfPwrf2jPjQiy7X/8e6+atM4wAxA3G0BvL6oBqjvvqSl6Q8wHnTtKjVFGDaftk8aCO0MYufln4gDpFP7Fb/VHo8n7OGw8=\n"
    "trusted comment: version:3.5.5 file:f.txt\n"
    "vjpqbx5d9e/JMdjJ2yepNww1GF4MlRYYiC97TEAr6/hXsxH2YkYUk/JP5I1xUI4QusrRc906+wR6iB6u2JlcBQ==\n";

QString Verified(const QByteArray& file, const QByteArray& signature, const QString& key) {
    return Signature::Verify(MemoryDevice(file, u"setup.exe"_s), signature, Signature::ReadPublicKey(key));
}

/// Why a signature is refused; empty where it is taken.
QString Refusal(const QByteArray& file, const QByteArray& signature, const QString& key = SigningKey().PublicText()) {
    return MessageOf([&] { Verified(file, signature, key); });
}

} // namespace

TEST(Signature, IsReadAsMinisignWritesIt) {
    EXPECT_EQ(Verified("hello", MinisignFile, MinisignKey), u"version:3.5.5 file:f.txt"_s);
    EXPECT_EQ(Refusal("hellp", MinisignFile, MinisignKey), u"setup.exe: its signature does not fit it"_s);
}

TEST(Signature, FitsAFileOfManyBlocksAndAnEmptyOne) {
    const SigningKey key;
    QByteArray large(200'001, 'x');
    const QByteArray signature = key.Sign(large, Comment);
    EXPECT_EQ(Verified(large, signature, key.PublicText()), u"version:3.5.5\tfile:setup.exe"_s);
    large[200'000] = 'y';
    EXPECT_NE(Refusal(large, signature), QString());
    EXPECT_EQ(Refusal({}, key.Sign({}, Comment)), QString());
}

TEST(Signature, MayHaveLineEndsOfTwoBytesAndNoneBehindItsLastLine) {
    QByteArray signature = SigningKey().Sign("hello", Comment);
    EXPECT_EQ(Refusal("hello", QByteArray(signature).replace("\n", "\r\n")), QString());
    signature.chop(1);
    EXPECT_EQ(Refusal("hello", signature), QString());
}

TEST(Signature, KeepsTheCommentsLettersBeyondTheCodePage) {
    const SigningKey key;
    EXPECT_EQ(Verified("hello", key.Sign("hello", "карта"), key.PublicText()), u"карта"_s);
}

TEST(Signature, CutAtAnyByteIsRefused) {
    const QByteArray whole = SigningKey().Sign("hello", Comment);
    for (qsizetype length = 0; length < whole.size() - 1; ++length)
        EXPECT_NE(Refusal("hello", whole.first(length)), QString()) << length;
}

TEST(Signature, WithAnyBitOfItsTrustedPartsTurnedIsRefused) {
    const QByteArray whole = SigningKey().Sign("hello", Comment);
    for (qsizetype at = whole.indexOf('\n') + 1; at < whole.size() - 1; ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = whole;
            changed[at] = static_cast<char>(changed[at] ^ (1 << bit));
            EXPECT_NE(Refusal("hello", changed), QString()) << at << ' ' << bit;
        }
    }
}

TEST(Signature, ByTheKeyButNotInTheTakenFormIsRefused) {
    const SigningKey key;
    const QByteArray hash = SigningKey::Hash("hello");
    EXPECT_EQ(Refusal("hello", key.Sign("hello", Comment, "Ed")),
              u"setup.exe: its signature is of a form that is not taken"_s);
    EXPECT_NE(Refusal("hello", key.Sign("hello", Comment, "eD")), QString());
    const auto with = [&](const QByteArray& ofFile) {
        return Refusal("hello", SigningKey::File("ED" + key.id_ + ofFile, Comment, key.Signed(ofFile + Comment)));
    };
    EXPECT_EQ(with(key.Signed(hash)), QString());
    EXPECT_NE(with(key.Signed("hello")), QString()) << "of the file itself";
    EXPECT_NE(with(key.Signed(hash.first(32))), QString()) << "of half the hash";
    EXPECT_NE(with(key.Signed(hash) + 'x'), QString()) << "longer";
    EXPECT_NE(with(key.Signed(hash).chopped(1)), QString()) << "shorter";
    EXPECT_NE(with(QByteArray(64, '\0')), QString()) << "zeros";
}

TEST(Signature, OfAnotherKeyIsRefused) {
    SigningKey other('o');
    EXPECT_EQ(Refusal("hello", other.Sign("hello", Comment)), u"setup.exe: its signature does not fit it"_s);
    other.id_ = "12345678";
    EXPECT_EQ(Refusal("hello", other.Sign("hello", Comment)), u"setup.exe: its signature is by another key"_s);
    SigningKey same;
    same.id_ = "12345678";
    EXPECT_NE(Refusal("hello", same.Sign("hello", Comment)), QString());
}

TEST(Signature, WithPartsOfAnotherSignatureIsRefused) {
    const SigningKey key;
    const QList<QByteArray> mine = key.Sign("hello", Comment).split('\n');
    const QList<QByteArray> other = key.Sign("world", "version:9.9.9\tfile:setup.exe").split('\n');
    for (const QList<int>& swapped : {QList<int>{1}, {2}, {3}, {2, 3}, {1, 3}, {1, 2, 3}}) {
        QList<QByteArray> lines = mine;
        for (const int line : swapped)
            lines[line] = other[line];
        EXPECT_NE(Refusal("hello", lines.join('\n')), QString()) << swapped.size() << ' ' << swapped.first();
    }
    EXPECT_EQ(Refusal("hello", QList<QByteArray>{mine[0], mine[1], other[2], mine[3]}.join('\n')),
              u"setup.exe: the comment in its signature was changed"_s);
}

TEST(Signature, OfAnyOtherLayoutIsRefused) {
    const QByteArray whole = SigningKey().Sign("hello", Comment);
    const QList<QByteArray> lines = whole.chopped(1).split('\n');
    const std::pair<const char*, QByteArray> layouts[] = {
        {"empty", {}},
        {"only line ends", "\n\n\n\n"},
        {"a line more", whole + "more\n"},
        {"a line more without an end", whole + "more"},
        {"twice", whole + whole},
        {"a blank line before it", '\n' + whole},
        {"a mark of UTF-8 before it", "\xEF\xBB\xBF" + whole},
        {"no first comment", lines.sliced(1).join('\n')},
        {"another first comment", "comment: x\n" + lines.sliced(1).join('\n')},
        {"no trusted comment", QList<QByteArray>{lines[0], lines[1], lines[3]}.join('\n')},
        {"lines in another order", QList<QByteArray>{lines[2], lines[3], lines[0], lines[1]}.join('\n')},
        {"a blank behind a line", QList<QByteArray>{lines[0], lines[1] + ' ', lines[2], lines[3]}.join('\n')},
        {"a NUL in it", QList<QByteArray>{lines[0], lines[1] + '\0', lines[2], lines[3]}.join('\n')},
        {"Base64 for addresses", QByteArray(whole).replace('+', '-').replace('/', '_')},
        {"Base64 without its end", QByteArray(whole).replace("=", "")},
        {"hexadecimal",
         QList<QByteArray>{lines[0], QByteArray::fromBase64(lines[1]).toHex(), lines[2], lines[3]}.join('\n')},
        {"huge", "untrusted comment: " + QByteArray(20'000'000, 'x') + whole.sliced(whole.indexOf('\n'))},
        {"a page", "<html>404</html>"},
    };
    for (const auto& [name, layout] : layouts)
        EXPECT_EQ(Refusal("hello", layout), layout == whole ? QString() : u"setup.exe: its signature can't be read"_s)
            << name;
}

TEST(Signature, NeedsAPublicKey) {
    const QString text = SigningKey().PublicText();
    EXPECT_EQ(Signature::ReadPublicKey(u"  "_s + text + u'\n').Id, QByteArray::fromHex("0102030405060708"));
    const QByteArray bytes = QByteArray::fromBase64(text.toLatin1());
    for (const QString& wrong : {QString(), u"x"_s, text.chopped(1), text.chopped(4), text + u"AAAA"_s,
                                 text + u'\n' + text, QString::fromLatin1(("ED" + bytes.sliced(2)).toBase64()),
                                 QString::fromLatin1(("Es" + bytes.sliced(2)).toBase64()), u"ж"_s.repeated(56),
                                 u"untrusted comment: minisign public key\n"_s + text, QString(50'000, u'A')})
        EXPECT_EQ(NumberRaisedBy([&] { Signature::ReadPublicKey(wrong); }), 5) << qPrintable(wrong.left(60));
}

TEST(Signature, ByAKeyOfAWeakPointIsRefused) {
    // With the neutral element for a key, anyone could sign.
    QByteArray neutral(32, '\0');
    neutral[0] = 1;
    const SigningKey key;
    const QString weak = QString::fromLatin1(("Ed" + key.id_ + neutral).toBase64());
    const QByteArray forged = neutral + QByteArray(32, '\0');
    EXPECT_NE(Refusal("hello", SigningKey::File("ED" + key.id_ + forged, Comment, forged), weak), QString());
}

TEST(SignatureClaim, IsReadFromTheCommentsFields) {
    const Signature::Claim claim = Signature::ReadClaim(u"timestamp:1700000000\tversion:3.5.5\tfile:a b.exe\thashed"_s);
    EXPECT_EQ(claim.Version, u"3.5.5"_s);
    EXPECT_EQ(claim.File, u"a b.exe"_s);
}

TEST(SignatureClaim, TellsBothOnce) {
    for (const QString& wrong :
         {u""_s, u"version:3.5.5"_s, u"file:a"_s, u"version:\tfile:a"_s, u"version:1.2.3\tfile:"_s,
          u"version:1.2.3\tfile:a\tfile:b"_s, u"version:1.2.3\tversion:1.2.4\tfile:a"_s, u"version:1.2.3 file:a"_s,
          u"Version:1.2.3\tFile:a"_s, u" version:1.2.3\tfile:a"_s})
        EXPECT_EQ(NumberRaisedBy([&] { Signature::ReadClaim(wrong); }), 5) << qPrintable(wrong);
}
