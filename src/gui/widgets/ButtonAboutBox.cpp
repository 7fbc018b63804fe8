// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/ButtonAboutBox.h"

#include "widgets/IsButtonWidget.h"

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

namespace tressel {

using namespace Qt::StringLiterals;

void ShowButtonAboutBox(QWidget &owner)
{
    auto *box = new QDialog(owner.window(), Qt::Dialog | Qt::Tool);
    box->setObjectName(u"isButtonAbout"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(u"About isButton"_s);

    auto *name = new QLabel(u"isButton"_s);
    QFont nameFont = name->font();
    nameFont.setBold(true);
    name->setFont(nameFont);
    auto *close = new IsButtonWidget;
    close->setObjectName(u"btnClose"_s);
    close->Control().SetCaption(u"Close"_s);
    close->Control().Click.Handle([box] { box->close(); });

    auto *layout = new QVBoxLayout(box);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(new QLabel(u"Version "_s + IsButton::Version()), 0, Qt::AlignHCenter);
    layout->addWidget(close, 0, Qt::AlignHCenter);
    box->show();
}

} // namespace tressel
