// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>
#include <utility>

namespace tressel {

/// An open file or folder of the system, closed at the end of its life.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number)
        : number(number)
    {
    }
    Descriptor(Descriptor &&other) noexcept
        : number(std::exchange(other.number, -1))
    {
    }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(number, other.number);
        return *this;
    }
    ~Descriptor()
    {
        if (IsOpen())
            close(number);
    }

    bool IsOpen() const { return number >= 0; }
    /// -1 if nothing is open.
    int Number() const { return number; }
    /// Gives it to the caller, who closes it.
    int Release() { return std::exchange(number, -1); }

private:
    int number = -1;
};

} // namespace tressel
