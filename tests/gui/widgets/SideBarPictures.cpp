// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/widgets/SideBarStage.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTextStream>

#include <functional>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// One picture: what is done to a new side bar before it is taken.
struct StatePicture {
    QString name;
    QSize size;
    double scale = 1;
    std::function<void(SideBarStage &)> prepare = {};
    bool dark = false;
};

void FirstStart(SideBarStage &stage)
{
    stage.bar.SetColors(SideBarStage::FirstPalette());
}

QList<StatePicture> Pictures()
{
    const QSize first(340, 365);
    const QSize tall(360, 620);
    const QSize least(340, 296);
    const auto own = [](SideBarStage &) {};
    const auto blue = [](SideBarStage &stage) { stage.bar.SetOutlookColors(true); };
    return {
        {u"first-100"_s, first, 1, FirstStart},
        {u"first-200"_s, first, 2, FirstStart},
        {u"first-300"_s, first, 3, FirstStart},
        {u"least-100"_s, least, 1, FirstStart},
        {u"least-200"_s, least, 2, FirstStart},
        {u"tall-200"_s, tall, 2, FirstStart},
        {u"own-200"_s, tall, 2, own},
        {u"blue-200"_s, tall, 2, blue},
        {u"own-dark-200"_s, tall, 2, own, true},
        {u"first-dark-200"_s, tall, 2, FirstStart, true},
        {u"touched-200"_s, tall, 2,
         [](SideBarStage &stage) {
             FirstStart(stage);
             stage.bar.SetVisibleItems(4);
             stage.bar.SetFirstShown(3);
             stage.bar.Items()[4].SetSelected(true);
             stage.bar.SetShowMenu(true);
             stage.widget.setFocus(Qt::TabFocusReason);
         }},
        {u"mirrored-200"_s, tall, 2,
         [](SideBarStage &stage) {
             FirstStart(stage);
             stage.bar.SetVisibleItems(4);
             stage.bar.SetShowMenu(true);
             stage.bar.SetRightToLeft(true);
         }},
        {u"no-images-200"_s, first, 2,
         [](SideBarStage &stage) {
             FirstStart(stage);
             stage.bar.SetImageList({});
         }},
        {u"icons-only-200"_s, least, 2,
         [](SideBarStage &stage) {
             FirstStart(stage);
             stage.pages.first()->setMinimumHeight(220);
             stage.bar.Items()[3].SetSelected(true);
         }},
        {u"large-fonts-200"_s, tall, 2,
         [](SideBarStage &stage) {
             FirstStart(stage);
             stage.bar.SetTitleFont({{u"DejaVu Serif"_s, 15, false, true, false, false}, 0x800000});
             stage.bar.SetCaptionFont({{u"DejaVu Sans"_s, 18, true, false, false, false}, 0x000080});
             stage.bar.Items()[2].SetSelected(true);
         }},
    };
}

bool Save(const StatePicture &picture, const QDir &folder)
{
    const QPalette usual = QApplication::palette();
    if (picture.dark)
        QApplication::setPalette(SideBarStage::DarkDesktop());
    bool saved = false;
    {
        SideBarStage stage;
        picture.prepare(stage);
        stage.widget.resize(picture.size);
        stage.widget.show();
        stage.widget.activateWindow();
        stage.widget.Refresh();
        QApplication::processEvents();
        QImage image(picture.size * picture.scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(picture.scale);
        stage.widget.render(&image);
        saved = image.save(folder.filePath(picture.name + u".png"_s));
    }
    QApplication::setPalette(usual);
    return saved;
}

} // namespace

/// Saves the pictures in the folder that the one argument names.
int main(int count, char **arguments)
{
    QApplication application(count, arguments);
    QApplication::setStyle(u"Fusion"_s);
    const QStringList words = QApplication::arguments();
    if (words.size() != 2 || !QDir().mkpath(words.at(1))) {
        QTextStream(stderr) << "usage: tressel-side-bar-pictures FOLDER\n";
        return 2;
    }
    int failures = 0;
    for (const StatePicture &picture : Pictures())
        failures += Save(picture, QDir(words.at(1))) ? 0 : 1;
    return failures == 0 ? 0 : 1;
}
