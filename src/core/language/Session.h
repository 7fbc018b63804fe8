// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

namespace tressel {

/// What the tools share for as long as the program runs.
struct Session {
    QString DestinationPath; ///< the folder to create in, taken from the path row by each run
    std::int32_t RunNumber = 1; ///< suffix for a folder that already exists
    QString LastFixedName; ///< the latest result of FixFolderName; some rules rely on its staying
    QString ListFile; ///< the list text file of the session, empty until one was picked or saved
    QString ReportFile; ///< the latest listing report
    QString AppTitle; ///< title of the error box
    QString CurrentFolder = QStringLiteral("."); ///< where names without a folder are; a split leaves its own
    QString OlderKey; ///< the older product's key in the settings
    QString NoticeText; ///< terms of use

    // Which source last filled the list: at most one is true.
    bool ListFromReport = false;
    bool ListFromTextFile = false;
    bool ListFromFileList = false;

    bool UpdateLoading = false; ///< kept: nothing ever sets it
};

} // namespace tressel
