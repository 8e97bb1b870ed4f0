// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/Style.h"

#include "ui/look/Picture.h"
#include "ui/skin/Glyph.h"
#include "ui/skin/SkinPainter.h"

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

// Only what neither the palette can say nor the skin draws.
constexpr auto sheet = R"(
.QGroupBox { border: 1px solid #b9cdef; border-radius: 3px; margin-top: 8px; background: transparent; }
.QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; color: #003273; background: #f7f7f7; }
QToolTip { color: black; background: #ffffe7; border: 1px solid #003273; }
)"_L1;

QFont FontOf(const QStringList& families, qreal points) {
    QFont font;
    font.setFamilies(families);
    font.setPointSizeF(points);
    return font;
}

/// The classes that systems have faces or colours of their own for, which go before the application's.
constexpr std::array classesWithFaces{"QMenu",      "QMenuBar",          "QMessageBox", "QTipLabel",
                                      "QStatusBar", "QAbstractItemView", "QHeaderView", "QToolButton"};
constexpr std::array classesWithColours{"QAbstractButton", "QAbstractItemView", "QCheckBox",    "QComboBox",
                                        "QGroupBox",       "QHeaderView",       "QLabel",       "QLineEdit",
                                        "QMenu",           "QMenuBar",          "QMessageBox",  "QMessageBoxLabel",
                                        "QProgressBar",    "QPushButton",       "QRadioButton", "QTabBar",
                                        "QTextControl",    "QTextEdit",         "QToolButton"};

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

Skin::ButtonState StateOf(const QStyleOption& option) {
    return {.Enabled = option.state.testFlag(QStyle::State_Enabled),
            .Hover = option.state.testFlag(QStyle::State_MouseOver),
            .Focus = option.state.testFlag(QStyle::State_HasFocus),
            .Pressed = option.state.testFlag(QStyle::State_Sunken)};
}

void PaintIndicator(QPainter& painter, const QStyleOption& option, Skin::Mark mark) {
    Skin::Ticked ticked = Skin::Ticked::No;
    if (option.state.testFlag(QStyle::State_NoChange))
        ticked = Skin::Ticked::Partly;
    else if (option.state.testFlag(QStyle::State_On))
        ticked = Skin::Ticked::Yes;
    const QPoint place(option.rect.x(), option.rect.y() + Skin::GlyphTop(option.rect.height()));
    Skin::PaintGlyph(painter, place, mark, StateOf(option), ticked);
}

// Message boxes carry the family's own signs, buttons no pictures, and what the toolkit makes by itself for its dialogs
// and lists looks as the family's own controls do.
class FamilyStyle : public QProxyStyle {
public:
    FamilyStyle() : QProxyStyle(u"Fusion"_s) {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* const bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
        if (element == CE_PushButton) {
            drawControl(CE_PushButtonBevel, option, painter, widget);
            drawControl(CE_PushButtonLabel, option, painter, widget);
        } else if (element == CE_PushButtonBevel) {
            Skin::PaintFace(*painter, option->rect, Skin::CommandButtonLook(StateOf(*option)));
        } else if (element == CE_ProgressBarGroove && bar != nullptr) {
            Skin::PaintProgress(*painter, bar->rect, bar->progress);
        } else if (element != CE_ProgressBarContents) {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        return type == CT_PushButton ? Skin::ButtonSize(contents)
                                     : QProxyStyle::sizeFromContents(type, option, contents, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return Skin::GlyphSize;
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return Skin::GlyphGap;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

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

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const qreal density = painter->deviceTransform().m11();
        if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
            PaintIndicator(*painter, *option, Skin::Mark::Tick);
        else if (element == PE_IndicatorRadioButton)
            PaintIndicator(*painter, *option, Skin::Mark::Dot);
        else if (element == PE_Frame && density != std::floor(density) &&
                 qobject_cast<const QAbstractScrollArea*>(widget) != nullptr)
            PaintFlushFrame(*option, *painter);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

private:
    // The frame of a list or a text box, flush with its outer edge: on a screen of 125 or 150 % what the box holds
    // covers a part of the line that the frame was given, and two of its sides were not seen.
    static void PaintFlushFrame(const QStyleOption& option, QPainter& painter) {
        const qreal density = painter.deviceTransform().m11();
        const QRectF outside = option.rect;
        const qreal line = std::floor(density) / density;
        QPainterPath frame;
        frame.addRect(outside);
        frame.addRect(outside.adjusted(line, line, -line, -line));
        painter.fillPath(frame, option.palette.window().color().darker(140));
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
    const QPalette palette = FamilyPalette();
    QApplication::setPalette(palette);
    application.setStyleSheet(sheet);
    const QFont font = TextFont(); // after the style sheet, which brings the system's back
    QApplication::setFont(font);
    for (const char* name : classesWithFaces)
        QApplication::setFont(font, name);
    for (const char* name : classesWithColours)
        QApplication::setPalette(palette, name);
}
