// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Downloads.h"

#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

#include <QMap>

using namespace Qt::StringLiterals;

class DemoDownloads : public InAFolder {
protected:
    /// The names in a download, its entries all extracted on the way.
    QStringList NamesIn(const QByteArray& archive) {
        ccZip zip;
        zip.Init(Make(u"a.zip"_s, archive));
        for (const QString& name : zip.Col) {
            if (!name.endsWith(u'/')) {
                EXPECT_EQ(zip.Decompress(At(u"out"_s), name, true), 0) << name.toStdString();
            }
        }
        return zip.Col;
    }
};

TEST_F(DemoDownloads, AllCanBeExtractedWhole) {
    for (const Demo::Download& download : Demo::Downloads(true)) {
        EXPECT_FALSE(NamesIn(download.Bytes).isEmpty()) << download.Name.toStdString();
    }
}

TEST_F(DemoDownloads, NamesOfAllLettersComeOutAsTheyWereMeant) {
    QMap<QString, QStringList> names;
    for (const Demo::Download& download : Demo::Downloads(true))
        names[download.Name] = NamesIn(download.Bytes);
    EXPECT_TRUE(names[u"Grüne Hölle.zip"_s].contains(u"Grüne Hölle/Grüne Hölle.map"_s));
    EXPECT_TRUE(names[u"Old packer.zip"_s].contains(u"Mühle/Mühle.map"_s));
    EXPECT_TRUE(names[u"[RANK] Arctic Arena ZH v1.zip"_s].contains(
        u"[RANK] Arctic Arena ZH v1/[RANK] Arctic Arena ZH v1.map"_s));
    EXPECT_EQ(names[u"Shell map.zip"_s].first(), u"Harbour at Dusk/shellmap1.map"_s);
    EXPECT_TRUE(Files::FileExists(At(u"out\\Cup 2006\\Final.BfME2Replay"_s)));
}
