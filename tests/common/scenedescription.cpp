#include "scenedescription.h"

#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxssimpletext.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::TEST {

using namespace TVX::CORE;

namespace {

QString numbers(std::initializer_list<double> values)
{
    QStringList parts;
    for (const double value : values)
        parts << QString::number(value, 'g', 17);
    return parts.join(QLatin1Char(','));
}

QString point(const QPointF& p)
{
    return numbers({p.x(), p.y()});
}

QString rect(const QRectF& r)
{
    return numbers({r.x(), r.y(), r.width(), r.height()});
}

QString points(const QString& name, const ScanViewItem& item)
{
    QStringList parts{name};
    for (const Vector3d& v : item.points())
        parts << numbers({v.x, v.y, v.z});
    return parts.join(QLatin1Char(' '));
}

} // namespace

QString describeRecord(const TVXSceneItem& record)
{
    if (const auto* polygon = dynamic_cast<const TVXSPolygon*>(&record)) {
        QStringList parts{QStringLiteral("polygon")};
        for (const QPointF& p : polygon->polygon())
            parts << point(p);
        return parts.join(QLatin1Char(' '));
    }
    if (const auto* ellipse = dynamic_cast<const TVXSEllipse*>(&record))
        return QStringLiteral("ellipse ") + rect(ellipse->rectangle());
    if (const auto* rectangle = dynamic_cast<const TVXSRectangle*>(&record))
        return QStringLiteral("rectangle ") + rect(rectangle->rectangle());
    if (const auto* text = dynamic_cast<const TVXSSimpleText*>(&record))
        return QStringLiteral("text [%1] at %2 offset %3").arg(text->text(), point(text->position()), point(text->offset()));
    if (const auto* d = dynamic_cast<const TVXSDimensioning*>(&record))
        return QStringLiteral("dimensioning %1 %2 %3").arg(d->type()).arg(point(d->first()), point(d->second()));
    return QStringLiteral("other record");
}

QStringList describeGraph(const ScanViewSceneGraph& graph)
{
    QStringList lines;
    for (const auto& ellipse : graph.ellipses())
        lines << points(QStringLiteral("ellipse3d"), *ellipse);
    for (const auto& polygon : graph.polygons())
        lines << points(QStringLiteral("polygon3d"), *polygon);
    for (const auto& rectangle : graph.rectangles())
        lines << points(QStringLiteral("rectangle3d"), *rectangle);
    for (const auto& text : graph.textItems())
        lines << points(QStringLiteral("text3d [%1] at").arg(text->text()), *text);
    for (const auto& measurement : graph.measurementItems())
        lines << points(QStringLiteral("measurement3d %1").arg(measurement->type()), *measurement);
    return lines;
}

} // namespace TVX::TEST
