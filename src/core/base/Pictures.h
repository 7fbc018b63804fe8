// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// Prints a number through a picture made of "#" (a digit where there is one), "0" (a digit always), one
/// "." and ",": "0#", "0##", "#.00", "###.##", "###,###,###", "0".
/// A number longer than its picture is printed whole; digits behind the picture's last place are rounded,
/// half away from zero; "," between digits asks for a comma at every third one. "#" prints nothing for 0.
QString FormatPicture(double number, const QString &picture);

/// Prints a fraction as a percentage, as the user's locale writes numbers, with two decimals: 0.5 is
/// "50.00%".
QString FormatPercent(double fraction);

} // namespace tressel
