// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class IsButton;
class PropertyBag;

/// Stores a button's design under its stored names, some of which are spelled oddly, in their fixed order.
///
/// Kept: a caption and an icon place have two defaults each. What equals the one for writing isn't stored
/// and comes back as the one for reading: an empty caption as "isButton", IconPlace::Centre as Left.
void WriteProperties(const IsButton &button, PropertyBag &bag);

/// Takes over a stored design; what isn't stored gets its default for reading.
/// Fails with 13 for a value of the wrong kind and with 6 for an icon size beyond 16 bits.
void ReadProperties(IsButton &button, const PropertyBag &bag);

} // namespace tressel
