// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/Access.h"

#include "Places.h"
#include "core/mMain.h"
#include "platform/Paths.h"
#include "tests/windows/AccessTree.h"
#include "ui/look/Style.h"
#include "ui/window/ScreenKeeper.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

bool TellsNothing(const QStringList& lines) {
    for (const QString& line : lines)
        qWarning("%s", qPrintable(line));
    return lines.isEmpty();
}

QStringList Masked(QStringList lines, const Access::Expected& expected) {
    const QString& mask = expected.Mask;
    for (QString& line : lines) {
        if (!mask.isEmpty())
            line.replace(Paths::ToNative(mask), u"WORLD"_s).replace(mask, u"WORLD"_s);
        if (const qsizetype path = line.indexOf(u"WORLD"_s); path >= 0) // as every system writes it
            line = line.first(path) + line.sliced(path).replace(u'\\', u'/');
        if (!expected.Date.isEmpty())
            line.replace(expected.Date, u"WHEN"_s);
        line.replace(mMain::VersionText(), u"VERSION"_s);
    }
    return lines;
}

/// What is only here or only there, as far as the two run alike from both ends.
QStringList Difference(const QStringList& expected, const QStringList& found) {
    qsizetype same = 0, sameBehind = 0;
    const qsizetype shorter = qMin(expected.size(), found.size());
    while (same < shorter && expected[same] == found[same])
        ++same;
    while (sameBehind < shorter - same && expected.end()[-1 - sameBehind] == found.end()[-1 - sameBehind])
        ++sameBehind;
    QStringList lines;
    for (const QString& line : expected.mid(same, expected.size() - same - sameBehind))
        lines += u"- "_s + line;
    for (const QString& line : found.mid(same, found.size() - same - sameBehind))
        lines += u"+ "_s + line;
    return lines;
}

/// What the user does something with; the parts that the toolkit makes such a control of are none.
bool IsControl(const QWidget& widget) {
    const QWidget* const parent = widget.parentWidget();
    if (!widget.isVisible() || !widget.isEnabled() || qobject_cast<const QComboBox*>(parent) != nullptr ||
        widget.inherits("QHeaderView") || widget.inherits("QComboBoxListView") ||
        widget.inherits("QToolBarExtension") || parent->inherits("QTabBar") || parent->inherits("QLineEdit"))
        return false;
    return widget.inherits("QAbstractButton") || widget.inherits("QLineEdit") || widget.inherits("QComboBox") ||
           widget.inherits("QAbstractItemView") || widget.inherits("QTextEdit") || widget.inherits("QPlainTextEdit") ||
           widget.inherits("QTabBar") || widget.inherits("QAbstractSlider") != widget.inherits("QScrollBar");
}

QString NameOf(const QWidget& widget) {
    return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
}

/// One of a group is enough: the arrow keys lead to the others.
bool IsReached(const QWidget& widget, const std::set<const QWidget*>& reached) {
    if (reached.contains(&widget) || (widget.focusProxy() != nullptr && reached.contains(widget.focusProxy())))
        return true;
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    if (button == nullptr || !button->autoExclusive())
        return false;
    const auto others = widget.parentWidget()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
    return std::any_of(others.begin(), others.end(),
                       [&](const QAbstractButton* other) { return other->autoExclusive() && reached.contains(other); });
}

/// All of a control, or of what is large a good part; of a list the row that has the keyboard.
bool IsInSight(const QWidget& widget) {
    const QSize part(80, widget.inherits("QAbstractItemView") ? 16 : 32);
    const QSize seen = widget.visibleRegion().boundingRect().size();
    return seen.boundedTo(widget.size().boundedTo(part)) == widget.size().boundedTo(part);
}

QImage Around(QWidget& window, const QWidget& widget) {
    constexpr int border = 4;
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    return window.grab(place.adjusted(-border, -border, border, border)).toImage();
}

} // namespace

void Access::Dress() {
    Style::Apply(*qApp);
    QApplication::setCursorFlashTime(0); // a cursor that is out for a moment would look as if nothing had the focus
}

bool Access::HasTree(QWidget& window, const Expected& expected) {
    const QString path = u"%1/tests/windows/%2/trees/%3.txt"_s.arg(QLatin1StringView(Places::Sources),
                                                                   QLatin1StringView(expected.Room), expected.Name);
    const QStringList found = Masked(AccessTree::Lines(window), expected);
    QFile file(path);
    if (qEnvironmentVariableIsSet("BRINDOCK_WRITE_TREES")) {
        const bool written = file.open(QIODevice::WriteOnly) && file.write((found.join(u'\n') + u'\n').toUtf8()) > 0;
        return written;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return TellsNothing({path + u" is missing; BRINDOCK_WRITE_TREES=1 writes it"_s});
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    lines.removeLast();
    const QStringList amiss = Difference(lines, found);
    return amiss.isEmpty() || TellsNothing(QStringList(path + u" expects -, the window has +"_s) + amiss);
}

bool Access::HasNames(QWidget& window) {
    return TellsNothing(AccessTree::Faults(window));
}

bool Access::IsReachedByTab(QWidget& window) {
    constexpr int most = 200;
    QStringList amiss;
    std::set<const QWidget*> reached;
    for (int step = 0; step < most; ++step) {
        QWidget* const focused = QApplication::focusWidget();
        if (focused == nullptr || reached.contains(focused))
            break;
        reached.insert(focused);
        QCoreApplication::processEvents();
        const QImage with = Around(window, *focused);
        focused->clearFocus();
        if (focused != &window && Around(window, *focused) == with) // a window of its own shows it by its frame
            amiss += u"The focus does not show: "_s + NameOf(*focused);
        focused->setFocus(Qt::TabFocusReason);
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    for (const auto* const widget : window.findChildren<QWidget*>())
        if (widget->window() == &window && IsControl(*widget) && !IsReached(*widget, reached))
            amiss += u"Not reached by Tab: "_s + NameOf(*widget);
    return TellsNothing(amiss);
}

// 1280 x 720 at twice the size.
bool Access::FitsTwiceTheSize(QWidget& window) {
    constexpr QRect screen(0, 0, 640, 360);
    ScreenKeeper::Fit(window, screen);
    QCoreApplication::processEvents();
    const bool framed = !window.windowFlags().testFlag(Qt::FramelessWindowHint);
    const QSize room = framed ? screen.size().shrunkBy(ScreenKeeper::Frame) : screen.size();
    if (window.size().boundedTo(room) != window.size())
        return TellsNothing({u"Takes %1 x %2"_s.arg(window.width()).arg(window.height())});
    QStringList amiss;
    std::set<const QWidget*> reached;
    for (QWidget* focused = QApplication::focusWidget(); focused != nullptr && !reached.contains(focused);
         focused = QApplication::focusWidget()) {
        reached.insert(focused);
        if (!IsInSight(*focused))
            amiss += u"Out of sight: "_s + NameOf(*focused);
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    return TellsNothing(amiss);
}

bool Access::IsFor(QWidget& window, const Expected& expected) {
    const bool hasTree = HasTree(window, expected);
    const bool hasNames = HasNames(window);
    const bool isReached = IsReachedByTab(window);
    return FitsTwiceTheSize(window) && hasTree && hasNames && isReached;
}
