#include "planarview/panoramaitem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

PanoramaItem::PanoramaItem(const QImage& image, int columns, int rows)
    : m_imageSize(image.size()), m_grid(columns, rows)
{
    setFlag(ItemUsesExtendedStyleOption);
    setZValue(-1000);
    QImage level = image.convertToFormat(QImage::Format_RGB32);
    for (;;) {
        Level tiles;
        tiles.size = level.size();
        tiles.tilesX = (level.width() + tileSize - 1) / tileSize;
        const int tilesY = (level.height() + tileSize - 1) / tileSize;
        tiles.tiles.reserve(std::size_t(tiles.tilesX) * std::size_t(tilesY));
        for (int ty = 0; ty < tilesY; ++ty) {
            for (int tx = 0; tx < tiles.tilesX; ++tx)
                tiles.tiles.push_back(QPixmap::fromImage(
                    level.copy(tx * tileSize, ty * tileSize, std::min(tileSize, level.width() - tx * tileSize),
                               std::min(tileSize, level.height() - ty * tileSize))));
        }
        m_levels.push_back(std::move(tiles));
        if (level.width() <= tileSize && level.height() <= tileSize)
            break;
        level = level.scaled(std::max(1, level.width() / 2), std::max(1, level.height() / 2), Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
    }
}

QRectF PanoramaItem::boundingRect() const
{
    return QRectF(QPointF(0, 0), m_grid);
}

int PanoramaItem::levelFor(double imagePixelsPerScreenPixel) const
{
    if (!(imagePixelsPerScreenPixel > 1.0))
        return 0;
    const int level = int(std::floor(std::log2(imagePixelsPerScreenPixel)));
    return std::clamp(level, 0, levelCount() - 1);
}

qint64 PanoramaItem::byteCount() const
{
    qint64 bytes = 0;
    for (const Level& level : m_levels) {
        for (const QPixmap& tile : level.tiles)
            bytes += qint64(tile.width()) * tile.height() * (tile.depth() / 8);
    }
    return bytes;
}

void PanoramaItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    if (m_levels.empty() || m_imageSize.isEmpty())
        return;
    // Scene units per image pixel, and screen pixels per scene unit.
    const double sx = m_grid.width() / m_imageSize.width();
    const double sy = m_grid.height() / m_imageSize.height();
    const double screenPerScene = option->levelOfDetailFromTransform(painter->worldTransform());
    const int index = levelFor(1.0 / (screenPerScene * std::min(sx, sy)));
    const Level& level = m_levels[std::size_t(index)];
    // Scene units per pixel of this level.
    const double lx = m_grid.width() / level.size.width();
    const double ly = m_grid.height() / level.size.height();
    const QRectF exposed = option->exposedRect.intersected(boundingRect());
    const int firstX = std::max(0, int(exposed.left() / (lx * tileSize)));
    const int lastX = std::min(level.tilesX - 1, int(exposed.right() / (lx * tileSize)));
    const int tilesY = int(level.tiles.size()) / std::max(1, level.tilesX);
    const int firstY = std::max(0, int(exposed.top() / (ly * tileSize)));
    const int lastY = std::min(tilesY - 1, int(exposed.bottom() / (ly * tileSize)));
    painter->setRenderHint(QPainter::SmoothPixmapTransform, index > 0);
    for (int ty = firstY; ty <= lastY; ++ty) {
        for (int tx = firstX; tx <= lastX; ++tx) {
            const QPixmap& tile = level.tiles[std::size_t(ty * level.tilesX + tx)];
            const QRectF target(tx * tileSize * lx, ty * tileSize * ly, tile.width() * lx, tile.height() * ly);
            painter->drawPixmap(target, tile, QRectF(tile.rect()));
        }
    }
}

} // namespace TVX::CORE
