// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/widgets/SideBarStage.h"

#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tressel {

using namespace Qt::StringLiterals;

SideBarStage::SideBarStage()
{
    widget.setObjectName(bar.Name());
    for (int number = 1; number <= 7; ++number) {
        frames.emplace_back(form, u"page(%1)"_s.arg(number));
        auto *page = new QWidget;
        auto *column = new QVBoxLayout(page);
        column->addWidget(new QLabel(u"Tool %1"_s.arg(number)));
        fields.append(new QLineEdit(u"text %1"_s.arg(number)));
        column->addWidget(fields.last());
        auto *list = new QListWidget;
        list->setMinimumHeight(40);
        list->addItems({u"one"_s, u"two"_s, u"three"_s});
        column->addWidget(list);
        column->addWidget(new QPushButton(u"Do it"_s));
        pages.append(page);
        widget.AddPage(page, frames.back().Name());
    }
    LoadItems(1);
    bar.ItemSelected.Handle([this](SideBarItem &item) { opened.append(item.Index()); });
    widget.SetIcons(Icon);
    widget.SetControl(&bar);
}

void SideBarStage::LoadItems(int openNumber)
{
    const QStringList captions{u"Browse Files "_s,          u"Get Text, File List, Safe Erase"_s,
                               u"Make Numbered Folders "_s, u"File Splitter "_s,
                               u"Load from Database "_s,    u"Empty Dir Remover "_s,
                               u"Filerename Utility "_s};
    bar.SetImageList(u"ImageList1"_s);
    bar.SetRedraw(false);
    bar.Items().Clear();
    for (int number = 1; number <= 7; ++number) {
        SideBarItem &item = bar.Items().Add(u"Item: %1"_s.arg(number), captions.at(number - 1));
        item.SetPage(frames.at(static_cast<std::size_t>(number - 1)));
        item.SetImage(number);
        item.SetSelected(number == openNumber);
    }
    bar.SetVisibleItems(11);
    bar.SetRedraw(true);
}

SideBarColours SideBarStage::FirstPalette()
{
    return {0xDEDEDE, 0x8C8C8C, 0xFFFFFF, 0x7B7B7B, 0xB6E2FA, 0x4DB9F3,
            0xFFFFFF, 0xDFDFDF, 0x9C9C9C, 0x4DB9F3, 0xB6E2FA};
}

QIcon SideBarStage::Icon(int number, const PictureColours & /*colours*/)
{
    QIcon icon;
    for (const int size : {20, 40, 60}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 20.0, size / 20.0);
        painter.setPen(QPen(QColor(0x33, 0x55, 0x77), 1.5));
        painter.setBrush(QColor::fromHsv(number * 48, 90, 240));
        painter.drawRoundedRect(QRectF(2.5, 4.5, 15, 12), 2, 2);
        painter.drawLine(QPointF(5, 8 + number % 3), QPointF(15, 8 + number % 3));
        icon.addPixmap(picture);
    }
    return icon;
}

QPalette SideBarStage::DarkDesktop()
{
    QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x2B, 0x2B, 0x2B));
    dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    dark.setColor(QPalette::Highlight, QColor(0x3D, 0xAE, 0xE9));
    return dark;
}

} // namespace tressel
