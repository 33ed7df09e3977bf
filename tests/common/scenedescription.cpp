#include "scenedescription.h"

#include "scene/scanviewscenegraph.h"
#include "scene/visit2drecord.h"

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
    QString description = QStringLiteral("other record");
    visit2DRecord(record, Overloaded{
                              [&](const TVXSPolygon& polygon) {
                                  QStringList parts{QStringLiteral("polygon")};
                                  for (const QPointF& p : polygon.polygon())
                                      parts << point(p);
                                  description = parts.join(QLatin1Char(' '));
                              },
                              [&](const TVXSEllipse& e) { description = QStringLiteral("ellipse ") + rect(e.rectangle()); },
                              [&](const TVXSRectangle& r) { description = QStringLiteral("rectangle ") + rect(r.rectangle()); },
                              [&](const TVXSSimpleText& t) {
                                  description = QStringLiteral("text [%1] at %2 offset %3")
                                                    .arg(t.text(), point(t.position()), point(t.offset()));
                              },
                              [&](const TVXSDimensioning& d) {
                                  description = QStringLiteral("dimensioning %1 %2 %3")
                                                    .arg(d.type())
                                                    .arg(point(d.first()), point(d.second()));
                              },
                          });
    return description;
}

QStringList describeGraph(const ScanViewSceneGraph& graph)
{
    QStringList lines;
    graph.forEachItem(Overloaded{
        [&](const ScanViewEllipse& e) { lines << points(QStringLiteral("ellipse3d"), e); },
        [&](const ScanViewPolygon& p) { lines << points(QStringLiteral("polygon3d"), p); },
        [&](const ScanViewRectangle& r) { lines << points(QStringLiteral("rectangle3d"), r); },
        [&](const ScanViewTextItem& t) { lines << points(QStringLiteral("text3d [%1] at").arg(t.text()), t); },
        [&](const ScanViewMeasurementItem& m) { lines << points(QStringLiteral("measurement3d %1").arg(m.type()), m); },
    });
    return lines;
}

} // namespace TVX::TEST
