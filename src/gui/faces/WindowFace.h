// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Binder.h"
#include "faces/KeyboardPlace.h"

#include <QObject>
#include <QWidget>

namespace tressel {

class FaceUpdates;

/// The face of a form: a window with its caption, place, size, state and visibility, and through a Binder
/// the faces of its controls.
///
/// A form without a size of its own takes the window's. A form that was never moved comes up where the
/// desktop puts it.
class WindowFace : public QObject {
public:
    /// The form must outlive the face, as must `updates`; the window must live as long as the face. The
    /// title bar of a form without a close box has none, but a request from the outside (the desktop's
    /// session ends) still unloads the form.
    WindowFace(Form &form, QWidget &window, const FaceMakers &makers, FaceUpdates &updates);
    ~WindowFace() override;

    Form &ShownForm() const { return form; }
    QWidget &Window() const { return window; }
    const Binder &Faces() const { return binder; }

    /// Takes over what changed since the last time.
    void Refresh();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ShowForm();
    void ShowProperties();
    void ShowCloseBox();
    void ShowLeastSize();
    void ShowGeometry();
    void ShowState();
    void BringToFront();
    void TellSize();
    void TellGeometry();
    void TellActivation();
    void UnloadForm();

    Form &form;
    QWidget &window;
    FaceUpdates &updates;
    Binder binder;
    int shownLeft = 0;
    int shownTop = 0;
    bool shownCloseBox = true;
    bool showing = false;
    bool activationTold = false;
    KeyboardPlace keyboard{window};
};

} // namespace tressel
