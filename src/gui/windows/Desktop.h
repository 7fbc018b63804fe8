// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceMakers.h"
#include "faces/WindowFace.h"
#include "forms/Application.h"
#include "machine/DesktopMachine.h"

#include <QObject>

#include <memory>
#include <vector>

namespace tressel {

class FileHive;

/// The whole program on a desktop: the machine, the forms, and a window for each form that has one.
class Desktop {
public:
    /// Both must outlive it. The settings are read and written through the hive.
    Desktop(Program &program, SettingsHive &hive);

    /// Shows the first window.
    void Start() { application.Start(); }
    /// The system asks the program to end: everything is written back as by the user's own way out.
    void End();
    /// Tells the user in a box, after all windows, why the settings of the run couldn't be saved. Returns at
    /// once where the system ends the program or the session, which nobody may keep waiting.
    void TellUnsaved(const QString &problem);

    /// The window of a form and what ties the two; null if there is none, or none yet.
    const WindowFace *FaceOf(const QString &formName) const;

    DesktopMachine machine;
    Application application;

private:
    struct Shown {
        std::unique_ptr<QWidget> window;
        std::unique_ptr<WindowFace> face;
    };

    void MakeWindow(Form &form);
    /// The main window owns the small window of a form, which so stays before it.
    void PutBeforeMain(const Form &form);

    Program &program;
    SettingsHive &hive;
    FaceMakers makers;
    std::vector<Shown> shown;
    QObject sessionEnd; ///< hears of it before the windows do
    bool systemEnds = false;
};

/// The last thing before the process ends. What couldn't be saved is told on standard error and, if there is
/// a desktop, to its user. False if there is something.
bool SaveSettings(FileHive &hive, Desktop *desktop);

} // namespace tressel
