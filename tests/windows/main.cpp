// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaChild.h"
#include "tests/windows/WindowTests.h"

#include <QApplication>

std::vector<WindowTestMaker>& WindowTests() {
    static std::vector<WindowTestMaker> tests;
    return tests;
}

namespace {
// Where BRINDOCK_TEST_REPORTS names a folder, each test object writes a report in JUnit's form there besides its text.
QStringList ReportArguments(const QString& className) {
    const QString folder = qEnvironmentVariable("BRINDOCK_TEST_REPORTS");
    if (folder.isEmpty())
        return {};
    const QString report = folder + u'/' + className + QStringLiteral(".xml,junitxml");
    return {QStringLiteral("-o"), report, QStringLiteral("-o"), QStringLiteral("-,txt")};
}
} // namespace

// Runs every test object, or those whose class names stand on the command line before a "--"; what follows the "--"
// goes to each of them.
int main(int argc, char** argv) {
    // The preview starts its own executable as the child that decodes: here that is the tests'.
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    const QApplication application(argc, argv);
    QStringList wanted = QApplication::arguments().mid(1);
    QStringList passedOn{QApplication::arguments().first()};
    if (const auto split = wanted.indexOf(QStringLiteral("--")); split >= 0) {
        passedOn += wanted.mid(split + 1);
        wanted = wanted.first(split);
    }
    int failures = 0;
    for (const WindowTestMaker& make : WindowTests()) {
        const std::unique_ptr<QObject> test = make();
        const QString className = QString::fromLatin1(test->metaObject()->className());
        if (wanted.isEmpty() || wanted.contains(className))
            failures += QTest::qExec(test.get(), passedOn + ReportArguments(className));
    }
    return failures == 0 ? 0 : 1;
}
