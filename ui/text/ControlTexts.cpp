// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/text/ControlTexts.h"

#include "core/mTraduction.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

struct ToolkitText {
    std::string_view Text;
    QString (*InUsersLanguage)();
};

/// Entries of the menus of text boxes.
constexpr std::array entries{
    ToolkitText{"&Undo", [] { return GetText(u"Undo"_s); }},
    ToolkitText{"&Redo", [] { return GetText(u"Redo"_s); }},
    ToolkitText{"Cu&t", [] { return GetText(u"Cut"_s); }},
    ToolkitText{"&Copy", [] { return GetText(u"Copy"_s); }},
    ToolkitText{"&Paste", [] { return GetText(u"Paste"_s); }},
    ToolkitText{"Delete", [] { return GetText(u"Delete"_s); }},
    ToolkitText{"Select All", [] { return GetText(u"SelectAll"_s); }},
};

/// Keys, as menus name them.
constexpr std::array keys{
    ToolkitText{"Ctrl", [] { return GetText(u"KeyControl"_s); }},
    ToolkitText{"Ins", [] { return GetText(u"KeyInsert"_s); }},
    ToolkitText{"Del", [] { return GetText(u"KeyDelete"_s); }},
    ToolkitText{"Shift", [] { return GetText(u"KeyShift"_s); }},
};

QString Find(std::span<const ToolkitText> texts, std::string_view wanted) {
    const auto found = std::ranges::find(texts, wanted, &ToolkitText::Text);
    return found == texts.end() ? QString() : found->InUsersLanguage();
}

} // namespace

QString ControlTexts::translate(const char* context, const char* text, const char* /*disambiguation*/,
                                int /*count*/) const {
    const std::string_view asking(context);
    if (asking == "QLineEdit" || asking == "QWidgetTextControl")
        return Find(entries, text);
    return asking == "QShortcut" ? Find(keys, text) : QString();
}
