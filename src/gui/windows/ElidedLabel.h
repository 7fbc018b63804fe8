// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace tressel {

/// A label of one line. Where its text doesn't fit it ends in an ellipsis, and the whole is the tool tip.
class ElidedLabel : public QLabel {
public:
    /// What is shown of the text.
    virtual QString ShownText() const;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Paints the whole text as any label does.
    void PaintWhole(QPaintEvent *event);
};

/// The same for a caption, which keeps its line breaks and gives way to a field beside it only where it is
/// long.
class CaptionLabel : public ElidedLabel {
public:
    QString ShownText() const override;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int Flags() const;
};

} // namespace tressel
