// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/AccessTree.h"

#include <QAccessible>
#include <QAction>
#include <QMetaEnum>
#include <QWidget>

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array containers{QAccessible::Client, QAccessible::Pane,     QAccessible::LayeredPane,
                                QAccessible::Border, QAccessible::Grouping, QAccessible::NoRole,
                                QAccessible::Window, QAccessible::Splitter};
constexpr std::array named{QAccessible::PushButton, QAccessible::CheckBox,     QAccessible::RadioButton,
                           QAccessible::ComboBox,   QAccessible::EditableText, QAccessible::List,
                           QAccessible::Tree,       QAccessible::Table,        QAccessible::PageTab,
                           QAccessible::MenuItem,   QAccessible::Slider,       QAccessible::Link,
                           QAccessible::Dialog,     QAccessible::StatusBar,    QAccessible::ProgressBar,
                           QAccessible::Graphic,    QAccessible::ButtonMenu,   QAccessible::SpinBox};
/// For the mouse, and what it does is done by keys elsewhere.
constexpr std::array unspoken{QAccessible::ScrollBar, QAccessible::Grip};
constexpr std::array lists{QAccessible::List, QAccessible::Tree, QAccessible::Table};

/// An element that is told, with those that it holds.
struct Element {
    QAccessibleInterface* Interface = nullptr;
    std::vector<Element> Children;
};

template <typename Roles>
bool IsOne(const QAccessibleInterface& element, const Roles& roles) {
    return std::ranges::find(roles, element.role()) != roles.end();
}

QString Text(QAccessibleInterface& element, QAccessible::Text which) {
    return element.text(which).trimmed();
}

/// A box with a list is told by its label, whatever the system makes of its name.
QString NameOf(QAccessibleInterface& element) {
    if (element.role() != QAccessible::ComboBox)
        return Text(element, QAccessible::Name);
    for (const auto& [label, relation] : element.relations(QAccessible::Label))
        return Text(*label, QAccessible::Name);
    return element.object()->property("accessibleName").toString();
}

/// Entries of a menu that is closed are as much there as the menu.
bool IsThere(QAccessibleInterface& element) {
    if (const auto* const action = qobject_cast<const QAction*>(element.object()))
        return action->isVisible();
    if (element.role() == QAccessible::PopupMenu)
        return true;
    const bool isMute = element.role() == QAccessible::StaticText && NameOf(element).isEmpty();
    return element.isValid() && !element.state().invisible && !isMute && !IsOne(element, unspoken);
}

void Collect(QAccessibleInterface& element, std::vector<Element>& into) {
    if (!IsThere(element))
        return;
    Element told{&element, {}};
    const bool isPart = NameOf(element).isEmpty() && IsOne(element, containers);
    std::vector<Element>& below = isPart ? into : told.Children;
    // What a list holds is told by its rows, what a box with a list holds by its value.
    if (!IsOne(element, lists) && element.role() != QAccessible::ComboBox)
        for (int child = 0; child < element.childCount(); ++child)
            if (auto* const inner = element.child(child))
                Collect(*inner, below);
    if (!isPart)
        into.push_back(std::move(told));
}

QString States(const QAccessible::State& state, QAccessible::Role role) {
    QStringList states;
    if (state.disabled)
        states += u"disabled"_s;
    if (state.checkable)
        states += state.checked ? u"checked"_s : u"not checked"_s;
    if (state.expandable && role != QAccessible::ComboBox)
        states += state.expanded ? u"expanded"_s : u"collapsed"_s;
    if (state.readOnly && role == QAccessible::EditableText)
        states += u"read only"_s;
    if (state.passwordEdit)
        states += u"hidden letters"_s;
    return states.isEmpty() ? QString() : u", "_s + states.join(u", "_s);
}

QString OneLine(QString text) {
    return text.replace(u'\n', u"\\n"_s);
}

QString Line(QAccessibleInterface& element) {
    QString line = QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(element.role()));
    if (const QString name = NameOf(element); !name.isEmpty())
        line += u" \"%1\""_s.arg(name);
    if (const QString value = Text(element, QAccessible::Value); !value.isEmpty() && value != NameOf(element))
        line += u" = \"%1\""_s.arg(value);
    if (const QString description = Text(element, QAccessible::Description); !description.isEmpty())
        line += u" (%1)"_s.arg(description);
    return OneLine(line) + States(element.state(), element.role());
}

QStringList RowsOf(QAccessibleInterface& list, const QString& indent) {
    constexpr int most = 12;
    QStringList lines;
    QAccessibleTableInterface* const table = list.tableInterface();
    if (table == nullptr)
        return lines;
    QStringList captions;
    for (int column = 0; column < table->columnCount(); ++column)
        captions += table->columnDescription(column);
    if (captions != QStringList{u"1"_s}) // the number of the column of what has no captions
        lines += indent + u"columns: "_s + captions.join(u" | "_s);
    for (int row = 0; row < std::min(most, table->rowCount()); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column)
            if (QAccessibleInterface* const cell = table->cellAt(row, column))
                cells += NameOf(*cell) + States(cell->state(), cell->role());
        lines += indent + u"row: "_s + OneLine(cells.join(u" | "_s)).trimmed();
    }
    return lines;
}

void Write(const std::vector<Element>& elements, int depth, QStringList& lines) {
    const QString indent(qsizetype{2} * depth, u' ');
    for (const Element& element : elements) {
        lines += indent + Line(*element.Interface);
        if (IsOne(*element.Interface, lists))
            lines += RowsOf(*element.Interface, indent + u"  "_s);
        Write(element.Children, depth + 1, lines);
    }
}

std::vector<Element> TreeOf(QWidget& window) {
    QAccessible::setActive(true);
    std::vector<Element> elements;
    if (QAccessibleInterface* const top = QAccessible::queryAccessibleInterface(&window))
        Collect(*top, elements);
    return elements;
}

/// As it is spoken: without what a label has behind its words.
QString Spoken(QAccessibleInterface& element) {
    QString name = NameOf(element);
    while (name.endsWith(u':') || name.endsWith(u' ') || name.endsWith(u'\u00A0'))
        name.chop(1);
    return name;
}

bool IsLabelOf(QAccessibleInterface& label, QAccessibleInterface& control) {
    const auto labelled = label.relations(QAccessible::Labelled);
    return std::any_of(labelled.begin(), labelled.end(),
                       [&](const auto& relation) { return relation.first->object() == control.object(); });
}

QStringList FaultsBetween(QAccessibleInterface& one, QAccessibleInterface& other) {
    if (Spoken(one).isEmpty() || Spoken(one) != Spoken(other) || one.role() == QAccessible::Separator)
        return {};
    if (one.role() == other.role())
        return {u"Twice among its siblings: "_s + Line(one)};
    const bool isRead = one.role() == QAccessible::StaticText && !IsLabelOf(one, other);
    return isRead ? QStringList(u"Read twice: "_s + Line(one) + u" and "_s + Line(other)) : QStringList();
}

void Look(const std::vector<Element>& elements, QStringList& faults) {
    for (auto element = elements.begin(); element != elements.end(); ++element) {
        QAccessibleInterface& one = *element->Interface;
        if (IsOne(one, named) && NameOf(one).isEmpty())
            faults += u"Without a name: "_s + Line(one) + u' ' +
                      (one.object() == nullptr ? QString() : one.object()->objectName());
        if (!NameOf(one).isEmpty() && NameOf(one) == Text(one, QAccessible::Description))
            faults += u"Read twice: "_s + Line(one);
        for (auto other = elements.begin(); other != elements.end(); ++other)
            if (other > element || (other < element && one.role() != other->Interface->role()))
                faults += FaultsBetween(one, *other->Interface);
        Look(element->Children, faults);
    }
}

} // namespace

QStringList AccessTree::Lines(QWidget& window) {
    QStringList lines;
    Write(TreeOf(window), 0, lines);
    return lines;
}

QStringList AccessTree::Faults(QWidget& window) {
    QStringList faults;
    Look(TreeOf(window), faults);
    faults.removeDuplicates();
    return faults;
}
