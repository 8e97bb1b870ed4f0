// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Namesakes.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class Namesakes : public InAFolder {
protected:
    void Put(const QString& folder, const QString& file) const {
        Files::MakeFolders(At(folder));
        Make(folder + u'\\' + file, "x");
    }

    [[nodiscard]] QStringList Found() const {
        QStringList names = FoldersWithNamesake(At({}), u".map"_s);
        names.sort();
        return names;
    }
};

} // namespace

TEST_F(Namesakes, AFolderCountsThatHoldsAFileOfItsName) {
    Put(u"a"_s, u"a.map"_s);
    Put(u"b"_s, u"a.map"_s);
    Put(u"[c] d"_s, u"[c] d.map"_s);
    Put(u"e.map"_s, u"e.map.map"_s);
    Files::MakeFolders(At(u"f\\f.map"_s));
    Make(u"g.map"_s, "x");
    EXPECT_EQ(Found(), (QStringList{u"[c] d"_s, u"a"_s, u"e.map"_s}));
    EXPECT_EQ(FoldersWithNamesake(At(u"a"_s), u".map"_s), QStringList());
    EXPECT_EQ(FoldersWithNamesake(At(u"missing"_s), u".map"_s), QStringList());
}

TEST_F(Namesakes, CaseDoesNotCount) {
    Put(u"Alpine"_s, u"aLPINE.Map"_s);
    Put(u"\u00C9t\u00E9"_s, u"\u00E9t\u00C9.map"_s);
    Put(u"Other"_s, u"Othe.map"_s);
    EXPECT_EQ(Found(), (QStringList{u"Alpine"_s, u"\u00C9t\u00E9"_s}));
    EXPECT_EQ(FoldersWithNamesake(At(u"."_s), u".MAP"_s).size(), 2);
}
