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

// As the drawings have them.
constexpr const char *drawnLines = "#2F4858";
constexpr const char *drawnPaper = "#FFFFFF";

bool IsOwn(const Picture &picture)
{
    return !picture.name.isEmpty() && !picture.name.contains(u'/');
}

QByteArray BytesOf(const Picture &picture, const PictureColours &colours)
{
    if (picture.name.isEmpty())
        return picture.bytes;
    QFile file(IsOwn(picture) ? IconPath(picture.name) : picture.name);
    QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (IsOwn(picture) && colours.lines.isValid()) {
        // The paper first: the lines may become white.
        bytes.replace(drawnPaper, colours.paper.name().toLatin1());
        bytes.replace(drawnLines, colours.lines.name().toLatin1());
    }
    return bytes;
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

PictureColours PictureColoursOn(const QColor &ground, const QColor &text)
{
    return qGray(ground.rgb()) < qGray(text.rgb()) ? PictureColours{text, ground} : PictureColours{};
}

QImage ImageOf(const Picture &picture, int pixels, const PictureColours &colours)
{
    if (picture.IsNone() || pixels < 1)
        return {};
    struct Made {
        PictureColours colours;
        QImage image;
    };
    // Only the colours of one desktop are in use at a time, on a few grounds.
    static QHash<std::pair<std::pair<QString, QByteArray>, int>, QList<Made>> decoded;
    QList<Made> &made = decoded[std::pair(std::pair(picture.name, picture.bytes), pixels)];
    for (const Made &each : std::as_const(made)) {
        if (each.colours == colours)
            return each.image;
    }
    made += {colours, Decoded(BytesOf(picture, colours), pixels)};
    return made.last().image;
}

} // namespace tressel
