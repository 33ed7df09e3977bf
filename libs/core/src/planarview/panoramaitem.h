#pragma once

#include <QGraphicsItem>
#include <QPixmap>

#include <vector>

namespace TVX::CORE {

// A scan's panorama in the planar scene, one scene unit per grid cell: an image whose size
// differs from the grid is stretched onto columns × rows. It is kept as tiles of a level-of-detail
// pyramid (each level half the size of the one before), and a paint draws only the tiles that are
// exposed, from the level whose resolution matches the zoom, so that a frame costs about the
// same at any zoom and no huge pixmap is scaled on every paint.
class PanoramaItem final : public QGraphicsItem
{
public:
    static constexpr int tileSize = 256;

    PanoramaItem(const QImage& image, int columns, int rows);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    int levelCount() const { return int(m_levels.size()); }
    // The pyramid level drawn at a scale of screen pixels per image pixel.
    int levelFor(double imagePixelsPerScreenPixel) const;
    // Bytes held by all tiles of all levels.
    qint64 byteCount() const;

private:
    struct Level {
        QSize size; // pixels of this level
        int tilesX{0};
        std::vector<QPixmap> tiles;
    };

    QSize m_imageSize;
    QSizeF m_grid;
    std::vector<Level> m_levels;
};

} // namespace TVX::CORE
