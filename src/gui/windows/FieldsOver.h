// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QLineEdit>

namespace tressel {

/// A plate that nothing is seen of but its fields. Each lies over a label and follows it to wherever a
/// layout puts it. The labels are somewhere in what becomes the plate's parent. The tab key comes to the
/// fields before it comes to a widget beside the labels.
class FieldsOver : public QWidget {
public:
    /// As many fields as labels.
    FieldsOver(QList<QLineEdit *> fields, QList<QLabel *> labels, QWidget *next);

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Follow();
    void TakeTabPlace();

    QList<QLineEdit *> fields;
    QList<QLabel *> labels;
    QWidget *next;
};

} // namespace tressel
