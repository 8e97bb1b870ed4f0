// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/RowDrag.h"

#include "platform/DragAndDrop.h"
#include "platform/Paths.h"

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr auto fileList = "text/uri-list"_L1;

bool ButtonIsDown() {
    // A Wayland compositor keeps the pointer to itself and hands the request on at the drop.
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        return false;
    return DragAndDrop::LeftButtonDown(QGuiApplication::mouseButtons().testFlag(Qt::LeftButton));
}

/// The file list that the target gets to see.
class DraggedFiles : public QMimeData {
public:
    DraggedFiles(QWidget* source, DragFiles files) : source_(source), files_(std::move(files)) {}

    [[nodiscard]] QStringList formats() const override { return {fileList}; }

    [[nodiscard]] bool hasFormat(const QString& format) const override { return format == fileList; }

    /// For a target that has asked while the button was down and may not ask again.
    void Dropped() const {
        if (promised_)
            Extract();
    }

protected:
    [[nodiscard]] QVariant retrieveData(const QString& format, QMetaType /*type*/) const override {
        if (format != fileList || source_ == nullptr)
            return {};
        if (!extracted_ && ButtonIsDown()) {
            promised_ = true;
            return AddressesOf(files_.Names());
        }
        return AddressesOf(Extract());
    }

private:
    static QByteArray AddressesOf(const QStringList& paths) {
        QByteArray lines;
        for (const QString& path : paths)
            lines += QUrl::fromLocalFile(Paths::ToNative(path)).toEncoded() + "\r\n";
        return lines;
    }

    QStringList Extract() const {
        if (!extracted_ && source_ != nullptr) {
            extracted_ = true;
            paths_ = files_.Extract();
        }
        return paths_;
    }

    QPointer<QWidget> source_;
    DragFiles files_;
    mutable QStringList paths_;
    mutable bool promised_ = false;
    mutable bool extracted_ = false;
};

/// Sees the mouse button go up before the drag itself does.
class ReleaseWatch : public QObject {
public:
    explicit ReleaseWatch(const DraggedFiles& files) : files_(&files) {}

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && files_ != nullptr)
            files_->Dropped();
        return false;
    }

private:
    QPointer<const DraggedFiles> files_;
};

} // namespace

void DragRows(QWidget* source, const QPixmap& picture, const DragFiles& files) {
    auto* const offered = new DraggedFiles(source, files);
    auto* const drag = new QDrag(source);
    drag->setMimeData(offered);
    drag->setPixmap(picture);
    ReleaseWatch watch(*offered);
    // The filter that is installed last sees an event first, and the drag installs its own when it begins.
    QTimer::singleShot(0, &watch, [&watch] { QGuiApplication::instance()->installEventFilter(&watch); });
    const QPointer<QWidget> stillThere = source;
    const Qt::DropAction action = drag->exec(Qt::CopyAction);
    if (stillThere != nullptr && (action == Qt::IgnoreAction || DragAndDrop::EndsWithTheCopy()))
        files.Ended();
}
