// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FolderGateway.h"

#include "platform/Files.h"
#include "platform/FolderEntries.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

/// No system takes a longer path, and each folder in a name costs as much memory as the name above it.
constexpr qsizetype LongestName = 4095;

[[noreturn]] void Refuse(QStringView name, const QString& reason) {
    throw RuntimeError(ErrorNumber::PathFileAccess, u"%1: %2"_s.arg(name, reason));
}

bool IsDeviceName(QStringView component) {
    static constexpr std::array<std::u16string_view, 6> plain{u"con", u"prn", u"aux", u"nul", u"conin$", u"conout$"};
    constexpr qsizetype shortest = 3;
    constexpr qsizetype longest = 7;
    const QStringView name = component.left(component.indexOf(u'.')).trimmed();
    if (name.size() < shortest || name.size() > longest)
        return false;
    const QString base = name.toString().toLower();
    if (std::ranges::any_of(plain, [&](std::u16string_view device) { return base == QStringView(device); }))
        return true;
    const bool numbered = base.size() == 4 && (base.startsWith(u"com") || base.startsWith(u"lpt"));
    return numbered && u"123456789\u00B9\u00B2\u00B3"_s.contains(base.back());
}

QString RefusalOfComponent(QStringView component) {
    static const QString forbidden = u"<>:\"|?*"_s;
    if (component == u"." || component == u"..")
        return u"leads out of its folder"_s;
    if (std::ranges::any_of(component, [](QChar c) { return c.unicode() < 0x20 || forbidden.contains(c); }))
        return u"holds a character that file names can't have"_s;
    if (component.endsWith(u'.') || component.endsWith(u' '))
        return u"ends in a full stop or a blank"_s;
    if (IsDeviceName(component))
        return u"is the name of a device"_s;
    return {};
}

bool IsSeparator(QChar character) {
    return character == u'\\' || character == u'/';
}

/// Where the last component of a name begins.
qsizetype LastComponent(QStringView name) {
    const auto split = std::find_if(name.rbegin(), name.rend(), IsSeparator);
    return name.rend() - split;
}

} // namespace

/// One folder below the root: its path in the disk's own case, and the names in it by their case-folded form.
struct FolderGateway::Folder {
    explicit Folder(QString folderPath) : Path(std::move(folderPath)) {}

    void ReadNames() {
        for (const FolderEntry& entry : FolderEntries(Path))
            Names.insert(entry.Name.toCaseFolded(), entry.Name);
    }

    QString Path; ///< with a trailing backslash
    QHash<QString, QString> Names;
};

FolderGateway::FolderGateway(const QString& folder) {
    Files::MakeFolders(folder);
    root_ = Paths::Real(folder);
    if (root_.isEmpty())
        throw RuntimeError(ErrorNumber::PathNotFound, u"%1: no such folder"_s.arg(Paths::ToNative(folder)));
    if (!root_.endsWith(u'\\'))
        root_ += u'\\';
    auto top = std::make_shared<Folder>(root_);
    top->ReadNames();
    folders_.insert(QString(), top);
}

FolderGateway::~FolderGateway() = default;

QString FolderGateway::RefusalOf(QStringView name) {
    if (name.isEmpty())
        return u"has no name"_s;
    if (name.size() > LongestName)
        return u"is longer than a path can be"_s;
    if (IsSeparator(name.front()))
        return u"begins at the root"_s;
    while (!name.isEmpty()) {
        const qsizetype end = std::ranges::find_if(name, IsSeparator) - name.begin();
        const QStringView component = name.first(end);
        name = name.sliced(std::min<qsizetype>(end + 1, name.size()));
        if (component.isEmpty())
            return u"holds an empty folder name"_s;
        if (QString refusal = RefusalOfComponent(component); !refusal.isEmpty())
            return refusal;
    }
    return {};
}

QString FolderGateway::RefusalOfFolder(QStringView name) {
    return std::ranges::any_of(name, IsSeparator) ? u"holds a separator"_s : RefusalOf(name);
}

bool FolderGateway::IsInside(const QString& path) const {
    const QString real = Paths::Real(path);
    return (real + u'\\').startsWith(root_) && !real.isEmpty();
}

FolderGateway::Folder& FolderGateway::FolderFor(QStringView relative) {
    const QString key = relative.toString().toCaseFolded().replace(u'/', u'\\');
    if (const auto known = folders_.constFind(key); known != folders_.constEnd())
        return **known;
    const qsizetype last = LastComponent(relative);
    Folder& parent = FolderFor(relative.first(std::max<qsizetype>(last - 1, 0)));
    const QString name = relative.sliced(last).toString();
    const QString found = parent.Names.value(name.toCaseFolded());
    auto folder = std::make_shared<Folder>(parent.Path + (found.isEmpty() ? name : found) + u'\\');
    if (found.isEmpty()) {
        Files::MakeFolderAsGiven(folder->Path);
        parent.Names.insert(name.toCaseFolded(), name);
    } else if (IsInside(folder->Path)) {
        folder->ReadNames();
    } else {
        Refuse(relative, u"leads out of its folder"_s);
    }
    return **folders_.insert(key, folder);
}

void FolderGateway::MakeFolder(const QString& name) {
    if (const QString refusal = RefusalOf(name); !refusal.isEmpty())
        Refuse(name, refusal);
    FolderFor(QStringView(name).chopped(IsSeparator(name.back()) ? 1 : 0));
}

QString FolderGateway::TargetFor(const QString& name) {
    if (const QString refusal = RefusalOf(name); !refusal.isEmpty())
        Refuse(name, refusal);
    const qsizetype last = LastComponent(name);
    Folder& folder = FolderFor(QStringView(name).first(std::max<qsizetype>(last - 1, 0)));
    const QString file = name.sliced(last);
    if (file.isEmpty())
        Refuse(name, u"is a folder"_s);
    const QString key = file.toCaseFolded();
    const auto found = folder.Names.constFind(key);
    if (found == folder.Names.constEnd()) {
        folder.Names.insert(key, file);
        return folder.Path + file;
    }
    QString path = folder.Path + *found;
    switch (Files::StandingAsGiven(path)) {
    case Files::Standing::Nothing: // a name that was handed out before
        break;
    case Files::Standing::LinkToNowhere:
        Refuse(name, u"is a link that leads nowhere"_s);
    case Files::Standing::File:
    case Files::Standing::Folder:
        if (!IsInside(path))
            Refuse(name, u"leads out of its folder"_s);
    }
    return path;
}
