#include "jsonoutput.h"
#include "scanfileopener.h"
#include "toolcommand.h"

#include "scene/tvxsreferenceobject.h"
#include "fileio/tvxfilelayertable.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilesceneitems.h"
#include "scene/scanviewscenegraph.h"
#include "scene/visit2drecord.h"

#include <QJsonArray>
#include <QJsonObject>

namespace TVX::TOOL {

using namespace TVX::CORE;

namespace {

QJsonArray pair(double a, double b)
{
    return QJsonArray{a, b};
}

QJsonArray triple(const Vector3d& v)
{
    return QJsonArray{v.x, v.y, v.z};
}

QString tagName(quint32 tag)
{
    return QStringLiteral("0x") + QString::number(tag, 16).toUpper().rightJustified(6, QLatin1Char('0'));
}

QJsonObject scanGeometry(const TVXFileScanInfo& info)
{
    QJsonArray channels;
    for (const auto& channel : info.channels)
        channels.append(QJsonArray{qint64(channel.type), qint64(channel.parameter)});
    QJsonArray transformation;
    for (double value : info.transformation)
        transformation.append(value);
    return QJsonObject{
        {QStringLiteral("scanKind"), qint64(info.scanKind)},
        {QStringLiteral("columns"), qint64(info.columns)},
        {QStringLiteral("rows"), qint64(info.rows)},
        {QStringLiteral("tileSize"), qint64(info.tileSize)},
        {QStringLiteral("horizontalMin"), info.horizontalMin},
        {QStringLiteral("horizontalMax"), info.horizontalMax},
        {QStringLiteral("verticalMin"), info.verticalMin},
        {QStringLiteral("verticalMax"), info.verticalMax},
        {QStringLiteral("channels"), channels},
        {QStringLiteral("recordSize"), qint64(info.recordSize())},
        {QStringLiteral("tilesX"), qint64(info.tilesX())},
        {QStringLiteral("tilesY"), qint64(info.tilesY())},
        {QStringLiteral("transformation"), transformation},
        {QStringLiteral("boundingBoxMin"), triple(info.boundingBoxMin)},
        {QStringLiteral("boundingBoxMax"), triple(info.boundingBoxMax)},
        {QStringLiteral("text"), info.text},
        {QStringLiteral("segments"), qint64(info.segments.size())},
    };
}

QJsonArray layers(const TVXFileLayerTable& table)
{
    QJsonArray list;
    for (const auto& layer : table.layers) {
        list.append(QJsonObject{{QStringLiteral("id"), qint64(layer.id)},
                                {QStringLiteral("name"), layer.name},
                                {QStringLiteral("flags"), QJsonArray{layer.flag1, layer.flag2}}});
    }
    return list;
}

QJsonObject meta(const TVXFileMetaInfo& info)
{
    QJsonObject texts;
    for (quint32 tag : TVXFileMetaInfo::textTags())
        texts.insert(tagName(tag), info.text(tag).isNull() ? QString(QLatin1String("")) : info.text(tag));
    QJsonObject extra;
    for (auto it = info.extra.constBegin(); it != info.extra.constEnd(); ++it)
        extra.insert(tagName(it.key()), QJsonValue::fromVariant(it.value()));
    return QJsonObject{
        {QStringLiteral("texts"), texts},
        {QStringLiteral("dateTime"), info.dateTime.isNull() ? QJsonValue(QJsonValue::Null)
                                                            : QJsonValue(info.dateTime.toString(Qt::ISODateWithMs))},
        {QStringLiteral("number"), qint64(info.number)},
        {QStringLiteral("extra"), extra},
    };
}

QJsonObject reference(const TVXFileReferenceInfo& info)
{
    QJsonArray objects;
    for (const auto& object : info.objects())
        objects.append(QJsonObject{{QStringLiteral("kind"), qint64(object->kind())},
                                   {QStringLiteral("name"), object->name()}});
    return QJsonObject{{QStringLiteral("name"), info.name},
                       {QStringLiteral("flag"), info.flag},
                       {QStringLiteral("objects"), objects}};
}

QJsonArray rectangle(const QRectF& r)
{
    return QJsonArray{r.x(), r.y(), r.width(), r.height()};
}

QJsonObject sceneItem(const TVXSceneItem& item)
{
    QJsonObject entry{{QStringLiteral("kind"), 0}};
    visit2DRecord(item, Overloaded{
                            [&](const TVXSPolygon& polygon) {
                                QJsonArray points;
                                for (const QPointF& p : polygon.polygon())
                                    points.append(pair(p.x(), p.y()));
                                entry = {{QStringLiteral("kind"), 1}, {QStringLiteral("points"), points}};
                            },
                            [&](const TVXSRectangle& r) {
                                entry = {{QStringLiteral("kind"), 2}, {QStringLiteral("rect"), rectangle(r.rectangle())}};
                            },
                            [&](const TVXSEllipse& e) {
                                entry = {{QStringLiteral("kind"), 3}, {QStringLiteral("rect"), rectangle(e.rectangle())}};
                            },
                            [&](const TVXSSimpleText& t) {
                                entry = {{QStringLiteral("kind"), 4},
                                         {QStringLiteral("text"), t.text()},
                                         {QStringLiteral("position"), pair(t.position().x(), t.position().y())},
                                         {QStringLiteral("offset"), pair(t.offset().x(), t.offset().y())}};
                            },
                            [&](const TVXSDimensioning& d) {
                                entry = {{QStringLiteral("kind"), 6},
                                         {QStringLiteral("type"), qint64(d.type())},
                                         {QStringLiteral("points"), QJsonArray{pair(d.first().x(), d.first().y()),
                                                                               pair(d.second().x(), d.second().y())}}};
                            },
                        });
    return entry;
}

QJsonObject scene3d(const ScanViewSceneGraph* graph)
{
    auto count = [graph](auto list) { return graph ? qint64((graph->*list)().size()) : qint64(0); };
    return {{QStringLiteral("polygons"), count(&ScanViewSceneGraph::polygons)},
            {QStringLiteral("rectangles"), count(&ScanViewSceneGraph::rectangles)},
            {QStringLiteral("ellipses"), count(&ScanViewSceneGraph::ellipses)},
            {QStringLiteral("texts"), count(&ScanViewSceneGraph::textItems)},
            {QStringLiteral("measurements"), count(&ScanViewSceneGraph::measurementItems)}};
}

} // namespace

int runInfo(const QStringList& arguments)
{
    if (arguments.size() != 1 || arguments.first().startsWith(QLatin1Char('-')))
        throw UsageError("info takes one scan file");
    const auto file = openScanFile(arguments.first());

    QJsonObject info = scanGeometry(file->scanInfo());
    info.insert(QStringLiteral("path"), file->path());
    info.insert(QStringLiteral("formatVersion"), qint64(file->formatVersion()));
    info.insert(QStringLiteral("writerVersion"),
                QJsonArray{qint64(file->writerMajor()), qint64(file->writerMinor()), qint64(file->writerPatch())});
    info.insert(QStringLiteral("layers"), layers(file->layerTable()));
    info.insert(QStringLiteral("meta"), meta(file->metaInfo()));
    info.insert(QStringLiteral("reference"), reference(file->referenceInfo()));
    QJsonArray items;
    for (const auto& item : file->sceneItems().items)
        items.append(sceneItem(*item));
    info.insert(QStringLiteral("sceneItems"), items);
    info.insert(QStringLiteral("scene3d"), scene3d(file->sceneGraph().get()));
    printJson(info);
    return 0;
}

} // namespace TVX::TOOL
