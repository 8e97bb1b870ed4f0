// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The toolkit's style with the family's look: what the toolkit makes by itself for message boxes, dialogs and lists is
/// drawn as the family's own controls are.
#pragma once

#include <QProxyStyle>

class FamilyStyle : public QProxyStyle {
    Q_OBJECT
public:
    FamilyStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;

    /// Message boxes carry the family's own signs.
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                     const QWidget* widget) const override;
};
