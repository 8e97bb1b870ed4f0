// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"

#include <QApplication>

std::vector<WindowTestMaker>& WindowTests() {
    static std::vector<WindowTestMaker> tests;
    return tests;
}

// Runs every test object, or those whose class names stand on the command line before a "--"; what follows the "--"
// goes to each of them.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QStringList wanted = application.arguments().mid(1);
    QStringList passedOn{application.arguments().first()};
    if (const auto split = wanted.indexOf(QStringLiteral("--")); split >= 0) {
        passedOn += wanted.mid(split + 1);
        wanted = wanted.first(split);
    }
    int failures = 0;
    for (const WindowTestMaker& make : WindowTests()) {
        const std::unique_ptr<QObject> test = make();
        if (wanted.isEmpty() || wanted.contains(QString::fromLatin1(test->metaObject()->className())))
            failures += QTest::qExec(test.get(), passedOn);
    }
    return failures == 0 ? 0 : 1;
}
