// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Sound.h"

#include <memory>

namespace tressel {

/// Event sounds through libcanberra. The library is loaded and talked to in a thread of its own, from the
/// first sound on, so that neither a click nor the end of the program waits for it. Without the library or
/// a sound device there is silence.
class CanberraSound : public Sound {
public:
    explicit CanberraSound(const QString &library = QStringLiteral("canberra"));
    ~CanberraSound() override;
    CanberraSound(const CanberraSound &) = delete;
    CanberraSound &operator=(const CanberraSound &) = delete;

    /// A sound that isn't begun yet gives way to this one. False if the file isn't there, or once it is
    /// known that nothing can be played here.
    bool Play(const QString &file) override;

private:
    class Player;
    std::shared_ptr<Player> player;
};

} // namespace tressel
