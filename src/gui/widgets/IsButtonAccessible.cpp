// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/IsButtonAccessible.h"

#include "widgets/IsButtonWidget.h"

#include <QAccessibleWidget>
#include <QKeySequence>

namespace tressel {

namespace {

class IsButtonAccessible : public QAccessibleWidget {
public:
    explicit IsButtonAccessible(IsButtonWidget *widget)
        : QAccessibleWidget(widget)
    {
    }

    QAccessible::Role role() const override
    {
        return IsCheck() ? QAccessible::CheckBox : QAccessible::Button;
    }
    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return Button()->accessibleName().isEmpty() ? Button()->PlainCaption()
                                                        : Button()->accessibleName();
        case QAccessible::Description:
            return Button()->Control().ToolTip();
        case QAccessible::Accelerator:
            return Shortcut().toString(QKeySequence::NativeText);
        default:
            return QAccessibleWidget::text(kind);
        }
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const IsButton &control = Button()->Control();
        state.checkable = IsCheck();
        state.checked = IsCheck() && control.Value();
        state.pressed = control.ShownState() == LookState::Pressed;
        state.hotTracked = control.IsHovered();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names;
        if (Button()->isEnabled())
            names.append(IsCheck() ? toggleAction() : pressAction());
        return names + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        // The call comes from another process, which would wait as long as a box of the handler stands.
        if (name == (IsCheck() ? toggleAction() : pressAction()))
            QMetaObject::invokeMethod(Button(), &IsButtonWidget::Press, Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }
    QStringList keyBindingsForAction(const QString &name) const override
    {
        if (name != pressAction() && name != toggleAction())
            return {};
        QStringList keys{QStringLiteral("Space")};
        if (!Shortcut().isEmpty())
            keys.append(Shortcut().toString(QKeySequence::NativeText));
        return keys;
    }

private:
    IsButtonWidget *Button() const { return static_cast<IsButtonWidget *>(widget()); }
    bool IsCheck() const { return Button()->Control().ButtonType() == ButtonKind::Check; }
    QKeySequence Shortcut() const { return QKeySequence::mnemonic(Button()->Control().Caption()); }
};

QAccessibleInterface *MakeInterface(const QString &, QObject *object)
{
    auto *button = qobject_cast<IsButtonWidget *>(object);
    return button ? new IsButtonAccessible(button) : nullptr;
}

} // namespace

void InstallButtonAccess()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace tressel
