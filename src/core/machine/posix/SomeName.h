// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace tressel {

/// A name for the time being: eight and three characters, which fit wherever any other name does.
QByteArray SomeName();

} // namespace tressel
