// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the export's page share: the page in a world of its own with the program's texts, files to export,
/// and ways to reach its parts.
#pragma once

#include "core/mMain.h"
#include "install/InstallSource.h"
#include "install/window/frmExportFiles1.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

class ExportFilesPage : public EditorTest<frmExportFiles1> {
protected:
    void Begin(const QString& language) { BeginInLanguage(language); }

    void Open() {
        window_ = std::make_unique<frmExportFiles1>();
        window_->show();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    /// One replay, and the ZIP is chosen.
    void OpenForAZip() {
        AddReplay(QStringLiteral("a.rep"));
        Open();
        Press("OBCompress");
    }

    [[nodiscard]] QString At(const QString& name) const { return world_->Root() + u'\\' + name; }

    void AddReplay(const QString& name, const QByteArray& bytes = "GENREP") {
        ExportRecords.push_back({.Path = world_->WriteFile(QStringLiteral("replays\\") + name, bytes),
                                 .Name = name,
                                 .Kind = FileKind::Replay});
    }

    void AddMod() {
        world_->WriteFile(QStringLiteral("game\\Contra.ini"), "[Mod]\r\nName=Contra\r\n");
        ExportRecords.push_back({.Path = world_->WriteFile(QStringLiteral("game\\Contra.big"), "BIGF"),
                                 .Name = QStringLiteral("Contra.big"),
                                 .Kind = FileKind::Mod});
    }

    void Press(const char* name) {
        auto* const button = Part<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    }

    /// Which of the check box, the text and the button of the read-me are enabled.
    QString Enabled() {
        return QString(Part<QWidget>("ckIncludeReadMe")->isEnabled() ? u'R' : u'-') +
               (Part<QWidget>("txtReadMe")->isEnabled() ? u'T' : u'-') +
               (Part<QWidget>("cmdOpen")->isEnabled() ? u'O' : u'-');
    }

    [[nodiscard]] QStringList Entries() const {
        ccZip zip;
        zip.Init(At(QStringLiteral("out.zip")));
        return zip.Col;
    }

    void ExpectCompleted() {
        QVERIFY(!host_->Messages.empty());
        QCOMPARE(host_->Messages.back().Text, QStringLiteral("The export is complete."));
        QCOMPARE(host_->Messages.back().Title, QStringLiteral("Brindock 2005"));
        QCOMPARE(host_->Messages.back().Sign, Host::Icon::Information);
    }
};
