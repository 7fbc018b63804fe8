// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page of numbered series: their place, their names and their numbers.
QWidget *MakeNumberedView();

} // namespace tressel
