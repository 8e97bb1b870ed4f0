// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/Style.h"

#include "ui/skin/FamilyStyle.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QToolTip>

#include <array>

using namespace Qt::StringLiterals;

namespace {

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
    palette.setColor(QPalette::Disabled, QPalette::Base, Colour::Face);
    return palette;
}

void DressClasses() {
    const QPalette palette = FamilyPalette();
    QToolTip::setPalette(palette);
    for (const char* name : classesWithFaces)
        QApplication::setFont(Style::TextFont(), name);
    for (const char* name : classesWithColours)
        QApplication::setPalette(palette, name);
}

/// A system whose colours change, as when its high contrast is turned on, gives its own to these classes again: white
/// letters would stand on the family's white.
class ColourKeeper : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ThemeChange && watched->isWindowType())
            DressClasses();
        return QObject::eventFilter(watched, event);
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
    QApplication::setFont(TextFont());
    DressClasses();
    const QString keeper = u"colourKeeper"_s;
    if (application.findChild<QObject*>(keeper, Qt::FindDirectChildrenOnly) != nullptr)
        return;
    auto* const keeps = new ColourKeeper(&application);
    keeps->setObjectName(keeper);
    application.installEventFilter(keeps);
}
