// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Captioned.h"
#include "controls/Colours.h"

namespace tressel {

/// A text that the user reads.
class Label : public Captioned {
public:
    Label(Form &form, const QString &name, QString caption = {});

    const QString &Caption() const override { return caption; }
    /// Raises Change when the text differs.
    void SetCaption(const QString &text) override;

    /// The colour of its text.
    ColourNumber ForeColor() const { return foreColor; }
    void SetForeColor(ColourNumber colour);

    /// Whether its text is in bold.
    bool IsBold() const { return bold; }
    void SetBold(bool isBold);

    /// The family of its font; empty for the window's own.
    const QString &FontFamily() const { return fontFamily; }
    void SetFontFamily(const QString &family);

    Event<> Change;
    Event<> Click;
    Event<> Resize; ///< the label grew or shrank with its text

    // For faces.
    void UserClicks();
    /// The width in twips that the text takes on the screen.
    void TakeWidth(int twips);

private:
    QString caption;
    QString fontFamily;
    bool bold = false;
    ColourNumber foreColor = NumberOf(SystemColour::ButtonText);
};

} // namespace tressel
