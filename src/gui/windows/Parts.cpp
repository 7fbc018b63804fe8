// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/Parts.h"

#include "widgets/IsButtonWidget.h"
#include "windows/ElidedButtons.h"
#include "windows/ElidedGroup.h"
#include "windows/ElidedLabel.h"
#include "windows/HintedViews.h"
#include "windows/PageArea.h"

#include <QStyledItemDelegate>

namespace tressel {

namespace {

constexpr QSize smallIcon(16, 16);
constexpr int pageButtonHeight = 28;
constexpr int pageButtonWidth = 76;
constexpr int dotsButtonWidth = 32;
// Narrow, for the longest captions just fit into the least page beside its scroll bar.
constexpr int pageSide = 6;
constexpr int groupSide = 3;
constexpr int numberWidth = 104;
constexpr int leastListHeight = 64;

/// Rows of a list with some air between them.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index)
            .expandedTo(QSize(0, option.fontMetrics.height() + gapSmall));
    }
};

} // namespace

template <> QCheckBox *Part<QCheckBox>(const QString &name)
{
    return Part<ElidedButton<QCheckBox>>(name);
}

template <> QRadioButton *Part<QRadioButton>(const QString &name)
{
    return Part<ElidedButton<QRadioButton>>(name);
}

QHBoxLayout *Row(int spacing)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    return row;
}

QVBoxLayout *Column(int spacing)
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

QLineEdit *Field(const QString &name, const QString &spoken)
{
    auto *field = Part<QLineEdit>(name);
    field->setAccessibleName(spoken);
    field->setMinimumWidth(48);
    return field;
}

QComboBox *Combo(const QString &name, const QString &spoken)
{
    auto *combo = Part<QComboBox>(name);
    combo->setAccessibleName(spoken);
    // Its entries may be long paths: they must not make the page wide.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(4);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return combo;
}

QLineEdit *NumberField(const QString &name)
{
    auto *field = Field(name);
    field->setMaximumWidth(numberWidth);
    return field;
}

QComboBox *NumberCombo(const QString &name)
{
    auto *combo = Combo(name);
    combo->setMaximumWidth(numberWidth);
    return combo;
}

QWidget *Explained(QWidget *widget, const QString &toolTip)
{
    widget->setToolTip(toolTip);
    return widget;
}

QListView *List(const QString &name, const QString &spoken, const QString &wordsWhenEmpty)
{
    auto *list = Part<HintedList>(name);
    list->SetWords(wordsWhenEmpty);
    list->setAccessibleName(spoken);
    list->setMinimumSize(80, leastListHeight);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setIconSize(smallIcon);
    list->setItemDelegate(new RoomyRows(list));
    return list;
}

QLabel *LabelFor(const QString &name, QWidget *field)
{
    auto *label = Part<CaptionLabel>(name);
    label->setBuddy(field);
    return label;
}

QLabel *WrappedLabel(const QString &name)
{
    auto *label = Part<QLabel>(name);
    label->setWordWrap(true);
    label->setMinimumWidth(40);
    return label;
}

IsButtonWidget *PageButton(const QString &name)
{
    auto *button = Part<IsButtonWidget>(name);
    button->setMinimumSize(pageButtonWidth, pageButtonHeight);
    return button;
}

QLayout *ButtonRow(const QStringList &names)
{
    auto *row = Row();
    row->addStretch();
    for (const QString &name : names)
        row->addWidget(PageButton(name));
    return row;
}

IsButtonWidget *DotsButton(const QString &name, const QString &spoken)
{
    auto *button = Part<IsButtonWidget>(name);
    button->setAccessibleName(spoken);
    button->setFixedWidth(dotsButtonWidth);
    return button;
}

QProgressBar *Progress(const QString &name, const QString &spoken)
{
    auto *bar = Part<QProgressBar>(name);
    bar->setAccessibleName(spoken);
    bar->setMinimumWidth(60);
    return bar;
}

QGroupBox *Group(const QString &name, QLayout *content)
{
    auto *group = Part<ElidedGroup>(name);
    content->setContentsMargins(groupSide, gapSmall, groupSide, gapSmall);
    group->setLayout(content);
    return group;
}

QFrame *Line(const QString &name)
{
    auto *line = Part<QFrame>(name);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QWidget *Page(const QString &name, const PageParts &parts)
{
    auto *page = Part<QWidget>(name);
    auto *whole = Column(0);
    parts.content->setContentsMargins(pageSide, gapWide, pageSide, gap);
    whole->addWidget(new PageArea(parts.content), 1);
    if (parts.foot) {
        whole->addWidget(Line());
        parts.foot->setContentsMargins(pageSide, gap, pageSide, gap);
        whole->addLayout(parts.foot);
    }
    page->setLayout(whole);
    return page;
}

} // namespace tressel
