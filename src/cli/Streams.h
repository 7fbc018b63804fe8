// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>
#include <optional>

namespace tressel {

/// A stream that a command writes to: standard output, standard error, or a test's memory.
class Output {
public:
    virtual ~Output() = default;

    /// Takes bytes as they are; it may hold them back until Flush. Once some couldn't be written the rest is
    /// dropped, and Problem tells why.
    virtual void Write(QByteArrayView bytes) = 0;
    virtual void Flush() = 0;
    /// Why not all of it could be written; nothing if all was.
    virtual std::optional<Failure> Problem() const = 0;
    virtual bool IsTerminal() const = 0;
};

/// A stream that a command reads.
class Input {
public:
    virtual ~Input() = default;

    /// The next bytes, at most so many; none at the end. Waits for them. Fails as OpenFile::Read does.
    virtual QByteArray Read(qint64 maximum) = 0;
    /// Whether a person types what is read.
    virtual bool IsTerminal() const { return false; }
};

/// The streams of one run of the program.
class Streams {
public:
    virtual ~Streams() = default;

    virtual Input &In() = 0;
    virtual Output &Out() = 0;
    virtual Output &Err() = 0;
    /// Opens what isn't a regular file, such as a pipe that the command line names, and waits for its other
    /// end. Fails as FileSystem::Open does.
    virtual std::unique_ptr<Input> OpenPipe(const QString &path) = 0;
};

} // namespace tressel
