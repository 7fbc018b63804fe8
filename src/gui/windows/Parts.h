// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QRadioButton>

namespace tressel {

class IsButtonWidget;

// The one scale of distances in windows, in pixels.
constexpr int gapSmall = 4; ///< within a group: a label and its field
constexpr int gap = 8; ///< between neighbours
constexpr int gapWide = 12; ///< between groups, and from the upper edge of a page
constexpr int gapWindow = 16; ///< from the edge of a dialog

/// A widget that becomes the face of the control of that name. It has no parent yet.
template <typename Widget> Widget *Part(const QString &name)
{
    auto *widget = new Widget;
    widget->setObjectName(name);
    return widget;
}

/// Captions that don't fit end in an ellipsis.
template <> QCheckBox *Part<QCheckBox>(const QString &name);
template <> QRadioButton *Part<QRadioButton>(const QString &name);

/// A layout with the given distance between its items and nothing around them.
QHBoxLayout *Row(int spacing = gap);
QVBoxLayout *Column(int spacing = gap);

/// A field for one line of text, and a combo, that take what width there is. `spoken` is the name for
/// assistive technology, needed where no label stands with the field.
QLineEdit *Field(const QString &name, const QString &spoken = {});
QComboBox *Combo(const QString &name, const QString &spoken = {});
/// The same for a number, no wider than a number needs.
QLineEdit *NumberField(const QString &name);
QComboBox *NumberCombo(const QString &name);
/// Gives a widget the tool tip that it has where its control has none.
QWidget *Explained(QWidget *widget, const QString &toolTip);
/// A list that takes what room there is, but no less than a few rows. While it is empty it shows those
/// words.
QListView *List(const QString &name, const QString &spoken, const QString &wordsWhenEmpty = {});
/// A label; it names the field for assistive technology.
QLabel *LabelFor(const QString &name, QWidget *field = nullptr);
/// A label that breaks its text into lines.
QLabel *WrappedLabel(const QString &name);
/// A push button of a page.
IsButtonWidget *PageButton(const QString &name);
/// Push buttons side by side at the right.
QLayout *ButtonRow(const QStringList &names);
/// A small one beside a field, for "...".
IsButtonWidget *DotsButton(const QString &name, const QString &spoken);
QProgressBar *Progress(const QString &name, const QString &spoken);
/// A titled frame around a layout.
QGroupBox *Group(const QString &name, QLayout *content);
/// A thin line across; without a name it is mere ornament.
QFrame *Line(const QString &name = {});

/// What a page, or one tool of a page, shows.
struct PageParts {
    QLayout *content; ///< what doesn't fit into the page's height can be scrolled to
    QLayout *foot = nullptr; ///< run buttons and progress, always in view below the content; may be null
};

QWidget *Page(const QString &name, const PageParts &parts);

} // namespace tressel
