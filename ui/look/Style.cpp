// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/Style.h"

#include "ui/look/Picture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Only what the palette can't say: borders, hover and focus of the controls that take part in the theme. Exact class
// names (with a dot) keep controls that draw themselves out of it.
constexpr auto sheet = R"(
.QPushButton {
    min-width: 64px; padding: 4px 12px; color: black;
    border: 1px solid #003273; border-radius: 3px;
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #f7f7f7, stop:1 #efebe7);
}
.QPushButton:focus { border: 2px solid #6b82ef; padding: 3px 11px; }
.QPushButton:hover { border: 2px solid #ffb231; padding: 3px 11px; }
.QPushButton:pressed { background: #e0dcd6; }
.QPushButton:disabled { color: #a5a294; border: 1px solid #cec7bd; background: #f7f7ef; }
.QGroupBox { border: 1px solid #b9cdef; border-radius: 3px; margin-top: 8px; background: transparent; }
.QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; color: #003273; background: #f7f7f7; }
QToolTip { color: black; background: #ffffe7; border: 1px solid #003273; }
QProgressBar { border: 1px solid #003273; border-radius: 3px; background: white; text-align: center; }
QProgressBar::chunk { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #ffd88c, stop:1 #f28e00); }
)"_L1;

QFont FontOf(const QStringList& families, qreal points) {
    QFont font;
    font.setFamilies(families);
    font.setPointSizeF(points);
    return font;
}

/// The classes that systems have faces of their own for, which go before the application's.
constexpr std::array classesWithFaces{"QMenu",      "QMenuBar",          "QMessageBox", "QTipLabel",
                                      "QStatusBar", "QAbstractItemView", "QHeaderView", "QToolButton"};

QPalette FamilyPalette() {
    using namespace Style;
    QPalette palette(Colour::Face, Colour::FaceBright);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(243, 247, 253));
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, Colour::DisabledText);
    palette.setColor(QPalette::Highlight, Colour::Selection);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, Colour::Link);
    palette.setColor(QPalette::LinkVisited, Colour::Link);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 231));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Colour::DisabledText);
    return palette;
}

// Message boxes carry the family's own signs, and buttons no pictures.
class FamilyStyle : public QProxyStyle {
public:
    FamilyStyle() : QProxyStyle(u"Fusion"_s) {}

    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                     const QWidget* widget) const override {
        switch (which) {
        case SP_MessageBoxCritical:
            return Picture::Icon(u"critical"_s);
        case SP_MessageBoxWarning:
            return Picture::Icon(u"warning"_s);
        case SP_MessageBoxQuestion:
            return Picture::Icon(u"question"_s);
        case SP_MessageBoxInformation:
            return Picture::Icon(u"information"_s);
        default:
            return QProxyStyle::standardIcon(which, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
    }

    // The frame of a list or a text box, flush with its outer edge: on a screen of 125 or 150 % what the box holds
    // covers a part of the line that the frame was given, and two of its sides were not seen.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const qreal density = painter->deviceTransform().m11();
        if (element != PE_Frame || density == std::floor(density) ||
            qobject_cast<const QAbstractScrollArea*>(widget) == nullptr) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        const QRectF outside = option->rect;
        const qreal line = std::floor(density) / density;
        QPainterPath frame;
        frame.addRect(outside);
        frame.addRect(outside.adjusted(line, line, -line, -line));
        painter->fillPath(frame, option->palette.window().color().darker(140));
    }
};

} // namespace

QFont Style::HeadingFont(qreal points) {
    return FontOf({u"Franklin Gothic Medium"_s, u"Libre Franklin"_s, u"DejaVu Sans Condensed"_s, u"sans-serif"_s},
                  points);
}

QFont Style::TextFont(qreal points) {
    return FontOf({u"Tahoma"_s, u"DejaVu Sans"_s, u"sans-serif"_s}, points);
}

QFont Style::LinkFont(bool underlined) {
    QFont font = TextFont();
    font.setUnderline(underlined);
    return font;
}

void Style::Apply(QApplication& application) {
    QApplication::setStyle(new FamilyStyle);
    QApplication::setPalette(FamilyPalette());
    application.setStyleSheet(sheet);
    const QFont font = TextFont(); // after the style sheet, which brings the system's back
    QApplication::setFont(font);
    for (const char* name : classesWithFaces)
        QApplication::setFont(font, name);
}
