// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/text/Localisation.h"

#include "core/mTraduction.h"
#include "platform/RuntimeError.h"

#include <QMetaProperty>
#include <QWidget>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// What shows a caption and what holds a text, in the order of the two assignments. A control has few of them, and the
// assignments that it refuses are passed over.
constexpr std::array<const char*, 2> captions{"Caption", "title"};
constexpr std::array<const char*, 3> texts{"text", "plainText", "currentText"};

void Assign(QObject* control, const char* property, const QString& text) {
    const QMetaObject* about = control->metaObject();
    const QMetaProperty found = about->property(about->indexOfProperty(property));
    if (found.isValid() && found.isWritable())
        Ignoring([&] { found.write(control, text); });
}

QString TagOf(const QObject* control) {
    return control->property("Tag").toString();
}

} // namespace

QString mTraduction::DisplayText(const QString& text) {
    return QString(text).replace(u"\r\n"_s, u"\n"_s);
}

void mTraduction::ApplyLanguage(QWidget* window) {
    for (QObject* control : window->findChildren<QObject*>()) {
        const QString tag = TagOf(control);
        if (tag.isEmpty())
            continue;
        const QString text = DisplayText(GetText(tag));
        for (const char* property : captions)
            Assign(control, property, text);
        for (const char* property : texts)
            Assign(control, property, text);
    }
    if (const QString tag = TagOf(window); !tag.isEmpty())
        window->setWindowTitle(DisplayText(GetText(tag)));
}
