// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/FontFace.h"

#include <QFont>

namespace tressel {

QFont ToFont(const FontFace &face);
FontFace ToFontFace(const QFont &font);

} // namespace tressel
