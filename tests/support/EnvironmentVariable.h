// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace tressel {

/// Another value for a variable of the environment, as long as this lives.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char *name, const QByteArray &value)
        : name(name)
        , wasSet(qEnvironmentVariableIsSet(name))
        , before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~EnvironmentVariable()
    {
        if (wasSet)
            qputenv(name, before);
        else
            qunsetenv(name);
    }
    EnvironmentVariable(const EnvironmentVariable &) = delete;
    EnvironmentVariable &operator=(const EnvironmentVariable &) = delete;

private:
    const char *name;
    bool wasSet;
    QByteArray before;
};

} // namespace tressel
