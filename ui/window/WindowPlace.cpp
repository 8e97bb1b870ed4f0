// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/WindowPlace.h"

#include "core/LastTime.h"
#include "ui/list/RowListView.h"
#include "ui/splitter/SplitterBox.h"

#include <QEvent>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QString NameOf(const QScreen& screen) {
    return u"%1 %2x%3"_s.arg(screen.name()).arg(screen.size().width()).arg(screen.size().height());
}

/// The screen that the window was last on, where it is there; otherwise the one that it comes up on.
QString ScreenFor(const QWidget& window, const QString& last) {
    for (const QScreen* screen : QGuiApplication::screens())
        if (NameOf(*screen) == last)
            return last;
    return window.screen() == nullptr ? QString() : NameOf(*window.screen());
}

QJsonArray Numbers(const QRect& place) {
    return {place.x(), place.y(), place.width(), place.height()};
}

QRect PlaceFrom(const QJsonArray& numbers) {
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(), numbers.at(3).toInt()};
}

} // namespace

WindowPlace::WindowPlace(QWidget& window) : QObject(&window), window_(window) {
    window.installEventFilter(this);
}

void WindowPlace::Remember(QWidget& window) {
    new WindowPlace(window); // the window's own
}

// Before the window is shown, so that what looks after all windows finds it in its place.
bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish)
        Restore();
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        Save();
    return QObject::eventFilter(watched, event);
}

void WindowPlace::Restore() {
    const QJsonObject kept = LastTime::Of(window_.objectName()).toObject();
    const QJsonObject here = kept.value(ScreenFor(window_, kept.value("screen"_L1).toString())).toObject();
    if (const QRect place = PlaceFrom(here.value("place"_L1).toArray()); place.isValid())
        window_.setGeometry(place);
    if (here.value("maximised"_L1).toBool())
        window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
    const QJsonObject splitters = here.value("splitters"_L1).toObject();
    for (SplitterBox* box : window_.findChildren<SplitterBox*>())
        if (const int position = splitters.value(box->objectName()).toInt(); position > 0)
            box->SetPosition(position);
    const QJsonObject columns = here.value("columns"_L1).toObject();
    for (RowListView* list : window_.findChildren<RowListView*>()) {
        std::vector<int> widths;
        for (const auto& width : columns.value(list->objectName()).toArray())
            widths.push_back(width.toInt());
        list->SetUserWidths(widths);
    }
}

void WindowPlace::Save() {
    if (window_.screen() == nullptr)
        return;
    const QString screen = NameOf(*window_.screen());
    QJsonObject kept = LastTime::Of(window_.objectName()).toObject();
    QJsonObject here = kept.value(screen).toObject();
    const bool maximised = window_.isMaximized();
    here.insert(u"maximised"_s, maximised);
    if (!maximised)
        here.insert(u"place"_s, Numbers(window_.geometry()));
    QJsonObject splitters = here.value("splitters"_L1).toObject();
    for (const SplitterBox* box : window_.findChildren<SplitterBox*>())
        splitters.insert(box->objectName(), box->Position());
    here.insert(u"splitters"_s, splitters);
    QJsonObject columns = here.value("columns"_L1).toObject();
    for (const RowListView* list : window_.findChildren<RowListView*>()) {
        QJsonArray widths;
        for (const int width : list->UserWidths())
            widths.append(width);
        if (!widths.isEmpty())
            columns.insert(list->objectName(), widths);
    }
    here.insert(u"columns"_s, columns);
    kept.insert(u"screen"_s, screen);
    kept.insert(screen, here);
    LastTime::Keep(window_.objectName(), kept);
}
