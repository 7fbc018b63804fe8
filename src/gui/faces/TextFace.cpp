// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/TextFace.h"

#include <QFocusEvent>
#include <QTextDocument>

namespace tressel {

namespace {

// Another window or a menu of the box itself doesn't take the keyboard from the box for good.
bool IsWithinWindow(const QEvent &event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

} // namespace

TextFace::TextFace(TextBox &control, QWidget &widget)
    : Face(control, widget)
    , box(control)
{
}

bool TextFace::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &Widget() && event->type() == QEvent::FocusIn && IsWithinWindow(*event))
        Hand([this] { box.UserEnters(); });
    else if (watched == &Widget() && event->type() == QEvent::FocusOut && IsWithinWindow(*event))
        Hand([this] { box.UserLeaves(); });
    return Face::eventFilter(watched, event);
}

LineFace::LineFace(TextBox &control, QLineEdit &widget)
    : TextFace(control, widget)
    , edit(widget)
{
    edit.setMaxLength(0x7FFFFFFF);
    connect(&edit, &QLineEdit::textChanged, this,
            [this](const QString &text) { Hand([&] { Box().UserEdits(text); }); });
}

void LineFace::Show()
{
    if (edit.text() != Box().Text()) {
        edit.setText(Box().Text());
        // A text that comes from elsewhere is read from its beginning.
        if (!edit.hasFocus())
            edit.setCursorPosition(0);
    }
    if (edit.isReadOnly() != Box().IsLocked())
        edit.setReadOnly(Box().IsLocked());
    if (edit.placeholderText() != Box().Hint())
        edit.setPlaceholderText(Box().Hint());
    if (Box().TakeSelectAll())
        edit.selectAll();
}

LinesFace::LinesFace(TextBox &control, QPlainTextEdit &widget)
    : TextFace(control, widget)
    , edit(widget)
{
    Watch(*edit.viewport());
    edit.setTabChangesFocus(true);
    connect(&edit, &QPlainTextEdit::textChanged, this, [this] { Hand([this] { Box().UserEdits(Text()); }); });
}

void LinesFace::Show()
{
    if (Text() != Box().Text())
        edit.setPlainText(Box().Text());
    if (edit.isReadOnly() != Box().IsLocked()) {
        edit.setReadOnly(Box().IsLocked());
        if (Box().IsLocked())
            edit.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    if (edit.placeholderText() != Box().Hint())
        edit.setPlaceholderText(Box().Hint());
    if (Box().TakeSelectAll())
        edit.selectAll();
}

QString LinesFace::Text() const
{
    // toPlainText would make blanks of hard blanks.
    QString text = edit.document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

} // namespace tressel
