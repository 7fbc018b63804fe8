// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarWidget.h"

#include "base/Twips.h"
#include "controls/Frame.h"
#include "controls/SideBar.h"
#include "widgets/SideBarAccessible.h"
#include "widgets/SystemColours.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QToolTip>
#include <QWheelEvent>

#include <utility>

namespace tressel {

using Kind = SideBarPart::Kind;

namespace {

constexpr int keyCount = 9;

/// What opens the entry of that number from everywhere in the window.
QKeySequence KeyOf(int number)
{
    return QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + number));
}

/// The toolkit leaves the layouts of a hidden page as they were; this brings them up to date, the inner ones
/// first.
void ActivateLayouts(QWidget &page)
{
    const QList<QWidget *> inner = page.findChildren<QWidget *>();
    for (auto widget = inner.crbegin(); widget != inner.crend(); ++widget) {
        if (QLayout *layout = (*widget)->layout())
            layout->activate();
    }
    if (page.layout())
        page.layout()->activate();
}

} // namespace

SideBarWidget::SideBarWidget(QWidget *parent)
    : QWidget(parent)
{
    InstallSideBarAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    for (int number = 1; number <= keyCount; ++number) {
        connect(new QShortcut(KeyOf(number), this), &QShortcut::activated, this,
                [this, number] { SetSelectedIndex(number); });
    }
}

void SideBarWidget::SetControl(SideBar *sideBar)
{
    control = sideBar;
    view = {};
    layout = {};
    for (const HostedPage &page : std::as_const(pages))
        page.widget->hide();
    update();
    Refresh();
}

void SideBarWidget::SetIcons(IconProvider provider)
{
    icons = std::move(provider);
    update();
}

void SideBarWidget::AddPage(QWidget *page, const QString &controlName)
{
    page->setParent(this);
    page->setAutoFillBackground(true);
    page->installEventFilter(this);
    page->hide();
    pages.append({page, controlName});
    pageGround = QColor();
    Refresh();
}

void SideBarWidget::Refresh()
{
    if (!control || !control->Redraw() || arranging)
        return;
    const QScopedValueRollback guard(arranging, true);
    look = SideBarLook(*control, palette(), font());
    Arrange();
}

void SideBarWidget::Arrange()
{
    const SideBarHeights heights = look.Heights();
    // May run the form's layout, so that the control is read only afterwards.
    pageHeights = HeightsOfPages();
    const auto room = [&](int pageHeight) {
        return SideBarLayout::Room(height(), heights, control->ShownCount(), pageHeight);
    };
    control->TakeRoom(room(pageHeights.least),
                      room(SideBarLayout::EasyPage(height(), heights, pageHeights.whole)));
    const SideBarView before = std::exchange(view, ViewOf(*control));
    layout = SideBarLayout(size(), heights, view);
    ApplyPagePalette();
    ShowPages();
    control->TakePageSize(ToTwips(layout.Page().width()), ToTwips(layout.Page().height()));
    update();
    TellAssistants(before);
    Q_EMIT Changed();
}

void SideBarWidget::ApplyPagePalette()
{
    const QColor wanted = TranslateColour(control->PageBackColor(), palette());
    if (wanted == pageGround)
        return;
    pageGround = wanted;
    for (const HostedPage &page : std::as_const(pages))
        page.widget->setPalette(SideBarLook::PagePalette(wanted, palette()));
}

void SideBarWidget::ShowPages()
{
    const SideBarItem *open = control->SelectedItem();
    const QString wanted = open && open->Page() ? open->Page()->Name() : QString();
    for (const HostedPage &page : std::as_const(pages)) {
        if (page.controlName == wanted) {
            page.widget->setGeometry(layout.Page());
            page.widget->show();
            continue;
        }
        // The focus would go to wherever the toolkit finds the next stop.
        if (page.widget->isAncestorOf(QApplication::focusWidget()))
            setFocus(Qt::OtherFocusReason);
        page.widget->hide();
    }
}

void SideBarWidget::TellAssistants(const SideBarView &before)
{
    if (!QAccessible::isActive())
        return;
    if (before.Shown() != view.Shown()) {
        QAccessibleEvent reordered(this, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&reordered);
    }
    const auto child = static_cast<int>(view.Shown().indexOf(view.open));
    if (before.open == view.open || child < 0)
        return;
    for (const auto kind : {QAccessible::Selection, QAccessible::Focus}) {
        if (kind == QAccessible::Focus && !hasFocus())
            continue;
        QAccessibleEvent moved(this, kind);
        moved.setChild(child);
        QAccessible::updateAccessibility(&moved);
    }
}

SideBarWidget::PageHeights SideBarWidget::HeightsOfPages() const
{
    PageHeights heights;
    for (const HostedPage &page : pages) {
        if (!page.widget->isVisible())
            ActivateLayouts(*page.widget);
        const int least = std::max(page.widget->minimumSizeHint().height(), page.widget->minimumHeight());
        heights.least = std::max(heights.least, least);
        heights.whole = std::max({heights.whole, least, page.widget->sizeHint().height()});
    }
    return heights;
}

void SideBarWidget::SetSelectedIndex(int number)
{
    Act([=](SideBar &bar) { bar.UserSelects(number); });
}

int SideBarWidget::VisibleItems() const
{
    return control ? control->VisibleItems() : 0;
}

void SideBarWidget::SetVisibleItems(int count)
{
    Act([=](SideBar &bar) { bar.UserSetsVisibleItems(count); });
}

bool SideBarWidget::OutlookColors() const
{
    return control && control->OutlookColors();
}

void SideBarWidget::Act(const std::function<void(SideBar &)> &act)
{
    if (!control)
        return;
    act(*control);
    Refresh();
}

QSize SideBarWidget::sizeHint() const
{
    return {340, 420};
}

QSize SideBarWidget::minimumSizeHint() const
{
    constexpr int leastPage = 80;
    const SideBarHeights heights = look.Heights();
    return {7 * SideBarLook::iconSize,
            heights.header + leastPage + SideBarLayout::gripHeight + heights.row + 2 * SideBarLayout::border};
}

bool SideBarWidget::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (ShowToolTip(help->pos(), help->globalPos()))
            return true;
    }
    return QWidget::event(event);
}

bool SideBarWidget::eventFilter(QObject *watched, QEvent *event)
{
    // A widget isn't told that the mouse left it for a child.
    if (event->type() == QEvent::Enter)
        SetHover({});
    else if (event->type() == QEvent::LayoutRequest && HeightsOfPages() != pageHeights)
        Refresh();
    return QWidget::eventFilter(watched, event);
}

void SideBarWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        pageGround = QColor();
    Refresh();
    QWidget::changeEvent(event);
}

void SideBarWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // The form may answer a layout event with a new size, in the middle of arranging.
    if (arranging)
        QMetaObject::invokeMethod(this, &SideBarWidget::Refresh, Qt::QueuedConnection);
    else
        Refresh();
}

void SideBarWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (layout.Header().isEmpty()) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    SideBarPainter(painter, view, layout, look, touch, icons).Paint(size(), pageGround);
}

void SideBarWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    touch.focus = false;
    PressPart(layout.At(event->position().toPoint()), event->position().toPoint());
    update();
}

void SideBarWidget::PressPart(const SideBarPart &part, const QPoint &point)
{
    touch.pressed = part;
    gripOffset = point.y() - layout.Strip().top();
    if (part.kind == Kind::ScrollUp || part.kind == Kind::ScrollDown)
        Act([&](SideBar &bar) { bar.UserScrolls(part.kind == Kind::ScrollUp ? -1 : 1); });
    else if (part.kind == Kind::MenuButton) {
        touch.pressed = {};
        OpenMenu(mapToGlobal(layout.MenuButton().bottomLeft()));
    }
}

void SideBarWidget::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (touch.pressed.kind == Kind::Grip) {
        const int rows = layout.RowsForEdgeAt(point.y() - gripOffset);
        if (rows != Rows())
            SetVisibleItems(rows);
        return;
    }
    SetHover(layout.At(point));
}

void SideBarWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const SideBarPart pressed = std::exchange(touch.pressed, {});
    const SideBarPart under = layout.At(event->position().toPoint());
    SetHover(under);
    update();
    if (pressed.kind == Kind::Entry && pressed == under)
        SetSelectedIndex(pressed.number);
}

void SideBarWidget::leaveEvent(QEvent *event)
{
    SetHover({});
    QWidget::leaveEvent(event);
}

void SideBarWidget::SetHover(const SideBarPart &part)
{
    if (touch.hover == part)
        return;
    touch.hover = part;
    if (part.kind == Kind::Grip)
        setCursor(Qt::SplitVCursor);
    else
        unsetCursor();
    update();
}

void SideBarWidget::wheelEvent(QWheelEvent *event)
{
    if (!layout.Strip().contains(event->position().toPoint())) {
        event->ignore();
        return;
    }
    wheelRest += event->angleDelta().y();
    const int steps = wheelRest / QWheelEvent::DefaultDeltasPerStep;
    wheelRest -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        Act([=](SideBar &bar) { bar.UserScrolls(-steps); });
    SetHover(layout.At(event->position().toPoint()));
}

void SideBarWidget::keyPressEvent(QKeyEvent *event)
{
    if (!ActOnKey(*event) && !(hasFocus() && ActOnFocusedKey(*event)))
        QWidget::keyPressEvent(event);
}

bool SideBarWidget::ActOnKey(const QKeyEvent &event)
{
    if (!event.modifiers().testFlag(Qt::ControlModifier))
        return false;
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        touch.focus = true;
        Act([=](SideBar &bar) { bar.UserCycles(!shift); });
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        touch.focus = true;
        Act([&](SideBar &bar) { bar.UserCycles(event.key() == Qt::Key_PageDown); });
        return true;
    default:
        return false;
    }
}

bool SideBarWidget::ActOnFocusedKey(const QKeyEvent &event)
{
    using Move = void (SideBar::*)();
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const auto move = [this](Move step) {
        touch.focus = true;
        Act([=](SideBar &bar) { (bar.*step)(); });
        return true;
    };
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (control) {
            SetVisibleItems(Rows() + (event.key() == Qt::Key_Up ? 1 : -1));
            return true;
        }
        return move(event.key() == Qt::Key_Up ? &SideBar::UserPrevious : &SideBar::UserNext);
    case Qt::Key_Left:
    case Qt::Key_Right:
        return move((event.key() == Qt::Key_Left) != view.mirrored ? &SideBar::UserPrevious
                                                                   : &SideBar::UserNext);
    case Qt::Key_Home:
        return move(&SideBar::UserFirst);
    case Qt::Key_End:
        return move(&SideBar::UserLast);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        SetSelectedIndex(view.open);
        return true;
    default:
        break;
    }
    const QString typed = event.text();
    if (control || event.modifiers().testFlag(Qt::AltModifier) || typed.isEmpty() || !typed.at(0).isPrint())
        return false;
    touch.focus = true;
    Act([&](SideBar &bar) { bar.UserTypes(typed); });
    return true;
}

void SideBarWidget::focusInEvent(QFocusEvent *event)
{
    touch.focus = event->reason() != Qt::MouseFocusReason;
    QWidget::focusInEvent(event);
    update();
}

void SideBarWidget::focusOutEvent(QFocusEvent *event)
{
    touch.focus = false;
    QWidget::focusOutEvent(event);
    update();
}

void SideBarWidget::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    // What a page leaves over comes here too.
    const bool isMine = byKey ? hasFocus() : !layout.Page().contains(event->pos());
    if (!isMine || !view.showMenu) {
        event->ignore();
        return;
    }
    OpenMenu(byKey ? mapToGlobal(EntryRect(view.open).center()) : event->globalPos());
}

void SideBarWidget::OpenMenu(const QPoint &globalPoint)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const SideBarEntryView &entry : std::as_const(view.entries)) {
        QString text = entry.Words();
        QAction *action = menu->addAction(text.replace(u'&', QStringLiteral("&&")));
        action->setCheckable(true);
        action->setChecked(entry.shown);
        connect(action, &QAction::triggered, this, [this, number = entry.number](bool isShown) {
            Act([=](SideBar &bar) { bar.UserShowsItem(number, isShown); });
        });
    }
    menu->popup(globalPoint);
}

bool SideBarWidget::ShowToolTip(const QPoint &point, const QPoint &globalPoint)
{
    const SideBarPart part = layout.At(point);
    if (part.kind != Kind::Entry)
        return false;
    QString text = view.Entry(part.number).Words();
    if (part.number <= keyCount)
        text += QStringLiteral(" (%1)").arg(KeyOf(part.number).toString(QKeySequence::NativeText));
    QToolTip::showText(globalPoint, text, this, layout.Entry(part.number));
    return true;
}

} // namespace tressel
