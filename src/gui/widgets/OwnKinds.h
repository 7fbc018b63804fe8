// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class FaceMakers;

/// Adds the faces of the hand-drawn widgets.
void AddOwnKinds(FaceMakers &makers);

} // namespace tressel
