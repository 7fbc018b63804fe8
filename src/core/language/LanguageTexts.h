// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <cstdint>
#include <span>

namespace tressel {

enum class TextProperty : std::uint8_t { Caption, ToolTip };

/// Which text of a language goes where.
struct LanguageText {
    int index; ///< its number in language files
    QStringView form;
    QStringView control;
    TextProperty property;
};

/// All of them, in the order in which they are applied. Each number stands for one text of one control.
std::span<const LanguageText> LanguageTexts();

} // namespace tressel
