// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/TextBox.h"
#include "faces/Face.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace tressel {

/// What the faces of text boxes share: the keyboard coming and going.
class TextFace : public Face {
public:
    TextFace(TextBox &control, QWidget &widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

    TextBox &Box() const { return box; }

private:
    TextBox &box;
};

/// A text box of one line.
class LineFace : public TextFace {
public:
    LineFace(TextBox &control, QLineEdit &widget);

protected:
    void Show() override;

private:
    QLineEdit &edit;
};

/// A text box of several lines.
class LinesFace : public TextFace {
public:
    LinesFace(TextBox &control, QPlainTextEdit &widget);

protected:
    void Show() override;

private:
    QString Text() const;

    QPlainTextEdit &edit;
};

} // namespace tressel
