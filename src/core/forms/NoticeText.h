// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace tressel {

/// The terms of use and how to reach the makers, line by line.
QStringList NoticeLines();

} // namespace tressel
