// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// The licence under which the program is given away, paragraph by paragraph with an empty line between.
QString LicenceText();

} // namespace tressel
