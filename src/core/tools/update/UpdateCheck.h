// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Label.h"
#include "controls/PictureBox.h"

namespace tressel {

class Network;
class Shell;
class WorkArea;
struct ToolContext;
struct VersionBlock;

/// The look for a newer version, and the small red notice beside the status line that tells of one. It asks
/// nothing and downloads nothing: the notice opens a page in the browser.
class UpdateCheck {
public:
    UpdateCheck(const ToolContext &context, const VersionBlock &version);

    /// Fetches what the server tells and shows or hides the notice. Offline, or without a server to ask, the
    /// notice stays as it is.
    void CheckForUpdate();
    /// Opens the page with the newest version; without a server the status line says so.
    void OpenDownloadPage();

    PictureBox PicUpdate; ///< the notice of a newer version
    Label lblUpdate;

private:
    void SetFirstValues();
    void TieNotice();
    QString Address(const QString &path) const;
    void Tell(const QString &text);
    void PlaceNotice();
    void FitNotice();
    void lblUpdate_Click();

    Network &network;
    Shell &shell;
    WorkArea &area;
    const VersionBlock &version;
};

} // namespace tressel
