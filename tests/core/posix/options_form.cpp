// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The texts that the options dialog's form brings along, which no language shows.

#include "Places.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

TEST(OptionsForm, HasItsBuiltInTexts) {
    QFile file(QString::fromUtf8(Places::Sources) + u"/core/window/frmOptions.ui"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString form = QString::fromUtf8(file.readAll());
    for (const auto& [control, text] : {std::pair(u"Frame1"_s, u"Options générales"_s),
                                        {u"Label1"_s, u"Langue du programme :"_s},
                                        {u"Frame2"_s, u"BIG Editor"_s},
                                        {u"Frame3"_s, u"Paramètres de démarrage"_s},
                                        {u"Frame4"_s, u"ShellMaps"_s}}) {
        const QRegularExpression builtIn(
            u"name=\"%1\">\\s*<property name=\"\\w+\"><string[^>]*>([^<]*)<"_s.arg(control));
        EXPECT_EQ(builtIn.match(form).captured(1), text) << control.toStdString();
    }
}
