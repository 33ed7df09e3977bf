#pragma once

#include <QString>

#include <exception>
#include <functional>

namespace TVX::CORE {

class ImportedScan;

// Turns one imported scan into a scan file pair (through TVXFileWriter) and its panorama ".jpg".
//
// A gridded scan keeps its grid: the angles of its columns and rows are fitted to the measured
// directions (columns and rows are mirrored where the source runs the other way round), and every
// cell stores its distance and the sub-cell offsets that turn the cell's angles into the measured
// direction (clamped to the offsets' range). A scan without a grid is gridded by azimuth and
// elevation around its station at an angular step taken from the points' spacing or given by the
// user; of several points in one cell the one nearest the cell's centre is kept. The scan's pose
// becomes the transformation. The panorama is the scan's own where it has one, else one pixel per
// cell in its colour, or its intensity as grey.
//
// Memory: a gridded source that can be read strip by strip (any PTX; an E57 scan stored column by
// column) is held one tile strip at a time; other sources are held whole as cells (12 bytes each,
// at most maximumGridCells), never as points. The made panorama takes 3 bytes per cell.
class ScanImporter final
{
public:
    struct Options {
        double stepDegrees{0.0}; // grid step for scans without a grid; 0: from the points' spacing
    };
    struct Result {
        quint32 columns{0};
        quint32 rows{0};
        quint64 pointsWithReturn{0};
        bool gridKept{false}; // the source's own grid, not one made from the points
    };
    // (cells done, cells total) now and then; returning false cancels the import.
    using Progress = std::function<bool(quint64 done, quint64 total)>;
    // Thrown by write() when the progress callback cancelled.
    class Cancelled : public std::exception
    {
    public:
        const char* what() const noexcept override { return "import cancelled"; }
    };

    static constexpr quint64 maximumGridCells = 100'000'000;
    static constexpr quint32 tileSize = 64;

    // Writes `scanPath`, its data file and the panorama beside it. Throws ImportError for bad input
    // or a file that cannot be written, Cancelled when `progress` says so; then none of the three
    // files is left behind (files of those names that existed before may be gone).
    static Result write(const ImportedScan& scan, const QString& scanPath, const Options& options,
                        const Progress& progress = nullptr);

    // The panorama's path: beside the scan file, its complete base name and ".jpg".
    static QString panoramaPathFor(const QString& scanPath);
};

} // namespace TVX::CORE
