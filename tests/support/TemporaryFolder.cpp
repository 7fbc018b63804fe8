// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <system_error>
#include <unistd.h>

namespace tressel {

namespace {

/// A disc in memory where there is one: tests make thousands of entries that nobody needs to keep.
QByteArray PlaceForTests()
{
    const QByteArray inMemory = "/dev/shm";
    if (!qEnvironmentVariableIsSet("TMPDIR") && access(inMemory.constData(), W_OK) == 0)
        return inMemory;
    return QByteArray::fromStdString(std::filesystem::temp_directory_path().string());
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : path(PlaceForTests() + "/tressel-test-XXXXXX")
{
    if (!mkdtemp(path.data()))
        ADD_FAILURE() << "no temporary folder: " << path.constData();
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code error;
    std::filesystem::remove_all(path.toStdString(), error);
    if (error)
        ADD_FAILURE() << "the temporary folder stays: " << path.constData() << ": " << error.message();
}

} // namespace tressel
