// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page that cuts files into parts and joins them.
QWidget *MakeSplitterView();

} // namespace tressel
