// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

class Sound {
public:
    virtual ~Sound() = default;
    /// Starts to play a sound file and returns at once. False if it can't be played: a missing file or
    /// no sound device gives silence and no message.
    virtual bool Play(const QString &file) = 0;
};

} // namespace tressel
