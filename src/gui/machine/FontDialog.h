// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Dialogs.h"

#include <QColor>
#include <QFontDialog>

class QPushButton;

namespace tressel {

/// The toolkit's font dialog with a button for the text's colour.
class FontDialog : public QFontDialog {
public:
    FontDialog(const FontChoice &font, QWidget *parent);

    FontChoice Choice() const;

private:
    void ChooseColour();
    void ShowColour();

    QColor colour;
    QPushButton *colourButton = nullptr;
};

} // namespace tressel
