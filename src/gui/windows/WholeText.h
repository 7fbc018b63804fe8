// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace tressel {

/// A label of as many lines as its text takes. It breaks between words, and within a word that is longer than
/// a line, so that nothing is ever cut at the side.
class WholeText : public QLabel {
public:
    WholeText();

    int heightForWidth(int width) const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tressel
