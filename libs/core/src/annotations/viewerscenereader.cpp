#include "annotations/viewerscenereader.h"

#include "annotations/dimensioningtypename.h"
#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxssimpletext.h"
#include "scene/scanviewscenegraph.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <array>
#include <vector>

namespace TVX::CORE {

namespace {

// Deepest nesting below an unknown element that is still skipped. The format itself nests three
// levels; the limit keeps the parser's tag stack small for crafted files.
constexpr int maxSkippedDepth = 256;

// The reader's messages share one translation context.
const char* const messageContext = "TVX::CORE::ViewerSceneReader";
const char* const notViewerFile =
    QT_TRANSLATE_NOOP("TVX::CORE::ViewerSceneReader", "The file is not an Tarvenix viewer version 1.0 or 2.0 file.");
const char* const invalidCount = QT_TRANSLATE_NOOP("TVX::CORE::ViewerSceneReader", "Invalid number of entities");
const char* const unknownType = QT_TRANSLATE_NOOP("TVX::CORE::ViewerSceneReader", "Unknown dimensioning type");
const char* const entitiesDeclared = QT_TRANSLATE_NOOP("TVX::CORE::ViewerSceneReader", "Entity declarations are not supported");
const char* const nestedTooDeeply = QT_TRANSLATE_NOOP("TVX::CORE::ViewerSceneReader", "Elements are nested too deeply");
const char* const errorFormat = QT_TRANSLATE_NOOP("TVX::CORE::ViewerSceneReader", "%1\nLine %2, column %3");

QString translated(const char* message)
{
    return QCoreApplication::translate(messageContext, message);
}

// The numbers of one element: at most nine (three points of x, y, z).
using Numbers = std::array<float, 9>;

Vector3d vectorAt(const Numbers& numbers, std::size_t first)
{
    return {numbers[first], numbers[first + 1], numbers[first + 2]};
}

} // namespace

struct ViewerSceneReader::Private {
    QXmlStreamReader xml;
    SceneItemsTableModel* model = nullptr;
    ScanViewSceneGraph* graph = nullptr;

    explicit Private(QIODevice* device) : xml(device) { xml.setNamespaceProcessing(false); }

    // Raising the error makes the parser report nothing more, so every caller just returns.
    bool fail(const char* message)
    {
        xml.raiseError(translated(message));
        return false;
    }

    bool readDocument();
    bool readItem();
    bool skipElement();

    // Visits the children of the current element; `readChild` gets each child's name and returns
    // false when reading must stop.
    template <typename ReadChild>
    bool readChildren(ReadChild readChild)
    {
        while (xml.readNextStartElement()) {
            if (!readChild(xml.qualifiedName()))
                return false;
        }
        return !xml.hasError();
    }

    bool readNumbers(std::size_t count, Numbers& numbers);
    bool readOneChild(QStringView childName, std::size_t count, Numbers& numbers);
    bool readPoints(QStringView pointName, std::size_t count, std::vector<Numbers>& points);
    bool readDimensioning(QStringView pointName, std::size_t count, std::vector<Numbers>& points, int& type);
    bool readText(std::size_t positionCount, Numbers& position, Numbers* offset, QString& text);

    bool readPlanarPolygon();
    template <typename Record>
    bool readPlanarRectangle();
    bool readPlanarText();
    bool readPlanarDimensioning();
    bool readSphericalPolygon();
    template <typename Item>
    bool readSphericalThreePoints(QStringView childName);
    bool readSphericalText();
    bool readSphericalMeasurement();
};

bool ViewerSceneReader::Private::readDocument()
{
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::StartElement) {
        // Entity declarations are refused outright: expanding them is the one way in which a small
        // file could make the parser build huge texts.
        if (xml.tokenType() == QXmlStreamReader::DTD && !xml.entityDeclarations().isEmpty())
            return fail(entitiesDeclared);
    }
    const QStringView version = xml.attributes().value(QLatin1String("version"));
    if (!xml.isStartElement() || xml.qualifiedName() != u"tvxviewerscene" || (version != u"1.0" && version != u"2.0"))
        return fail(notViewerFile);
    return readChildren([this](QStringView) { return readItem(); });
}

bool ViewerSceneReader::Private::readItem()
{
    const QStringView name = xml.qualifiedName();
    if (name == u"polygonitem")
        return readPlanarPolygon();
    if (name == u"ellipseitem")
        return readPlanarRectangle<TVXSEllipse>();
    if (name == u"rectangleitem")
        return readPlanarRectangle<TVXSRectangle>();
    if (name == u"textitem")
        return readPlanarText();
    if (name == u"dimensioningitem")
        return readPlanarDimensioning();
    if (graph) {
        if (name == u"polygonitem_spherical")
            return readSphericalPolygon();
        if (name == u"ellipseitem_spherical")
            return readSphericalThreePoints<ScanViewEllipse>(u"ellipse_3d");
        if (name == u"rectangleitem_spherical")
            return readSphericalThreePoints<ScanViewRectangle>(u"rectangle_3d");
        if (name == u"textitem_spherical")
            return readSphericalText();
        if (name == u"dimensioningitem_spherical")
            return readSphericalMeasurement();
    }
    return skipElement();
}

bool ViewerSceneReader::Private::skipElement()
{
    for (int depth = 1; depth > 0;) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > maxSkippedDepth)
                return fail(nestedTooDeeply);
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
        }
    }
    return true;
}

bool ViewerSceneReader::Private::readNumbers(std::size_t count, Numbers& numbers)
{
    const QString text = xml.readElementText();
    if (xml.hasError())
        return false;
    // Counting the separators before splitting bounds the work per element, whatever it holds.
    if (std::size_t(text.count(QLatin1Char(','))) + 1 != count)
        return fail(invalidCount);
    std::size_t i = 0;
    for (const QStringView part : QStringView(text).split(QLatin1Char(',')))
        numbers[i++] = part.trimmed().toFloat(); // C locale; 0 when it does not convert
    return true;
}

bool ViewerSceneReader::Private::readOneChild(QStringView childName, std::size_t count, Numbers& numbers)
{
    return readChildren([&](QStringView name) { return name == childName ? readNumbers(count, numbers) : skipElement(); });
}

bool ViewerSceneReader::Private::readPoints(QStringView pointName, std::size_t count, std::vector<Numbers>& points)
{
    return readChildren([&](QStringView name) {
        if (name != pointName)
            return skipElement();
        Numbers point{};
        if (!readNumbers(count, point))
            return false;
        points.push_back(point);
        return true;
    });
}

bool ViewerSceneReader::Private::readDimensioning(QStringView pointName, std::size_t count, std::vector<Numbers>& points, int& type)
{
    // The type sits on the start tag, which the children's reading leaves behind.
    const QString typeName = xml.attributes().value(QLatin1String("type")).toString();
    if (!readPoints(pointName, count, points))
        return false;
    if (points.size() != 2)
        return fail(invalidCount);
    type = dimensioningTypeFromName(typeName);
    if (type < 0)
        return fail(unknownType);
    return true;
}

bool ViewerSceneReader::Private::readText(std::size_t positionCount, Numbers& position, Numbers* offset, QString& text)
{
    return readChildren([&](QStringView name) {
        if (name == u"position")
            return readNumbers(positionCount, position);
        if (offset && name == u"positionOffset")
            return readNumbers(2, *offset);
        if (name == u"text") {
            text = xml.readElementText();
            return !xml.hasError();
        }
        return skipElement();
    });
}

bool ViewerSceneReader::Private::readPlanarPolygon()
{
    std::vector<Numbers> points;
    if (!readPoints(u"point", 2, points))
        return false;
    QPolygonF polygon;
    polygon.reserve(qsizetype(points.size()));
    for (const Numbers& point : points)
        polygon << QPointF(point[0], point[1]);
    model->addItem(std::make_shared<TVXSPolygon>(polygon));
    return true;
}

template <typename Record>
bool ViewerSceneReader::Private::readPlanarRectangle()
{
    Numbers r{};
    if (!readOneChild(u"rectangle", 4, r))
        return false;
    model->addItem(std::make_shared<Record>(QRectF(r[0], r[1], r[2], r[3])));
    return true;
}

bool ViewerSceneReader::Private::readPlanarText()
{
    Numbers position{};
    Numbers offset{};
    QString text;
    if (!readText(2, position, &offset, text))
        return false;
    model->addItem(std::make_shared<TVXSSimpleText>(text, QPointF(position[0], position[1]), QPointF(offset[0], offset[1])));
    return true;
}

bool ViewerSceneReader::Private::readPlanarDimensioning()
{
    std::vector<Numbers> points;
    int type = 0;
    if (!readDimensioning(u"point", 2, points, type))
        return false;
    model->addItem(std::make_shared<TVXSDimensioning>(quint32(type), QPointF(points[0][0], points[0][1]),
                                                      QPointF(points[1][0], points[1][1])));
    return true;
}

bool ViewerSceneReader::Private::readSphericalPolygon()
{
    std::vector<Numbers> points;
    if (!readPoints(u"point_3d", 3, points))
        return false;
    std::vector<Vector3d> vertices;
    vertices.reserve(points.size());
    for (const Numbers& point : points)
        vertices.push_back(vectorAt(point, 0));
    graph->addItem(std::make_shared<ScanViewPolygon>(std::move(vertices)));
    return true;
}

template <typename Item>
bool ViewerSceneReader::Private::readSphericalThreePoints(QStringView childName)
{
    Numbers n{};
    if (!readOneChild(childName, 9, n))
        return false;
    graph->addItem(std::make_shared<Item>(vectorAt(n, 0), vectorAt(n, 3), vectorAt(n, 6)));
    return true;
}

bool ViewerSceneReader::Private::readSphericalText()
{
    Numbers position{};
    QString text;
    if (!readText(3, position, nullptr, text))
        return false;
    graph->addItem(std::make_shared<ScanViewTextItem>(text, vectorAt(position, 0)));
    return true;
}

bool ViewerSceneReader::Private::readSphericalMeasurement()
{
    std::vector<Numbers> points;
    int type = 0;
    if (!readDimensioning(u"point_3d", 3, points, type))
        return false;
    graph->addItem(std::make_shared<ScanViewMeasurementItem>(type, vectorAt(points[0], 0), vectorAt(points[1], 0)));
    return true;
}

ViewerSceneReader::ViewerSceneReader(QIODevice* device) : d(std::make_unique<Private>(device)) {}

ViewerSceneReader::~ViewerSceneReader() = default;

bool ViewerSceneReader::read(SceneItemsTableModel& model, ScanViewSceneGraph* graph)
{
    d->model = &model;
    d->graph = graph;
    return d->readDocument();
}

QString ViewerSceneReader::errorString() const
{
    return translated(errorFormat).arg(message(), QString::number(lineNumber()), QString::number(columnNumber()));
}

QString ViewerSceneReader::message() const
{
    return d->xml.errorString();
}

qint64 ViewerSceneReader::lineNumber() const
{
    return d->xml.lineNumber();
}

qint64 ViewerSceneReader::columnNumber() const
{
    return d->xml.columnNumber();
}

} // namespace TVX::CORE
