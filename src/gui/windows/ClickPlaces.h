// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace tressel {

/// A label that a click works: an address. It is a stop of the tab key, is worked with Enter and the space
/// bar, and is a link to assistive technology.
class LinkLabel : public QLabel {
    Q_OBJECT

public:
    explicit LinkLabel(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The notice of a newer version in the status band: its text lies in it as a label. A stop of the tab key,
/// and a button to assistive technology, with the label's text for its name.
class NoticeBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ Text)

public:
    explicit NoticeBox(QWidget *parent = nullptr);

    /// Puts the label with the notice's text in.
    void SetLabel(QLabel *text);
    QString Text() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *label = nullptr;
};

} // namespace tressel
