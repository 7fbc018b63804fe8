// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/FieldsOver.h"

#include <QEvent>

#include <utility>

namespace tressel {

FieldsOver::FieldsOver(QList<QLineEdit *> inFront, QList<QLabel *> below, QWidget *nextStop)
    : fields(std::move(inFront))
    , labels(std::move(below))
    , next(nextStop)
{
    for (qsizetype place = 0; place < labels.size(); ++place) {
        fields[place]->setParent(this);
        labels[place]->installEventFilter(this);
    }
}

void FieldsOver::showEvent(QShowEvent *event)
{
    Follow();
    TakeTabPlace();
    QWidget::showEvent(event);
}

bool FieldsOver::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        Follow();
    return QWidget::eventFilter(watched, event);
}

void FieldsOver::Follow()
{
    if (!parentWidget())
        return;
    const auto place = [this](const QLabel &label) {
        return QRect(label.mapTo(parentWidget(), QPoint()), label.size());
    };
    QRect all;
    for (const QLabel *label : std::as_const(labels))
        all |= place(*label);
    setGeometry(all);
    for (qsizetype each = 0; each < fields.size(); ++each) {
        const QRect room = place(*labels[each]).translated(-all.topLeft());
        const int height = fields[each]->sizeHint().height();
        fields[each]->setGeometry(room.x(), room.center().y() - height / 2, room.width(), height);
    }
}

void FieldsOver::TakeTabPlace()
{
    QWidget *before = next->previousInFocusChain();
    while (before->focusPolicy() == Qt::NoFocus)
        before = before->previousInFocusChain();
    if (before == fields.last())
        return;
    for (QLineEdit *field : std::as_const(fields)) {
        setTabOrder(before, field);
        before = field;
    }
}

} // namespace tressel
