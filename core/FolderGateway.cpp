// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FolderGateway.h"

#include "core/CaseFolding.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QScopeGuard>
#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

/// No system takes a longer path, and each folder in a name costs as much memory as the name above it.
constexpr qsizetype LongestName = 4095;

/// A message has room for the beginning of a name that is longer than any.
[[noreturn]] void Refuse(QStringView name, const QString& reason) {
    const QString shown = name.size() > LongestName ? name.first(LongestName).toString() + u'…' : name.toString();
    throw RuntimeError(ErrorNumber::PathFileAccess, u"%1: %2"_s.arg(shown, reason));
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

bool IsForbidden(QChar character) {
    constexpr std::u16string_view forbidden = u"<>:\"|?*";
    return character < u' ' || (character <= u'|' && forbidden.find(character.unicode()) != std::u16string_view::npos);
}

QString RefusalOfComponent(QStringView component) {
    if (component == u"." || component == u"..")
        return u"leads out of its folder"_s;
    if (std::ranges::any_of(component, IsForbidden))
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

/// One folder that was looked at or made, and the names in it by their case-folded form.
struct FolderGateway::Folder {
    struct Entry {
        QString Name; ///< in the disk's own case
        std::unique_ptr<Folder> Known;
    };

    explicit Folder(Folder* above, QString name) : Above(above), Name(std::move(name)) {}

    void Take(const QStringList& names) {
        for (const QString& name : names)
            Entries.insert_or_assign(CaseFolded(name), Entry{name, nullptr});
    }

    /// Its path behind the root, with a trailing backslash, links followed; empty for the root.
    [[nodiscard]] QString Below() const {
        QStringList parts;
        for (const Folder* folder = this; folder->Above != nullptr; folder = folder->Above) {
            parts.prepend(folder->LinkedTo.value_or(folder->Name + u'\\'));
            if (folder->LinkedTo)
                break;
        }
        return parts.join(QString());
    }

    Folder* Above; ///< null for the root
    QString Name;
    std::optional<QString> LinkedTo;            ///< for a link, where it leads: a path as Below gives it
    std::unordered_map<QString, Entry> Entries; ///< mostly few
};

FolderGateway::FolderGateway(const QString& folder) {
    Files::MakeFolders(folder);
    root_ = Paths::Real(folder);
    if (root_.isEmpty())
        throw RuntimeError(ErrorNumber::PathNotFound, u"%1: no such folder"_s.arg(Paths::ToNative(folder)));
    if (!root_.endsWith(u'\\'))
        root_ += u'\\';
    Leftovers::Sweep(Paths::ToNativeAsGiven(root_));
    top_ = std::make_shared<HeldFolder>(root_);
    Forget();
}

/// What was known stands on the disk, and is looked at again when it is asked for.
void FolderGateway::Forget() {
    last_ = nullptr;
    held_.reset();
    heldFolder_ = nullptr;
    known_ = 0;
    topFolder_ = std::make_unique<Folder>(nullptr, QString());
    topFolder_->Take(top_->Names());
}

FolderGateway::~FolderGateway() = default;

QString FolderGateway::RefusalOf(QStringView name) {
    if (name.isEmpty())
        return u"has no name"_s;
    if (IsTooLong(name))
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

bool FolderGateway::IsTooLong(QStringView name) {
    return name.size() > LongestName;
}

QString FolderGateway::RefusalOfFolder(QStringView name) {
    return std::ranges::any_of(name, IsSeparator) ? u"holds a separator"_s : RefusalOf(name);
}

/// Where a path really leads, behind the root; nothing for one that leads elsewhere or nowhere.
std::optional<QString> FolderGateway::InsidePart(const QString& path) const {
    const QString real = Paths::Real(path) + u'\\';
    if (!real.startsWith(root_))
        return std::nullopt;
    return real.sliced(root_.size());
}

/// What was opened and has been removed since is opened anew: another folder may stand there.
const std::shared_ptr<const HeldFolder>& FolderGateway::Hold(const Folder& folder) {
    const bool isHeld = heldFolder_ == &folder && held_->Lives();
    if (isHeld)
        return held_;
    const bool isStep = heldFolder_ != nullptr && heldFolder_ == folder.Above && !folder.LinkedTo && held_->Lives();
    const QString below = isStep ? folder.Name : folder.Below();
    if (below.isEmpty())
        held_ = top_;
    else
        held_ = std::make_shared<HeldFolder>(isStep ? *held_ : *top_, below);
    heldFolder_ = &folder;
    return held_;
}

FolderGateway::Folder& FolderGateway::FolderFor(QStringView relative) {
    if (last_ != nullptr && lastName_ == relative)
        return *last_;
    constexpr std::size_t mostKnown = 10'000; // names that lead through many folders cost no memory for each of these
    if (known_ > mostKnown)
        Forget();
    Folder* folder = topFolder_.get();
    for (qsizetype begin = 0; begin < relative.size();) {
        const qsizetype end = std::find_if(relative.begin() + begin, relative.end(), IsSeparator) - relative.begin();
        folder = &FindOrMake(*folder, relative.sliced(begin, end - begin), relative.first(end));
        begin = end + 1;
    }
    lastName_ = relative.toString();
    last_ = folder;
    return *folder;
}

FolderGateway::Folder& FolderGateway::FindOrMake(Folder& parent, QStringView name, QStringView relative) {
    const QString key = CaseFolded(name.toString());
    const auto standing = parent.Entries.find(key);
    const bool isThere = standing != parent.Entries.end();
    if (isThere && standing->second.Known != nullptr)
        return *standing->second.Known;
    auto folder = std::make_unique<Folder>(&parent, isThere ? standing->second.Name : name.toString());
    if (isThere) {
        Find(*folder, relative);
    } else {
        const HeldFolder& above = *Hold(parent);
        above.MakeFolder(folder->Name);
        if (Made)
            Made(above.Path() + folder->Name + u'\\');
    }
    ++known_;
    Folder::Entry& entry = parent.Entries[key];
    entry = {folder->Name, std::move(folder)};
    return *entry.Known;
}

/// Looks at a folder that stands there already.
void FolderGateway::Find(Folder& folder, QStringView relative) {
    const HeldFolder& above = *Hold(*folder.Above);
    if (above.StandingOf(folder.Name) == HeldFolder::Standing::Link) {
        folder.LinkedTo = InsidePart(above.Path() + folder.Name);
        if (!folder.LinkedTo)
            Refuse(relative, u"leads out of its folder"_s);
    }
    auto forget = qScopeGuard([this] { heldFolder_ = nullptr; });
    Leftovers::Sweep(Paths::ToNativeAsGiven(Hold(folder)->Path()));
    folder.Take(Hold(folder)->Names());
    forget.dismiss();
}

void FolderGateway::MakeFolder(const QString& name) {
    if (const QString refusal = RefusalOf(name); !refusal.isEmpty())
        Refuse(name, refusal);
    FolderFor(QStringView(name).chopped(IsSeparator(name.back()) ? 1 : 0));
}

FilePlace FolderGateway::PlaceFor(const QString& name) {
    if (const QString refusal = RefusalOf(name); !refusal.isEmpty())
        Refuse(name, refusal);
    const qsizetype last = LastComponent(name);
    Folder& folder = FolderFor(QStringView(name).first(std::max<qsizetype>(last - 1, 0)));
    const QString file = name.sliced(last);
    if (file.isEmpty())
        Refuse(name, u"is a folder"_s);
    const auto [found, isNew] = folder.Entries.try_emplace(CaseFolded(file), Folder::Entry{file, nullptr});
    FilePlace place{Hold(folder), found->second.Name};
    if (isNew || place.Folder->StandingOf(place.Name) != HeldFolder::Standing::Link)
        return place;
    // What a link that comes later leads to does not matter: it is replaced itself.
    const QString path = place.Path();
    if (Files::StandingAsGiven(path) == Files::Standing::LinkToNowhere)
        Refuse(name, u"is a link that leads nowhere"_s);
    if (!InsidePart(path))
        Refuse(name, u"leads out of its folder"_s);
    return place;
}
