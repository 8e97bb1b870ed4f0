// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaChild.h"
#include "tests/windows/WindowTests.h"

#include <QApplication>
#include <QFile>

std::vector<WindowTestMaker>& WindowTests() {
    static std::vector<WindowTestMaker> tests;
    return tests;
}

namespace {
// Where BRINDOCK_TEST_REPORTS names a folder, each test object writes a report in JUnit's form there besides its text.
// What runs at another scale runs besides, and has a report of its own.
QStringList ReportArguments(const QString& className) {
    const QString folder = qEnvironmentVariable("BRINDOCK_TEST_REPORTS");
    if (folder.isEmpty())
        return {};
    const QString scale = qApp->devicePixelRatio() > 1 ? QStringLiteral("-scaled") : QString();
    const QString report = folder + u'/' + className + scale + QStringLiteral(".xml,junitxml");
    return {QStringLiteral("-o"), report, QStringLiteral("-o"), QStringLiteral("-,txt")};
}

// Whether what is passed on begins with the name of a test function, and the object has none of that name.
bool LacksFunction(const QObject& test, const QStringList& passedOn) {
    if (passedOn.size() < 2 || passedOn[1].startsWith(u'-'))
        return false;
    const QByteArray function = passedOn[1].section(u':', 0, 0).toLatin1() + "()";
    return test.metaObject()->indexOfMethod(function.constData()) < 0;
}
} // namespace

// Runs every test object, or those whose class names stand on the command line before a "--"; what follows the "--"
// goes to each of them. A function's name there picks those that have it. To run nothing is a failure.
int main(int argc, char** argv) {
    // The preview starts its own executable as the child that decodes: here that is the tests'.
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    // So does a restart of the program, in whose place the tests are; they are not run anew.
    if (const QString told = qEnvironmentVariable(RestartTold); !told.isEmpty())
        return QFile(told).open(QIODevice::WriteOnly) ? 0 : 1;
    const QApplication application(argc, argv);
    QStringList wanted = QApplication::arguments().mid(1);
    QStringList passedOn{QApplication::arguments().first()};
    if (const auto split = wanted.indexOf(QStringLiteral("--")); split >= 0) {
        passedOn += wanted.mid(split + 1);
        wanted = wanted.first(split);
    }
    int runs = 0, failures = 0;
    for (const WindowTestMaker& make : WindowTests()) {
        const std::unique_ptr<QObject> test = make();
        const QString className = QString::fromLatin1(test->metaObject()->className());
        if ((!wanted.isEmpty() && !wanted.contains(className)) || LacksFunction(*test, passedOn))
            continue;
        ++runs;
        failures += QTest::qExec(test.get(), passedOn + ReportArguments(className));
    }
    return runs > 0 && failures == 0 ? 0 : 1;
}
