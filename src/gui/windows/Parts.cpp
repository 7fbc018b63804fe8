// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/Parts.h"

#include "widgets/IsButtonWidget.h"

#include <QScrollArea>
#include <QStyledItemDelegate>

namespace tressel {

namespace {

constexpr QSize smallIcon(16, 16);
constexpr int pageButtonHeight = 28;
constexpr int pageButtonWidth = 76;
constexpr int dotsButtonWidth = 32;
constexpr int leastPageHeight = 224;

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

/// A list that asks for no more than its least height, so that a page grows beyond its room only where its
/// fixed parts do.
class ModestList : public QListView {
public:
    QSize sizeHint() const override { return minimumSize(); }
};

} // namespace

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

QListView *List(const QString &name, const QString &spoken, int leastHeight)
{
    auto *list = Part<ModestList>(name);
    list->setAccessibleName(spoken);
    list->setMinimumSize(80, leastHeight);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setIconSize(smallIcon);
    list->setItemDelegate(new RoomyRows(list));
    return list;
}

QLabel *LabelFor(const QString &name, QWidget *field)
{
    auto *label = Part<QLabel>(name);
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

QGroupBox *Group(const QString &name, QLayout *content, int sides)
{
    auto *group = Part<QGroupBox>(name);
    content->setContentsMargins(sides, gapSmall, sides, gapSmall);
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

QWidget *Page(const QString &name, QLayout *content)
{
    auto *page = Part<QWidget>(name);
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    auto *paper = new QWidget;
    content->setContentsMargins(gap, gapWide, gap, gapWide);
    paper->setLayout(content);
    area->setWidget(paper);
    auto *whole = Column(0);
    whole->addWidget(area);
    page->setLayout(whole);
    page->setMinimumHeight(leastPageHeight);
    return page;
}

} // namespace tressel
