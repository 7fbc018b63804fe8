// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/PictureBox.h"
#include "faces/FrameFace.h"

#include <QAbstractButton>

namespace tressel {

/// A field of one colour to click on, which its ground shows. It tells assistive technology what the colour
/// is for, and which one it is.
class Swatch : public QAbstractButton {
    Q_OBJECT

public:
    /// `purpose` says what the colour is for.
    Swatch(const QString &name, QString purpose);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void TellColour();

    QString purpose;
};

/// The face of a picture box that is a swatch.
class SwatchFace : public FrameFace {
public:
    SwatchFace(PictureBox &control, Swatch &widget, const FaceLooks &looks);
};

} // namespace tressel
