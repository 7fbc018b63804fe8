// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/IsButtonWidget.h"

#include "base/Twips.h"
#include "faces/Captions.h"
#include "machine/PlainColours.h"
#include "widgets/ButtonAboutBox.h"
#include "widgets/ButtonPainter.h"
#include "widgets/ButtonToolTip.h"
#include "widgets/FontFaces.h"
#include "widgets/IsButtonAccessible.h"
#include "widgets/PixelPainting.h"
#include "widgets/SystemColours.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QShortcutEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

MouseButton ButtonOf(const QMouseEvent &event)
{
    switch (event.button()) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    default:
        return MouseButton::None;
    }
}

bool IsFreshSpace(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Space && !event.isAutoRepeat()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

} // namespace

IsButtonWidget::IsButtonWidget(QWidget *parent)
    : QWidget(parent)
{
    InstallButtonAccess();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    setMinimumSize(ToPixels(IsButton::leastSize), ToPixels(IsButton::leastSize));
    // Where there is no room for the caption it ends in an ellipsis.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    SetControl(nullptr);
}

IsButtonWidget::~IsButtonWidget() = default;

void IsButtonWidget::SetControl(IsButton *newControl)
{
    own = newControl ? nullptr : std::make_unique<OwnControl<IsButton>>(u"isButton"_s, *this);
    control = newControl ? newControl : &own->Control();
    control->SetAboutWindow([self = QPointer(this)] {
        if (self)
            ShowButtonAboutBox(*self);
    });
    control->TranslateFirstColours(
        [this](ColourNumber colour) { return ToNumber(TranslateColour(colour, palette())); });
    control->TakeSize(ToTwips(width()), ToTwips(height()));
    control->TakeFocus(hasFocus());
    if (isVisible())
        control->FaceShown();
    TakeOver();
}

void IsButtonWidget::TakeOver()
{
    if (isEnabled() != control->IsEnabled())
        setEnabled(control->IsEnabled());
    // No pointer comes to a disabled button: the tip that it had when the last one came is its own no more.
    if (!control->IsEnabled())
        tip.reset();
    TakeFont();
    TakeShape();
    TakeMnemonic();
    TellAssistance();
    updateGeometry();
    update();
}

void IsButtonWidget::TakeFont()
{
    const bool hadFont = std::exchange(fontIsControls, control->Font().has_value());
    if (control->Font() && ToFont(*control->Font()) != font())
        setFont(ToFont(*control->Font()));
    else if (!control->Font() && hadFont)
        setFont(QFont());
}

void IsButtonWidget::TakeShape()
{
    const QRegion shape = ShapeOf(*control, devicePixelRatioF());
    if (shape.isEmpty())
        clearMask();
    else if (shape != mask())
        setMask(shape);
}

void IsButtonWidget::TakeMnemonic()
{
    if (mnemonicOf == control->Caption())
        return;
    mnemonicOf = control->Caption();
    releaseShortcut(shortcut);
    shortcut = grabShortcut(QKeySequence::mnemonic(mnemonicOf));
}

void IsButtonWidget::TellAssistance()
{
    if (toldName != control->Caption()) {
        toldName = control->Caption();
        QAccessibleEvent changed(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&changed);
    }
    if (toldValue != control->Value()) {
        toldValue = control->Value();
        QAccessible::State state;
        state.checked = true;
        QAccessibleStateChangeEvent changed(this, state);
        QAccessible::updateAccessibility(&changed);
    }
}

QString IsButtonWidget::PlainCaption() const
{
    return WithoutMnemonic(control->Caption());
}

QString IsButtonWidget::CutCaption() const
{
    return ShowsWholeCaption(*control, font()) ? QString() : PlainCaption();
}

void IsButtonWidget::Press()
{
    const QPointer<IsButtonWidget> self(this);
    control->UserClicks();
    if (!self)
        return;
    if (!underMouse())
        PointerLeft();
    update();
}

QSize IsButtonWidget::sizeHint() const
{
    constexpr int around = 12;
    constexpr int iconMargin = 5;
    const QFontMetrics metrics(Font());
    const QSize caption = metrics.size(0, WithLineBreaks(PlainCaption()));
    QSize size(caption.width() + 2 * around, std::max(caption.height(), metrics.height()) + around);
    if (!control->Icon().IsNone()) {
        const int icon = control->IconSize() + 2 * iconMargin;
        const bool above =
            control->IconAlign() == IconPlace::Top || control->IconAlign() == IconPlace::Bottom;
        size = above ? QSize(std::max(size.width(), icon),
                             control->IconSize() + iconMargin + size.height() - around + 6)
                     : QSize(size.width() + icon, std::max(size.height(), icon));
    }
    return size.expandedTo(minimumSize());
}

bool IsButtonWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip:
        if (!tip || !control->IsEnabled())
            tip = std::make_unique<ButtonToolTip>(*control, *this, CutCaption());
        tip->ShowAt(static_cast<QHelpEvent *>(event)->globalPos());
        return true;
    case QEvent::Shortcut: {
        const auto *pressed = static_cast<QShortcutEvent *>(event);
        if (pressed->shortcutId() != shortcut)
            break;
        setFocus(Qt::ShortcutFocusReason);
        if (!pressed->isAmbiguous())
            Press();
        return true;
    }
    case QEvent::ScreenChangeInternal:
        TakeShape();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void IsButtonWidget::paintEvent(QPaintEvent *)
{
    ButtonSurroundings around;
    around.palette = palette();
    around.font = font();
    around.style = style();
    around.widget = this;
    around.marksFocus = marksFocus;
    around.underlinesMnemonic = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;

    QPainter painter(this);
    DrawOnPixels(painter, rect(), [&](QSize screenSize, qreal scale) {
        around.screenSize = screenSize;
        around.scale = scale;
        return DrawButton(*control, around);
    });
}

void IsButtonWidget::resizeEvent(QResizeEvent *)
{
    control->TakeSize(ToTwips(width()), ToTwips(height()));
    TakeShape();
}

void IsButtonWidget::showEvent(QShowEvent *)
{
    control->FaceShown();
    TakeOver();
}

void IsButtonWidget::hideEvent(QHideEvent *)
{
    if (control->IsHovered())
        PointerLeft();
    control->FaceHidden();
}

void IsButtonWidget::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::EnabledChange:
        updateGeometry();
        update();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void IsButtonWidget::PointerCame()
{
    const bool wasHovered = control->IsHovered();
    const QPointer<IsButtonWidget> self(this);
    control->UserMovesMouse();
    if (!self || wasHovered || !control->IsHovered())
        return;
    tip = std::make_unique<ButtonToolTip>(*control, *this, CutCaption());
    update();
}

void IsButtonWidget::PointerLeft()
{
    if (tip)
        tip->hide();
    const QPointer<IsButtonWidget> self(this);
    control->UserLeaves();
    if (self)
        update();
}

void IsButtonWidget::enterEvent(QEnterEvent *)
{
    PointerCame();
}

void IsButtonWidget::leaveEvent(QEvent *)
{
    PointerLeft();
}

void IsButtonWidget::mouseMoveEvent(QMouseEvent *event)
{
    // While a mouse button is held the toolkit reports no leave, only moves.
    if (rect().contains(event->position().toPoint()))
        PointerCame();
    else if (control->IsHovered())
        PointerLeft();
}

void IsButtonWidget::mousePressEvent(QMouseEvent *event)
{
    if (tip)
        tip->hide();
    control->UserPressesMouse(ButtonOf(*event));
    update();
}

void IsButtonWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    control->UserDoubleClicks(ButtonOf(*event));
    update();
}

void IsButtonWidget::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<IsButtonWidget> self(this);
    const bool inside = rect().contains(event->position().toPoint());
    control->UserReleasesMouse(ButtonOf(*event));
    if (inside)
        control->UserEndsClick();
    else
        PointerLeft();
    if (self)
        update();
}

void IsButtonWidget::keyPressEvent(QKeyEvent *event)
{
    if (!IsFreshSpace(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QPointer<IsButtonWidget> self(this);
    spaceDown = true;
    marksFocus = true;
    control->UserPressesSpace();
    repaint();
    control->UserTypesSpace();
    if (self)
        update();
}

void IsButtonWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (!IsFreshSpace(*event)) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    spaceDown = false;
    control->UserReleasesSpace();
    update();
}

void IsButtonWidget::focusInEvent(QFocusEvent *event)
{
    TakeFocusBy(event->reason());
    control->TakeFocus(true);
    update();
}

/// The focus is marked for people at the keyboard alone. A window that comes back gives it back as it was.
void IsButtonWidget::TakeFocusBy(Qt::FocusReason reason)
{
    if (reason == Qt::MouseFocusReason)
        marksFocus = false;
    else if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        marksFocus = window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void IsButtonWidget::focusOutEvent(QFocusEvent *)
{
    control->TakeFocus(false);
    // A space key held down is released elsewhere, as in a box that its press opened: the button would look
    // pressed for good.
    if (std::exchange(spaceDown, false))
        PointerLeft();
    update();
}

} // namespace tressel
