// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

namespace tressel {

/// Where the lines of a report go: to a file as they are, ended by CR LF, or to standard output with the
/// line ends that other programs expect there.
class ReportOutput {
public:
    /// To standard output if there is no file.
    explicit ReportOutput(std::unique_ptr<OpenFile> file);

    /// Whole lines. Fails as OpenFile::Write does, and every time once it has failed.
    void Write(const QByteArray &lines);
    /// Hands over what is still held back.
    void Finish();
    /// Why not all of it could be written; nothing if all was.
    const std::optional<Failure> &Problem() const { return problem; }

private:
    template <typename Step> void Noting(Step &&step);

    std::unique_ptr<OpenFile> file;
    std::optional<Failure> problem;
};

} // namespace tressel
