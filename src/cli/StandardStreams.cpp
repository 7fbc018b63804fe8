// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "StandardStreams.h"

#include "StopRequests.h"
#include "machine/posix/Descriptor.h"
#include "machine/posix/NativePath.h"
#include "machine/posix/SystemError.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t outputAtOnce = 1 << 16;

/// A failure of a stream, which has reasons that a file has not.
Failure FailureOfStream(int error)
{
    if (error == EPIPE)
        return {NumberOfError(error), u"Nobody reads it any more"_s};
    if (error == EBADF)
        return {NumberOfError(error), u"It is closed"_s};
    return Failure(NumberOfError(error));
}

/// A pipe that is read, closed with it.
class PipeInput : public Input {
public:
    explicit PipeInput(Descriptor open)
        : pipe(std::move(open))
        , input(pipe.Number())
    {
    }

    QByteArray Read(qint64 maximum) override { return input.Read(maximum); }

private:
    Descriptor pipe;
    DescriptorInput input;
};

} // namespace

void FillClosedDescriptors()
{
    // Each for the direction that it isn't used in.
    for (const auto &[descriptor, flags] :
         {std::pair(STDIN_FILENO, O_WRONLY), {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_RDONLY}}) {
        if (fcntl(descriptor, F_GETFD) >= 0 || errno != EBADF)
            continue;
        // The lowest free number, which is this one since those below are open by now.
        if (open("/dev/null", flags) != descriptor)
            return;
    }
}

DescriptorOutput::DescriptorOutput(int number, Holding holding)
    : descriptor(number)
    , heldAtMost(holding == Holding::Back ? outputAtOnce : 0)
    , isTerminal(isatty(number) == 1)
{
}

DescriptorOutput::~DescriptorOutput()
{
    Flush();
}

void DescriptorOutput::Write(QByteArrayView bytes)
{
    if (problem)
        return;
    held.append(bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (held.size() >= heldAtMost)
        Flush();
}

void DescriptorOutput::Flush()
{
    WriteThrough(held);
    held.clear();
}

void DescriptorOutput::WriteThrough(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && !problem) {
        const ssize_t written = write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written >= 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR)
            problem = FailureOfStream(errno);
        else if (StopSignals::Noted())
            problem = Failure(FailureNumber::DeviceIoError, u"Interrupted"_s);
    }
}

bool DescriptorInput::IsTerminal() const
{
    return isatty(descriptor) == 1;
}

QByteArray DescriptorInput::Read(qint64 maximum)
{
    QByteArray bytes(maximum, Qt::Uninitialized);
    for (;;) {
        const ssize_t length = read(descriptor, bytes.data(), static_cast<size_t>(maximum));
        if (length >= 0) {
            bytes.truncate(length);
            return bytes;
        }
        if (errno != EINTR)
            throw FailureOfStream(errno);
        StopSignals().ThrowIfPending();
    }
}

std::unique_ptr<Input> StandardStreams::OpenPipe(const QString &path)
{
    const NativePath native{QStringView(path)};
    native.Demand();
    for (;;) {
        Descriptor pipe(openat(native.Folder(), native.Rest(), O_RDONLY | O_NOCTTY | O_CLOEXEC));
        if (pipe.IsOpen())
            return std::make_unique<PipeInput>(std::move(pipe));
        if (errno != EINTR)
            throw Failure(errno == ENOENT ? native.NumberOfMissingFile() : NumberOfError(errno));
        StopSignals().ThrowIfPending();
    }
}

} // namespace tressel
