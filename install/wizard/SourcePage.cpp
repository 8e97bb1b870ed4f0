// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/SourcePage.h"

#include "core/Sizes.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "install/InstallSource.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <array>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qsizetype extensionLength = 3;
constexpr qint64 kiloByte = 1024;

Host::FileDialog Dialog() {
    return {.Title = GetText(u"AddFiles"_s),
            .Filter = u"Game files (*.map,*.rep,*.big,*.zip)|*.map;*.rep;*.big;*.zip"_s,
            .DefaultExtension = {},
            .DefaultName = {}};
}

// With regard to case, and the long word never fits three characters between slashes. This is meant.
bool IsAccepted(const QString& name, SourcePage::By by) {
    const QString accepted = by == SourcePage::By::Dialog ? u"/map/rep/big/zip/"_s : u"/map/rep/bfme2replay/big/zip/"_s;
    return accepted.contains(u'/' + name.last(qMin(extensionLength, name.size())) + u'/');
}

// The dialog's size is rounded and grouped, the command line's is cut. This is meant.
QString SizeText(qint64 length, SourcePage::By by) {
    const QString number = by == SourcePage::By::Dialog ? Sizes::Grouped((length + kiloByte / 2) / kiloByte)
                                                        : QString::number(length / kiloByte);
    return number + u' ' + GetText(u"KiloBytes"_s);
}

void TellWrongGame() {
    Host::Current().Message(GetText(u"WrongGame"_s), Host::Icon::Critical);
}

} // namespace

SourcePage::SourcePage() {
    static constexpr std::array<const char16_t*, GameCount> keys{u"Generals", u"ZeroHour", u"BFME", u"BFME2"};
    for (GameIndex game = 0; game < GameCount; ++game) {
        const auto place = static_cast<std::size_t>(game);
        if (game == 1)
            zeroHourRow_ = static_cast<int>(games_.size());
        if (!Game.at(place).InstallPath.isEmpty())
            games_.push_back({GetText(QString::fromUtf16(keys.at(place))), game});
    }
    state_.GameRow = games_.empty() ? -1 : 0;
}

void SourcePage::Browse() {
    if (const auto path = Host::Current().OpenFileName(Dialog()))
        Choose(*path, By::Dialog);
}

void SourcePage::Choose(const QString& path, By by) {
    const QString name = Paths::LastPart(path);
    if (!IsAccepted(name, by)) {
        Host::Current().Message(GetText(u"UnsupportedFormat"_s), Host::Icon::Critical, Host::Buttons::Ok,
                                Paths::NameToNative(name));
        return;
    }
    QString size;
    const bool measured = Ignoring([&] { size = SizeText(Files::FileLength(path), by); });
    // What fails on the way from the command line is passed over; on the way from the dialog it ends as a Cancel does.
    if (measured || by == By::CommandLine)
        Accept(path, size);
    else
        Host::Current().Beep();
}

void SourcePage::TakeCommandLine() {
    if (mMain::AddFileRequested && !mMain::CommandFileArgument.isEmpty())
        Choose(mMain::CommandFileArgument, By::CommandLine);
}

void SourcePage::Accept(const QString& path, const QString& size) {
    path_ = path;
    name_ = Paths::LastPart(path);
    state_.InformationsVisible = true;
    state_.Name = name_;
    state_.Size = size;
    state_.GameEnabled = true;
    state_.NextEnabled = true;
    TellType(path);
}

void SourcePage::TellType(const QString& path) {
    const QString name = name_.toLower();
    const QString extension = name.last(extensionLength);
    const bool isZip = extension == u"zip";
    state_.ContentVisible = isZip;
    state_.InformationsHeight = isZip ? HeightOfZips : HeightOfOthers;
    if (isZip) {
        ccZip zip;
        zip.Init(path);
        state_.FileType = GetText(u"ZIP"_s);
        state_.Content = QString::number(zip.Count()) + u' ' + GetText(u"Files"_s).toLower();
    } else if (extension == u"big") {
        state_.FileType = GetText(u"Mod"_s);
    } else if (extension == u"rep") {
        state_.FileType = GetText(u"Replay"_s);
    } else if (name == u"shellmap1.map") {
        state_.FileType = GetText(u"ShellMap"_s);
    } else if (name == u"shellmapmd.map") {
        state_.FileType = GetText(u"ShellMap"_s);
        SelectZeroHour();
    } else {
        state_.FileType = GetText(u"Map"_s);
    }
}

// Where Zero Hour is not installed another game may stand there, or none. This is meant.
void SourcePage::SelectZeroHour() {
    if (zeroHourRow_ < static_cast<int>(games_.size()))
        SelectGame(zeroHourRow_);
    state_.GameEnabled = false;
}

bool SourcePage::IsShellMapOfGenerals() const {
    return state_.Name.toLower() == u"shellmap1.map";
}

void SourcePage::SelectGame(int row) {
    state_.GameRow = row;
    // The row's number decides, whichever game stands there. This is meant.
    if (row == 1 && IsShellMapOfGenerals()) {
        TellWrongGame();
        state_.GameRow = 0;
    }
}

bool SourcePage::TakeGame() const {
    if (state_.GameRow < 0) {
        Host::Current().Message(GetText(u"NoGameDetected"_s), Host::Icon::Critical);
        return false;
    }
    const GameRow& row = games_.at(static_cast<std::size_t>(state_.GameRow));
    // Here the row's text decides. This is meant.
    if (row.Text == GetText(u"ZeroHour"_s) && IsShellMapOfGenerals()) {
        TellWrongGame();
        return false;
    }
    AddFiles::ActiveGame = row.Game;
    return true;
}
