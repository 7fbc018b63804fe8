// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <system_error>

namespace tressel {

TemporaryFolder::TemporaryFolder()
    : path(QByteArray::fromStdString(std::filesystem::temp_directory_path().string())
           + "/tressel-test-XXXXXX")
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
