// tvxtool demo DIR [--scans N] [--columns C] [--rows R] [--seed S]: a demo project made by a
// simulated terrestrial laser scanner at N stations (at most 500) in one procedural outdoor scene.
// Writes DIR/demo.tvxprj and, per station, DIR/scans/stationNN.tvx with its data file, its
// panorama "stationNN.jpg" (one pixel per cell) and its annotation file "stationNN-viewer.xml".
// Each scan information holds the bounding box of the scan's points. Stations are simulated on
// all cores at once; the same arguments give the same bytes. Progress goes to stderr, a summary as
// JSON to stdout.
#include "demoscene.h"
#include "demorandom.h"
#include "jsonoutput.h"
#include "scannersimulator.h"
#include "toolcommand.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/tvxssimpletext.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxprojectserializer.h"
#include "project/projecttreerecords.h"
#include "scene/scanviewscenegraph.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <optional>
#include <thread>

using namespace TVX::CORE;

namespace TVX::TOOL {

namespace {

struct DemoArguments {
    QString directory;
    int scans = 3;
    quint32 columns = 2048;
    quint32 rows = 1024;
    quint64 seed = 1;
};

// The panorama image is held whole while a scan is written: three bytes a cell.
constexpr quint64 maximumCells = 100'000'000;
constexpr int maximumScans = 500;

template<typename Number>
Number parseNumber(const QString& text, Number low, Number high, const char* what)
{
    bool ok = false;
    const qulonglong value = text.toULongLong(&ok);
    if (!ok || value < qulonglong(low) || value > qulonglong(high))
        throw UsageError(std::string("demo: bad ") + what);
    return Number(value);
}

DemoArguments parseArguments(const QStringList& arguments)
{
    DemoArguments parsed;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (!argument.startsWith(QLatin1String("--"))) {
            if (!parsed.directory.isEmpty())
                throw UsageError("demo: more than one directory");
            parsed.directory = argument;
            continue;
        }
        if (i + 1 >= arguments.size())
            throw UsageError("demo: an option without its value");
        const QString& value = arguments[++i];
        if (argument == QLatin1String("--scans")) {
            const auto scans = parseNumber<quint64>(value, 1, std::numeric_limits<quint64>::max(), "scan count");
            if (scans > quint64(maximumScans))
                throw LimitError("tvxtool demo: at most " + std::to_string(maximumScans) + " scans");
            parsed.scans = int(scans);
        } else if (argument == QLatin1String("--columns")) {
            parsed.columns = parseNumber<quint32>(value, 2, 100000, "column count");
        } else if (argument == QLatin1String("--rows")) {
            parsed.rows = parseNumber<quint32>(value, 2, 100000, "row count");
        } else if (argument == QLatin1String("--seed")) {
            parsed.seed = parseNumber<quint64>(value, 0, std::numeric_limits<quint64>::max(), "seed");
        } else {
            throw UsageError("demo: unknown option");
        }
    }
    if (parsed.directory.isEmpty())
        throw UsageError("demo: missing directory");
    if (quint64(parsed.columns) * parsed.rows > maximumCells)
        throw CommandError("tvxtool demo: at most 100 million cells per scan");
    return parsed;
}

// Planar positions of scene points, if they all lie on the grid and do not straddle the seam
// where the panorama's last column meets its first.
std::optional<QPolygonF> planarOutline(const ScannerSimulator& simulator, const StationSetup& station,
                                       const std::vector<Vector3d>& points)
{
    QPolygonF outline;
    for (const Vector3d& point : points)
        outline << simulator.planarPosition(point);
    const QRectF bounds = outline.boundingRect();
    if (bounds.left() < 0 || bounds.top() < 0 || bounds.right() >= station.columns || bounds.bottom() >= station.rows
        || bounds.width() > station.columns / 2.0)
        return std::nullopt;
    return outline;
}

std::vector<Vector3d> cornersOf(const DemoQuad& quad)
{
    return {quad.begin(), quad.end()};
}

// The landmark whose first corner lies nearest to the station.
const DemoQuad& nearest(const std::vector<DemoQuad>& quads, const Vector3d& station)
{
    return *std::min_element(quads.begin(), quads.end(), [&station](const DemoQuad& a, const DemoQuad& b) {
        return (a[0] - station).length() < (b[0] - station).length();
    });
}

// A few annotations of every planar and spherical kind, on the landmarks that the station sees.
void addAnnotations(const DemoScene& scene, const ScannerSimulator& simulator, const StationSetup& station,
                    SceneItemsTableModel& planar, ScanViewSceneGraph& spherical)
{
    const DemoLandmarks& marks = scene.landmarks();
    const Vector3d here = station.pose.translation;
    const auto direction = [&simulator](const Vector3d& p) { return simulator.toScanFrame(p).normalized(); };

    for (const DemoQuad& door : marks.doors) {
        if (const auto outline = planarOutline(simulator, station, cornersOf(door))) {
            planar.addItem(std::make_shared<TVXSRectangle>(outline->boundingRect()));
            // Width of the door at its foot (3D) and its height (DZ).
            planar.addItem(std::make_shared<TVXSDimensioning>(0, outline->at(0), outline->at(1)));
            planar.addItem(std::make_shared<TVXSDimensioning>(1, outline->at(0), outline->at(3)));
            break;
        }
    }
    for (const DemoQuad& facade : marks.facades) {
        if (const auto outline = planarOutline(simulator, station, cornersOf(facade))) {
            planar.addItem(std::make_shared<TVXSPolygon>(*outline));
            break;
        }
    }
    const auto& spheres = marks.spheres;
    for (std::size_t i = 0; i < spheres.size(); ++i) {
        const auto centre = planarOutline(simulator, station, {spheres[i].centre});
        if (!centre)
            continue;
        const QPointF at = centre->first();
        planar.addItem(std::make_shared<TVXSEllipse>(QRectF(at - QPointF(6, 6), QSizeF(12, 12))));
        planar.addItem(std::make_shared<TVXSSimpleText>(spheres[i].name, at, QPointF(14, -14)));
        const auto next = planarOutline(simulator, station, {spheres[(i + 1) % spheres.size()].centre});
        if (next)
            planar.addItem(std::make_shared<TVXSDimensioning>(2, at, next->first()));
        break;
    }

    const DemoQuad& facade = nearest(marks.facades, here);
    std::vector<Vector3d> outline;
    for (const Vector3d& corner : facade)
        outline.push_back(direction(corner));
    spherical.addItem(std::make_shared<ScanViewPolygon>(outline));
    const DemoQuad& window = nearest(marks.windows, here);
    spherical.addItem(std::make_shared<ScanViewRectangle>(direction(window[0]), direction(window[1]), direction(window[2])));
    const auto& crown = *std::min_element(marks.treeCrowns.begin(), marks.treeCrowns.end(), [&here](const auto& a, const auto& b) {
        return (a.first - here).length() < (b.first - here).length();
    });
    const Vector3d sideways = Vector3d(0, 0, 1).cross(crown.first - here).normalized() * crown.second;
    spherical.addItem(std::make_shared<ScanViewEllipse>(direction(crown.first), direction(crown.first + sideways),
                                                        direction(crown.first + Vector3d(0, 0, crown.second))));
    spherical.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("Parked car"), direction(marks.vehicle)));
    // Measured between two reference spheres: points in the scan frame, not directions.
    spherical.addItem(std::make_shared<ScanViewMeasurementItem>(0, simulator.toScanFrame(spheres[0].centre),
                                                                simulator.toScanFrame(spheres[1].centre)));
}

void describeStation(TVXFileWriter& writer, const DemoScene& scene, const ScannerSimulator& simulator,
                     const StationSetup& station, int number)
{
    TVXFileScanInfo& info = writer.scanInfo();
    info.columns = station.columns;
    info.rows = station.rows;
    info.tileSize = 64;
    info.horizontalMin = station.horizontalMin;
    info.horizontalMax = station.horizontalMax;
    info.verticalMin = station.verticalMin;
    info.verticalMax = station.verticalMax;
    info.transformation = transformationFromPose(station.pose);
    info.text = QStringLiteral("Station %1").arg(number);
    info.channels = {{TVXFileScanInfo::Distance, 0}, {TVXFileScanInfo::Intensity, 0}, {TVXFileScanInfo::Colour, 0}};

    // The files do not name the meta information's texts; the demo uses the first four for the
    // scanner model, its serial number, the operator and the site.
    TVXFileMetaInfo& meta = writer.metaInfo();
    const auto& tags = TVXFileMetaInfo::textTags();
    meta.setText(tags[0], QStringLiteral("TVX Demo Scanner S-120"));
    meta.setText(tags[1], QStringLiteral("S120-%1").arg(hashOf(station.seed) % 900000 + 100000));
    meta.setText(tags[2], QStringLiteral("Demo Operator"));
    meta.setText(tags[3], QStringLiteral("Town Hall Plaza"));
    meta.dateTime = QDateTime(QDate(2021, 6, 14), QTime(9, 30), Qt::UTC).addSecs(qint64(number - 1) * 1500);
    meta.number = quint32(number);

    // Reference spheres with their centres in this scan's frame.
    TVXFileReferenceInfo& references = writer.referenceInfo();
    references.name = QStringLiteral("Scan frame");
    for (const DemoReferenceSphere& sphere : scene.landmarks().spheres) {
        const Vector3d centre = simulator.toScanFrame(sphere.centre);
        references.appendObject(std::make_shared<TVXSReferenceSphere>(
            sphere.name, TVXSReferencePoint::Values{centre.x, centre.y, centre.z, sphere.radius}));
    }
}

void writeProject(const QString& path, const QStringList& scanPaths, quint64 seed)
{
    TVXProjectContent content;
    content.origin = {2683150.0, 1247320.0, 432.5};
    content.coordinateSystems.push_back(
        {QStringLiteral("Site grid"), {2683150.0, 1247320.0, 432.5, 0.0, 0.0, 0.0123 + 0.0001 * double(seed % 7), 1.0}});
    content.scans = scanPaths;
    // scans( Plaza( the first half ) Street( the rest ) ), the scan with identifier i being entry i.
    const auto root = ProjectItemScanGroup::create(QStringLiteral("scans"));
    const auto plaza = ProjectItemScanGroup::create(QStringLiteral("Plaza"));
    const auto street = ProjectItemScanGroup::create(QStringLiteral("Street"));
    root->appendFolder(plaza);
    root->appendFolder(street);
    const int half = (int(scanPaths.size()) + 1) / 2;
    for (int i = 0; i < scanPaths.size(); ++i) {
        const auto node = ProjectItemScan::create(QFileInfo(scanPaths[i]).completeBaseName(), quint64(i));
        (i < half ? plaza : street)->appendScan(node);
    }
    content.tree = projectTreeRecords(root);
    TVXProjectSerializer serializer(path);
    if (!serializer.open(TVXProjectSerializer::WriteOnly))
        throw CommandError(("tvxtool demo: cannot write " + path).toStdString());
    serializer.write(content);
}

// The scan file of station i (from 0), relative to the project directory.
QString stationPath(int i)
{
    return QStringLiteral("scans/station%1.tvx").arg(i + 1, 2, 10, QLatin1Char('0'));
}

// Simulates station i and writes its scan, panorama and annotation files; throws CommandError.
void writeStation(const DemoScene& scene, const DemoArguments& args, const QDir& directory,
                  const std::vector<Vector3d>& places, int i)
{
    const int number = i + 1;
    // One station stands slightly tilted: the second, or the only one.
    const bool tilted = i == (args.scans > 1 ? 1 : 0);
    StationSetup station;
    station.columns = args.columns;
    station.rows = args.rows;
    station.seed = hashOf(args.seed, 100, quint64(i));
    const double height = uniformOf(hashOf(station.seed, 1), 1.5, 1.75); // tripod
    const double heading = uniformOf(hashOf(station.seed, 2), 0.0, 2 * M_PI);
    const double tiltX = tilted ? 1.2 * M_PI / 180 : 0.0;
    const double tiltY = tilted ? -0.8 * M_PI / 180 : 0.0;
    station.pose = stationPose(places[std::size_t(i)] + Vector3d(0, 0, height), heading, tiltX, tiltY);

    const QString scanPath = directory.filePath(stationPath(i));
    ScannerSimulator simulator(scene, station);
    TVXFileWriter writer;
    describeStation(writer, scene, simulator, station, number);
    writer.setCellSource([&simulator](quint32 column, quint32 row) { return simulator.measure(column, row); });
    writer.setMeasureBoundingBox(true);
    int reported = -1;
    writer.setProgress([&reported, number, &args](quint64 done, quint64 total) {
        const int percent = total ? int(done * 100 / total) : 100;
        if (percent / 10 != reported / 10) {
            reported = percent;
            std::fprintf(stderr, "station %d/%d: %d%%\n", number, args.scans, percent);
        }
    });
    QString error;
    if (!writer.write(scanPath, &error))
        throw CommandError(("tvxtool demo: " + error).toStdString());

    const QString base = QFileInfo(scanPath).absolutePath() + QLatin1Char('/') + QFileInfo(scanPath).completeBaseName();
    QImageWriter image(base + QStringLiteral(".jpg"), "jpg");
    image.setQuality(90);
    if (!image.write(simulator.panorama()))
        throw CommandError(("tvxtool demo: " + image.errorString()).toStdString());

    SceneItemsTableModel planar;
    ScanViewSceneGraph spherical;
    addAnnotations(scene, simulator, station, planar, spherical);
    if (!AnnotationFile::save(scanPath, planar, &spherical, &error))
        throw CommandError(("tvxtool demo: " + error).toStdString());
}

} // namespace

int runDemo(const QStringList& arguments)
{
    const DemoArguments args = parseArguments(arguments);
    const QDir directory(args.directory);
    if (!QDir().mkpath(directory.filePath(QStringLiteral("scans"))))
        throw CommandError(("tvxtool demo: cannot create " + args.directory).toStdString());

    const DemoScene scene(args.seed);
    const std::vector<Vector3d> places = scene.stationPlaces(args.scans);
    // Stations share nothing but the scene, which they only read: each worker takes the next
    // station until none is left or one has failed.
    std::vector<std::string> errors(std::size_t(args.scans));
    std::atomic<int> next{0};
    std::atomic<bool> failed{false};
    const auto work = [&] {
        for (int i = next++; i < args.scans && !failed; i = next++) {
            try {
                writeStation(scene, args, directory, places, i);
            } catch (const std::exception& error) {
                errors[std::size_t(i)] = error.what();
                failed = true;
            }
        }
    };
    std::vector<std::thread> workers;
    for (int t = 1; t < std::min(QThread::idealThreadCount(), args.scans); ++t)
        workers.emplace_back(work);
    work();
    for (std::thread& worker : workers)
        worker.join();
    for (const std::string& error : errors)
        if (!error.empty())
            throw CommandError(error);

    QStringList scanPaths;
    QJsonArray scans;
    for (int i = 0; i < args.scans; ++i) {
        scanPaths << stationPath(i);
        scans.append(directory.absoluteFilePath(stationPath(i)));
    }
    const QString projectPath = directory.absoluteFilePath(QStringLiteral("demo.tvxprj"));
    writeProject(projectPath, scanPaths, args.seed);
    printJson({{QStringLiteral("project"), projectPath}, {QStringLiteral("scans"), scans}});
    return 0;
}

} // namespace TVX::TOOL
