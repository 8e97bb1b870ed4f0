// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/LanguageChecks.h"

#include "tests/support/OwnLanguages.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// What a control needs for its text; nothing that is empty needs anything.
struct Need {
    QString Text;
    QSize Size;
};

Need OfLabel(const QLabel& label) {
    if (label.text().isEmpty() || label.inherits("ElidedLabel"))
        return {};
    if (!label.wordWrap())
        return {label.text(), label.sizeHint()};
    int longestWord = 0;
    for (const QString& word : label.text().split(QRegularExpression(u"\\s"_s)))
        longestWord = qMax(longestWord, label.fontMetrics().horizontalAdvance(word));
    return {label.text(), {longestWord, label.heightForWidth(label.width())}};
}

Need OfButton(const QAbstractButton& button) {
    if (button.text().isEmpty())
        return {};
    if (button.inherits("SideLink")) // gives way in height as long as its letters do not
        return {button.text(), {button.sizeHint().width(), button.fontMetrics().height()}};
    if (const QSize hint = button.sizeHint(); hint.isValid())
        return {button.text(), hint};
    // The heading of a side menu's group, in bold letters between its margins.
    constexpr int margins = 38;
    QFont bold = button.font();
    bold.setBold(true);
    return {button.text(), {QFontMetrics(bold).horizontalAdvance(button.text()) + margins, 0}};
}

Need OfGroupBox(const QGroupBox& box) {
    constexpr int margins = 16;
    return {box.title(), {box.fontMetrics().horizontalAdvance(box.title()) + margins, 0}};
}

/// All of it, as what does not fit moves into a menu at its end.
Need OfMenuBar(const QMenuBar& bar) {
    QStringList texts;
    int right = 0;
    for (QAction* const menu : bar.actions()) {
        texts += menu->text();
        right = qMax(right, bar.actionGeometry(menu).right() + 1);
        if (bar.actionGeometry(menu).isEmpty())
            right = QWIDGETSIZE_MAX;
    }
    return {texts.join(u' '), {right, 0}};
}

/// Its widest entry.
Need OfComboBox(const QComboBox& box) {
    return {box.currentText(), {box.sizeHint().width(), 0}};
}

/// All its captions side by side. Where they do not fit they are shortened, or scrolled.
Need OfTabBar(const QTabBar& bar) {
    constexpr int margins = 4;
    QStringList texts;
    int high = 0;
    for (int tab = 0; tab < bar.count(); ++tab) {
        texts += bar.tabText(tab);
        high = qMax(high, bar.fontMetrics().size(Qt::TextShowMnemonic, bar.tabText(tab)).height() + margins);
    }
    return {texts.join(u' '), {bar.sizeHint().width(), high}};
}

Need OfWidget(const QWidget& widget) {
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        return OfLabel(*label);
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
        return OfButton(*button);
    if (const auto* const groupBox = qobject_cast<const QGroupBox*>(&widget))
        return OfGroupBox(*groupBox);
    if (const auto* const menuBar = qobject_cast<const QMenuBar*>(&widget))
        return OfMenuBar(*menuBar);
    if (const auto* const comboBox = qobject_cast<const QComboBox*>(&widget))
        return OfComboBox(*comboBox);
    if (const auto* const tabBar = qobject_cast<const QTabBar*>(&widget))
        return OfTabBar(*tabBar);
    return {};
}

QString Line(const QWidget& widget, const Need& need, const QSize& has) {
    const QString name =
        widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
    const auto sized = [](const QSize& size) { return u"%1 x %2"_s.arg(size.width()).arg(size.height()); };
    return name + u" needs "_s + sized(need.Size) + u" and has "_s + sized(has) + u": "_s + need.Text;
}

QStringList CutColumns(const QHeaderView& header) {
    QStringList cut;
    for (int column = 0; column < header.count(); ++column) {
        const QString caption = header.model()->headerData(column, header.orientation()).toString();
        const Need need{caption, {header.sectionSizeHint(column), 0}};
        if (!header.isSectionHidden(column) && header.sectionSize(column) < need.Size.width())
            cut += Line(header, need, {header.sectionSize(column), header.height()});
    }
    return cut;
}

QStringList EntriesWithoutLetter(const QList<QAction*>& entries) {
    QStringList amiss;
    QString taken;
    for (const QAction* const entry : entries) {
        const qsizetype mark = entry->text().indexOf(u'&');
        if (entry->isSeparator())
            continue;
        if (mark < 0 || taken.contains(entry->text()[mark + 1], Qt::CaseInsensitive))
            amiss += u"No letter of its own: "_s + entry->text();
        else
            taken += entry->text()[mark + 1];
    }
    return amiss;
}

bool TellsNothing(const QStringList& lines) {
    for (const QString& line : lines)
        qWarning("%s", qPrintable(line));
    return lines.isEmpty();
}

} // namespace

bool AllTextsHaveRoom(const QWidget& window) {
    QStringList cut;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        if (const auto* const header = qobject_cast<const QHeaderView*>(widget)) {
            cut += CutColumns(*header);
            continue;
        }
        const Need need = OfWidget(*widget);
        if (need.Text.isEmpty())
            continue;
        const QSize seen = widget->geometry().intersected(widget->parentWidget()->rect()).size();
        if (seen.width() < need.Size.width() || seen.height() < need.Size.height())
            cut += Line(*widget, need, seen);
    }
    return TellsNothing(cut);
}

bool AllEntriesHaveLetters(const QWidget& window) {
    QStringList amiss;
    for (const QMenuBar* const bar : window.findChildren<QMenuBar*>())
        amiss += EntriesWithoutLetter(bar->actions());
    for (const QMenu* const menu : window.findChildren<QMenu*>())
        amiss += EntriesWithoutLetter(menu->actions());
    return TellsNothing(amiss);
}

void AddEachLanguage() {
    QTest::addColumn<QString>("language");
    for (const QString& name : OwnLanguages::Names())
        QTest::newRow(qPrintable(name)) << name;
}
