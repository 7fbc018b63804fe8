// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Streams.h"

#include <string>

namespace tressel {

/// Opens /dev/null in place of each of the descriptors 0 to 2 that is closed, so that no file of ours gets
/// its number and no message lands there. What is read from such a one or written to it still fails.
void FillClosedDescriptors();

/// A descriptor that is written to, through a buffer if it isn't standard error.
class DescriptorOutput : public Output {
public:
    enum class Holding { Back, Nothing };

    /// The descriptor stays the caller's.
    DescriptorOutput(int descriptor, Holding holding);
    ~DescriptorOutput() override;
    DescriptorOutput(const DescriptorOutput &) = delete;
    DescriptorOutput &operator=(const DescriptorOutput &) = delete;

    void Write(QByteArrayView bytes) override;
    void Flush() override;
    std::optional<Failure> Problem() const override { return problem; }
    bool IsTerminal() const override { return isTerminal; }

private:
    void WriteThrough(QByteArrayView bytes);

    int descriptor;
    std::size_t heldAtMost;
    bool isTerminal;
    std::string held;
    std::optional<Failure> problem;
};

/// A descriptor that is read.
class DescriptorInput : public Input {
public:
    explicit DescriptorInput(int descriptor)
        : descriptor(descriptor)
    {
    }

    QByteArray Read(qint64 maximum) override;
    bool IsTerminal() const override;

private:
    int descriptor;
};

/// The descriptors 0, 1 and 2.
class StandardStreams : public Streams {
public:
    Input &In() override { return in; }
    Output &Out() override { return out; }
    Output &Err() override { return err; }
    std::unique_ptr<Input> OpenPipe(const QString &path) override;

private:
    DescriptorInput in{0};
    DescriptorOutput out{1, DescriptorOutput::Holding::Back};
    DescriptorOutput err{2, DescriptorOutput::Holding::Nothing};
};

} // namespace tressel
