// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page of three tools: text lists, listings and erasing.
QWidget *MakeTextView();

} // namespace tressel
