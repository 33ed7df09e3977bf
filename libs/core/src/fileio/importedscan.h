#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <memory>

namespace TVX::CORE {

// One point as a reader hands it on: scan frame, metres.
struct ImportedPoint {
    double x{0.0};
    double y{0.0};
    double z{0.0};
    // Grid position in the source's own numbering; -1 when the scan has no grid.
    qint64 column{-1};
    qint64 row{-1};
    bool hasReturn{true}; // false: the beam gave no return, the cell stays empty
    quint8 intensity{0};  // 0 … 255
    quint8 red{0};
    quint8 green{0};
    quint8 blue{0};
};

// One scan of an imported file (several may come from one file), read lazily: the points are
// delivered by cursors and never held whole.
class ImportedScan
{
public:
    // Points in batches. read() fills up to `capacity` points and returns how many; 0 at the end.
    // Bad input throws ImportError.
    class Cursor
    {
    public:
        virtual ~Cursor() = default;
        virtual std::size_t read(ImportedPoint* points, std::size_t capacity) = 0;
        // The same points with their grid positions only (hasReturn false, no coordinates), where
        // a reader can pass over the rest faster than it decodes it.
        virtual std::size_t readGridPositions(ImportedPoint* points, std::size_t capacity)
        {
            const std::size_t count = read(points, capacity);
            for (std::size_t i = 0; i < count; ++i)
                points[i].hasReturn = false;
            return count;
        }
    };

    virtual ~ImportedScan() = default;

    QString fileName; // the imported file, for messages
    QString name;
    // The grid of the source, 0 × 0 when it has none.
    quint32 columns{0};
    quint32 rows{0};
    quint64 pointCount{0};
    bool hasIntensity{false};
    bool hasColour{false};
    // The pose as scan information stores it: row by row, rotation in rows 0 to 2 by columns 0 to
    // 2, translation in m[3], m[7], m[11].
    std::array<double, 16> transformation{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    // Every point in file order.
    virtual std::unique_ptr<Cursor> readAll() const = 0;
    // The points of source columns [first, first + count) of a gridded scan, column by column;
    // empty when the source cannot seek to a column.
    virtual std::unique_ptr<Cursor> readColumns(quint32 first, quint32 count) const;
    // The scan's own spherical panorama, encoded (JPEG or PNG); empty when it has none.
    virtual QByteArray panorama() const;
};

} // namespace TVX::CORE
