// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "widgets/OwnControl.h"

#include <QFont>
#include <QWidget>

#include <memory>

namespace tressel {

class ButtonToolTip;

/// The face of an IsButton: draws it and hands over what the user does. Every property is the control's own.
///
/// Until SetControl it shows a control of its own, so that it can be designed and used alone.
class IsButtonWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Version READ Version CONSTANT)
    Q_PROPERTY(int Style READ Style WRITE SetStyle)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QString text READ Caption WRITE SetCaption)
    Q_PROPERTY(QString Icon READ Icon WRITE SetIcon)
    Q_PROPERTY(int IconAlign READ IconAlign WRITE SetIconAlign)
    Q_PROPERTY(int IconSize READ IconSize WRITE SetIconSize)
    Q_PROPERTY(int CaptionAlign READ CaptionAlign WRITE SetCaptionAlign)
    Q_PROPERTY(int NonThemeStyle READ NonThemeStyle WRITE SetNonThemeStyle)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(bool ShowFocus READ ShowFocus WRITE SetShowFocus)
    Q_PROPERTY(bool UseCustomColors READ UseCustomColors WRITE SetUseCustomColors)
    Q_PROPERTY(uint BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(uint HighlightColor READ HighlightColor WRITE SetHighlightColor)
    Q_PROPERTY(uint FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(uint FontHighlightColor READ FontHighlightColor WRITE SetFontHighlightColor)
    Q_PROPERTY(QString ToolTip READ ToolTip WRITE SetToolTip)
    Q_PROPERTY(QString ToolTipTitle READ ToolTipTitle WRITE SetToolTipTitle)
    Q_PROPERTY(int ToolTipIcon READ ToolTipIcon WRITE SetToolTipIcon)
    Q_PROPERTY(int ToolTipType READ ToolTipType WRITE SetToolTipType)
    Q_PROPERTY(uint ToolTipBackColor READ ToolTipBackColor WRITE SetToolTipBackColor)
    Q_PROPERTY(uint ToolTipForeColor READ ToolTipForeColor WRITE SetToolTipForeColor)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(int ButtonType READ ButtonType WRITE SetButtonType)
    Q_PROPERTY(bool Value READ Value WRITE SetValue)

public:
    explicit IsButtonWidget(QWidget *parent = nullptr);
    ~IsButtonWidget() override;

    /// Shows this control from now on, in place of its own. The control must outlive the widget, or be
    /// followed by a call with null, which brings back one of the widget's own.
    void SetControl(IsButton *newControl);
    IsButton &Control() const { return *control; }

    /// Takes over what changed in the control. Whoever listens to the control's form calls it; a control of
    /// the widget's own needs no one.
    void TakeOver();

    /// The caption without its "&".
    QString PlainCaption() const;
    /// The same if an ellipsis stands for a part of it, else empty.
    QString CutCaption() const;
    /// Presses and releases the button, as its mnemonic does.
    void Press();
    /// The tool tip as it was built when the pointer came; null before.
    const ButtonToolTip *Tip() const { return tip.get(); }

    QSize sizeHint() const override;

    // The control's properties, as numbers and types that any tool of the toolkit can handle. The icon is
    // a picture's name.
    QString Version() const;
    int Style() const;
    void SetStyle(int style);
    QString Caption() const;
    void SetCaption(const QString &text);
    QString Icon() const;
    void SetIcon(const QString &name);
    int IconAlign() const;
    void SetIconAlign(int place);
    int IconSize() const;
    /// Fails with 6 beyond 16 bits. A failure of a control on a form goes where those of its events go.
    void SetIconSize(int pixels);
    int CaptionAlign() const;
    void SetCaptionAlign(int place);
    int NonThemeStyle() const;
    void SetNonThemeStyle(int style);
    bool Enabled() const;
    void SetEnabled(bool isEnabled);
    bool ShowFocus() const;
    void SetShowFocus(bool shows);
    bool UseCustomColors() const;
    void SetUseCustomColors(bool uses);
    uint BackColor() const;
    void SetBackColor(uint colour);
    uint HighlightColor() const;
    void SetHighlightColor(uint colour);
    uint FontColor() const;
    void SetFontColor(uint colour);
    uint FontHighlightColor() const;
    void SetFontHighlightColor(uint colour);
    QString ToolTip() const;
    void SetToolTip(const QString &text);
    QString ToolTipTitle() const;
    void SetToolTipTitle(const QString &text);
    int ToolTipIcon() const;
    void SetToolTipIcon(int icon);
    int ToolTipType() const;
    void SetToolTipType(int shape);
    uint ToolTipBackColor() const;
    void SetToolTipBackColor(uint colour);
    uint ToolTipForeColor() const;
    void SetToolTipForeColor(uint colour);
    QFont Font() const;
    void SetFont(const QFont &font);
    int ButtonType() const;
    void SetButtonType(int kind);
    bool Value() const;
    void SetValue(bool isPressed);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void TakeFocusBy(Qt::FocusReason reason);
    void PointerCame();
    void PointerLeft();
    void TakeFont();
    void TakeShape();
    void TakeMnemonic();
    void TellAssistance();

    std::unique_ptr<OwnControl<IsButton>> own;
    IsButton *control;
    std::unique_ptr<ButtonToolTip> tip;
    QString mnemonicOf;
    QString toldName;
    bool toldValue = false;
    int shortcut = 0;
    bool marksFocus = false;
    bool spaceDown = false;
    bool fontIsControls = false;
};

} // namespace tressel
