// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/HiveTree.h"
#include "support/Journal.h"
#include "support/MemoryProgram.h"
#include "support/TemporaryFolder.h"
#include "windows/Desktop.h"

#include <QTest>

namespace tressel {

/// The whole program on the real disc, in a folder of its own, with settings that last as long as the
/// stage. It starts with the main window unless it is told otherwise.
class DesktopStage {
public:
    DesktopStage();

    /// Writes a setting before the start.
    void Put(const KeyEntry &key, const QString &text);
    /// Shows the first window and lets it come to rest.
    void Start();
    /// Lets what is pending happen, and the windows show it.
    void Settle();

    MainForm &Form() { return desktop->application.frmMain(); }
    const WindowFace &MainFace() const { return *desktop->FaceOf(QStringLiteral("frmMain")); }
    QWidget &Window() const { return MainFace().Window(); }
    /// The face of a control of the main form.
    template <typename Widget> Widget &Face(const QString &name) const
    {
        auto *widget = Window().findChild<Widget *>(name);
        if (!widget)
            qFatal("There is no %s of that kind.", qPrintable(name));
        return *widget;
    }
    /// Opens an entry of the side bar.
    void OpenEntry(int number);

    /// Path of something in the stage's folder.
    QString Place(const QString &name) const { return folder.Path() + u'/' + name; }

    Journal journal;
    MemoryProgram program{journal};
    MemorySettingsHive hive;

private:
    void PutLanguages();

    TemporaryFolder folder;

public:
    std::unique_ptr<Desktop> desktop;
};

} // namespace tressel
