// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/FamilyStyle.h"

#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/skin/DevicePixels.h"
#include "ui/skin/Glyph.h"
#include "ui/skin/SkinPainter.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

Skin::ButtonState StateOf(const QStyleOption& option) {
    return {.Enabled = option.state.testFlag(QStyle::State_Enabled),
            .Hover = option.state.testFlag(QStyle::State_MouseOver),
            .Focus = option.state.testFlag(QStyle::State_HasFocus),
            .Pressed = option.state.testFlag(QStyle::State_Sunken)};
}

// One that is on stays pressed.
void PaintToolButton(QPainter& painter, const QStyleOption& option) {
    Skin::ButtonState state = StateOf(option);
    state.Pressed = state.Pressed || option.state.testFlag(QStyle::State_On);
    Skin::PaintFace(painter, option.rect, Skin::UserControlLook(state));
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

QColor FrameColour(const QStyleOption& option) {
    if (!option.state.testFlag(QStyle::State_Enabled))
        return Style::Colour::DisabledBorder;
    return option.state.testFlag(QStyle::State_HasFocus) ? Style::Colour::Border : Style::Colour::FieldBorder;
}

// A line along the area's edge, flush with it: what a box holds covers a part of a line that lies further in.
void PaintEdge(QPainter& painter, const QRect& area, const QColor& colour) {
    const Skin::DevicePixels pixels(painter, area);
    const int line = pixels.Line();
    painter.setClipRegion(QRegion(pixels.Area()) - QRegion(pixels.Area().adjusted(line, line, -line, -line)),
                          Qt::IntersectClip);
    painter.fillRect(pixels.Area(), colour);
}

void PaintHint(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, option.palette.toolTipBase());
    PaintEdge(painter, option.rect, Style::Colour::Border);
}

// Half of the title stands above the frame, on the ground that interrupts it.
constexpr int titleLeft = 8, titleRoom = 4, aboveFrame = 8;

void PaintGroup(QPainter& painter, const QStyleOptionGroupBox& option) {
    {
        const Skin::DevicePixels pixels(painter, option.rect.adjusted(0, aboveFrame, 0, 0));
        const qreal line = pixels.Line(), half = line / 2, reach = Skin::CornerReach * line;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Style::Colour::GroupBorder, line));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(pixels.Area()).adjusted(half, half, -half, -half), reach, reach);
    }
    painter.save();
    if (!option.text.isEmpty()) {
        const QSize text = option.fontMetrics.size(Qt::TextShowMnemonic, option.text);
        const QRect title(option.rect.topLeft() + QPoint(titleLeft, 0),
                          QSize(text.width() + 2 * titleRoom, text.height()));
        painter.fillRect(title, option.palette.window());
        painter.setPen(Style::Colour::Border);
        painter.drawText(title, Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
    }
    painter.restore();
}

void PaintArrow(QPainter& painter, const QRect& area, bool enabled) {
    const QPointF tip = QRectF(area).center() + QPointF(0, 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor& colour = enabled ? Style::Colour::Border : Style::Colour::DisabledText;
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPolygonF arrow({tip + QPointF(-3.5, -3.5), tip, tip + QPointF(3.5, -3.5)});
    painter.drawPolyline(arrow);
    painter.restore();
}

} // namespace

FamilyStyle::FamilyStyle() : QProxyStyle(u"Fusion"_s) {}

void FamilyStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* const bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_PushButton) {
        drawControl(CE_PushButtonBevel, option, painter, widget);
        drawControl(CE_PushButtonLabel, option, painter, widget);
    } else if (element == CE_PushButtonBevel) {
        Skin::PaintFace(*painter, option->rect, Skin::UserControlLook(StateOf(*option)));
    } else if (element == CE_ProgressBarGroove && bar != nullptr) {
        Skin::PaintProgress(*painter, bar->rect, bar->progress);
    } else if (element != CE_ProgressBarContents) { // the groove has all of it
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

// A list that opens is a button with an arrow. No group of the family can be ticked.
void FamilyStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
    const auto* const group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control == CC_GroupBox && group != nullptr) {
        PaintGroup(*painter, *group);
        return;
    }
    const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control != CC_ComboBox || box == nullptr || box->editable || !box->frame) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    Skin::PaintFace(*painter, box->rect, Skin::UserControlLook(StateOf(*box)));
    PaintArrow(*painter, subControlRect(CC_ComboBox, box, SC_ComboBoxArrow, widget),
               box->state.testFlag(State_Enabled));
}

void FamilyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
        PaintIndicator(*painter, *option, Skin::Mark::Tick);
    else if (element == PE_IndicatorRadioButton)
        PaintIndicator(*painter, *option, Skin::Mark::Dot);
    else if (element == PE_FrameLineEdit ||
             (element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr))
        PaintEdge(*painter, option->rect, FrameColour(*option));
    else if (element == PE_PanelButtonTool)
        PaintToolButton(*painter, *option);
    else if (element == PE_PanelTipLabel)
        PaintHint(*painter, *option);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

QRect FamilyStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                  const QWidget* widget) const {
    if (control == CC_GroupBox && part == SC_GroupBoxContents)
        return option->rect.adjusted(1, aboveFrame + 1, -1, -1);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize FamilyStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const {
    return type == CT_PushButton ? Skin::ButtonSize(contents)
                                 : QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int FamilyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
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

int FamilyStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* answer) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

QIcon FamilyStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
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
