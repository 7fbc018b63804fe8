// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

namespace tressel {

/// The user's locale for as long as this lives.
class UserLocale {
public:
    explicit UserLocale(const QLocale &locale) { QLocale::setDefault(locale); }
    ~UserLocale() { QLocale::setDefault(before); }
    UserLocale(const UserLocale &) = delete;
    UserLocale &operator=(const UserLocale &) = delete;

private:
    QLocale before;
};

} // namespace tressel
