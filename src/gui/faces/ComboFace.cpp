// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/ComboFace.h"

#include "faces/Keys.h"

#include <QLineEdit>

namespace tressel {

namespace {

constexpr int pageStep = 10;

// Where the box was made editable after other widgets were made, its line edit stands behind those in the
// tab order, and setTabOrder loses what is between.
void PlaceBehindBox(QLineEdit &edit)
{
    QWidget *box = edit.parentWidget();
    edit.setFocusProxy(nullptr);
    QWidget::setTabOrder(box, &edit);
    edit.setFocusProxy(box);
}

} // namespace

ChoiceFace::ChoiceFace(ItemList &control, QComboBox &widget)
    : Face(control, widget)
    , list(control)
    , view(widget)
{
    view.setModel(&model);
    view.setFocusPolicy(Qt::StrongFocus);
    // Choosing the entry that is chosen already counts too, so the change of the index isn't enough.
    connect(&view, &QComboBox::activated, this,
            [this](int index) { Hand([&] { list.UserSelects(index); }); });
}

bool ChoiceFace::eventFilter(QObject *watched, QEvent *event)
{
    // A wheel that turns over a box in passing scrolls what the box stands on.
    if (event->type() == QEvent::Wheel && !view.hasFocus()) {
        event->ignore();
        return true;
    }
    return Face::eventFilter(watched, event);
}

void ChoiceFace::Show()
{
    model.Publish(list.Items());
    if (view.currentIndex() != list.ListIndex())
        view.setCurrentIndex(list.ListIndex());
}

ComboFace::ComboFace(ComboBox &control, QComboBox &widget)
    : ChoiceFace(control, widget)
    , box(control)
{
    widget.setEditable(box.BoxKind() == ComboBox::Kind::Editable);
    widget.setInsertPolicy(QComboBox::NoInsert);
    if (QLineEdit *edit = widget.lineEdit()) {
        // What is typed is the text, to the letter.
        edit->setCompleter(nullptr);
        edit->setMaxLength(0x7FFFFFFF);
        PlaceBehindBox(*edit);
        Watch(*edit);
        connect(edit, &QLineEdit::textEdited, this,
                [this](const QString &text) { Hand([&] { box.UserEdits(text); }); });
    }
}

bool ComboFace::eventFilter(QObject *watched, QEvent *event)
{
    // The toolkit would go on from the entry that was chosen last, whatever was typed since.
    if (watched == &View() && View().isEditable()) {
        for (const auto &[key, count] :
             {std::pair{Qt::Key_Up, -1}, std::pair{Qt::Key_Down, 1}, std::pair{Qt::Key_PageUp, -pageStep},
              std::pair{Qt::Key_PageDown, pageStep}}) {
            if (IsKey(*event, key)) {
                Hand([&, steps = count] { box.UserSteps(steps); });
                return true;
            }
        }
    }
    bool isTaken = false;
    if (IsKey(*event, Qt::Key_F12))
        Hand([&] { isTaken = box.UserPressesKey(keyF12); });
    return isTaken || ChoiceFace::eventFilter(watched, event);
}

void ComboFace::Show()
{
    QLineEdit *edit = View().lineEdit();
    if (!edit) {
        ChoiceFace::Show();
        return;
    }
    const int cursor = edit->cursorPosition();
    const int selectedFrom = edit->selectionStart();
    const int selectedLength = edit->selectionLength();
    const QString before = edit->text();
    ChoiceFace::Show();
    if (edit->text() != box.Text())
        edit->setText(box.Text());
    if (box.Text() != before)
        return;
    // The entries changed around a text that stayed: so do the cursor and the selection.
    if (selectedFrom >= 0)
        edit->setSelection(selectedFrom, selectedLength);
    else
        edit->setCursorPosition(cursor);
}

} // namespace tressel
