// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/BigIcons.h"

#include "core/mMain.h"
#include "platform/Paths.h"
#include "ui/look/DrawnIcon.h"

#include <QFileIconProvider>
#include <QMimeDatabase>

using namespace Qt::StringLiterals;

namespace {

QString NameOf(FolderImage image) {
    switch (image) {
    case FolderImage::Open:
        return u"folder-open"_s;
    case FolderImage::Closed:
        return u"folder"_s;
    case FolderImage::Archive:
        break;
    }
    return u"archive"_s;
}

struct Kind {
    QLatin1StringView Picture;
    QLatin1StringView Extensions; ///< each between slashes
};

/// What the games' archives hold; the system's own database knows few of these.
constexpr std::array kinds{
    Kind{"file-picture"_L1, "/bmp/dds/dib/hdr/jpg/jpeg/pfm/png/tga/gif/"_L1},
    Kind{"file-sound"_L1, "/mp3/wav/"_L1},
    Kind{"file-model"_L1, "/w3d/w3x/ske/hrc/"_L1},
    Kind{"file-text"_L1, "/ini/inc/txt/str/csf/lua/xml/wnd/bse/asd/"_L1},
    Kind{"file-map"_L1, "/map/"_L1},
    Kind{"archive"_L1, "/big/"_L1},
};

QIcon OwnByExtension(const QString& extension) {
    for (const Kind& kind : kinds)
        if (kind.Extensions.contains(u'/' + extension + u'/'))
            return DrawnIcon::Named(kind.Picture);
    return DrawnIcon::Named(u"file"_s);
}

QIcon SystemIcon(const QString& fileName) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    if (type.isDefault())
        return {};
    const QIcon icon = QIcon::fromTheme(type.iconName());
    return icon.isNull() ? QIcon::fromTheme(type.genericIconName()) : icon;
}

} // namespace

BigIcons::BigIcons() : file_(DrawnIcon::Named(u"file"_s)), folder_(DrawnIcon::Named(u"folder"_s)) {}

QIcon BigIcons::Of(FolderImage closed, FolderImage selected) {
    return QIcon(new DrawnIcon(NameOf(closed), NameOf(selected)));
}

QIcon BigIcons::Folder(bool system) const {
    if (!system)
        return folder_;
    if (systemFolder_.isNull()) {
        systemFolder_ = QFileIconProvider().icon(QFileInfo(Paths::ToNative(mMain::ProgramFolder)));
        if (systemFolder_.isNull())
            systemFolder_ = folder_;
    }
    return systemFolder_;
}

QIcon BigIcons::ByType(const QString& fileName) const {
    const QString extension = fileName.sliced(fileName.lastIndexOf(u'.') + 1).toLower();
    if (const auto known = byExtension_.constFind(extension); known != byExtension_.cend())
        return *known;
    QIcon icon = SystemIcon(fileName);
    if (icon.isNull())
        icon = OwnByExtension(extension);
    byExtension_.insert(extension, icon);
    return icon;
}
