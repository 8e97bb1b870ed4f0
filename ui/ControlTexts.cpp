// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/ControlTexts.h"

#include "core/mTraduction.h"

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

struct MenuEntry {
    std::string_view Text;
    QString (*InUsersLanguage)();
};

constexpr std::array menuEntries{
    MenuEntry{"&Undo", [] { return GetText(u"Undo"_s); }},
    MenuEntry{"&Redo", [] { return GetText(u"Redo"_s); }},
    MenuEntry{"Cu&t", [] { return GetText(u"Cut"_s); }},
    MenuEntry{"&Copy", [] { return GetText(u"Copy"_s); }},
    MenuEntry{"&Paste", [] { return GetText(u"Paste"_s); }},
    MenuEntry{"Delete", [] { return GetText(u"Delete"_s); }},
    MenuEntry{"Select All", [] { return GetText(u"SelectAll"_s); }},
};

} // namespace

QString ControlTexts::translate(const char* context, const char* text, const char* /*disambiguation*/,
                                int /*count*/) const {
    const std::string_view control(context);
    if (control != "QLineEdit" && control != "QWidgetTextControl")
        return {};
    const auto* const entry = std::ranges::find(menuEntries, std::string_view(text), &MenuEntry::Text);
    return entry == menuEntries.end() ? QString() : entry->InUsersLanguage();
}
