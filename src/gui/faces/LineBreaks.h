// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// A caption for the toolkit: controls break lines with a carriage return, as language files have it.
inline QString WithLineBreaks(QString caption)
{
    return caption.replace(u'\r', u'\n');
}

} // namespace tressel
