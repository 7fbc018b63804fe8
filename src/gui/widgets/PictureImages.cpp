// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/PictureImages.h"

#include "widgets/ProgramIcons.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QByteArray BytesOf(const Picture &picture)
{
    if (picture.name.isEmpty())
        return picture.bytes;
    const bool isOwn = !picture.name.contains(u'/');
    QFile file(isOwn ? IconPath(picture.name) : picture.name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QRectF Fitted(const QSizeF &size, int pixels)
{
    const QSizeF fitted = size.scaled(pixels, pixels, Qt::KeepAspectRatio);
    return QRectF(QPointF((pixels - fitted.width()) / 2, (pixels - fitted.height()) / 2), fitted);
}

bool LooksLikeSvg(const QByteArray &bytes)
{
    return bytes.left(1024).contains("<svg");
}

QImage Decoded(const QByteArray &bytes, int pixels)
{
    QImage drawn(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (LooksLikeSvg(bytes)) {
        QSvgRenderer renderer(bytes);
        if (!renderer.isValid())
            return {};
        renderer.render(&painter, Fitted(renderer.defaultSize(), pixels));
        return drawn;
    }
    const QImage picture = QImage::fromData(bytes);
    if (picture.isNull())
        return {};
    const QRectF place = Fitted(picture.size(), pixels);
    painter.drawImage(place.topLeft(),
                      picture.scaled(place.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return drawn;
}

} // namespace

QImage ImageOf(const Picture &picture, int pixels)
{
    if (picture.IsNone() || pixels < 1)
        return {};
    static QHash<std::pair<std::pair<QString, QByteArray>, int>, QImage> decoded;
    const std::pair key(std::pair(picture.name, picture.bytes), pixels);
    auto found = decoded.find(key);
    if (found == decoded.end())
        found = decoded.insert(key, Decoded(BytesOf(picture), pixels));
    return *found;
}

} // namespace tressel
