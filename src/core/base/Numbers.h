// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <variant>

namespace tressel {

/// A value as the settings store gives it back: text or a 32-bit number. The reader gets what is
/// stored, whatever kind it expects, and converts it with the functions below.
using Value = std::variant<QString, std::int32_t>;

/// The number that a text stands for: blanks around it are ignored, "True" is -1 and "False" 0,
/// "&H" starts a hexadecimal number. Fails with 13 for a text that is no number, the empty one included.
double ToNumber(const QString &text);
double ToNumber(const Value &value);

/// True for a text that ToNumber takes, but for "True" and "False", which no person types for a number.
bool IsNumeric(const QString &text);

/// A whole number in 16 bits, rounded half to even. Fails with 6 beyond the 16 bits and with 13 for a
/// text that is no number.
std::int16_t ToInt16(double number);
std::int16_t ToInt16(const QString &text);
std::int16_t ToInt16(const Value &value);

/// The same in 32 bits.
std::int32_t ToInt32(double number);
std::int32_t ToInt32(const QString &text);
std::int32_t ToInt32(const Value &value);

/// "True" and "False" in any case, or any number, of which 0 alone is false. Fails with 13 for another text.
bool ToBoolean(const QString &text);
bool ToBoolean(const Value &value);

/// The text of a value; a number prints as a plain decimal.
QString ToText(const Value &value);

/// The number at the head of a text, 0 where there is none. Blanks are skipped, nothing fails.
double LeadingNumber(const QString &text);

} // namespace tressel
