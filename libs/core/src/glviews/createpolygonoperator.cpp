#include "glviews/createpolygonoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

CreatePolygonOperator::CreatePolygonOperator() = default;
CreatePolygonOperator::~CreatePolygonOperator() = default;

std::shared_ptr<ScanViewItem> CreatePolygonOperator::startItem(ScanViewSceneGraph& graph, const Vector3d& first)
{
    // The first vertex and the one that follows the cursor.
    const auto polygon = std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{first, first});
    graph.addItem(polygon);
    return polygon;
}

void CreatePolygonOperator::followCursor(const Vector3d& direction)
{
    item()->setPoint(item()->points().size() - 1, direction);
}

bool CreatePolygonOperator::mousePress(const ScanViewEvent& event)
{
    if (event.code != ScanViewEvent::LeftPress || !isCreating())
        return CreateItemOperator::mousePress(event);
    if (!gestureView())
        return false;
    Vector3d vertex;
    if (directionAt(event, vertex)) {
        followCursor(vertex);
        item()->appendPoint(vertex);
    }
    return true;
}

bool CreatePolygonOperator::mouseDoubleClick(const ScanViewEvent& event)
{
    SphericalViewControl* view = isCreating() && event.code == ScanViewEvent::LeftPress ? gestureView() : nullptr;
    if (!view)
        return false;
    item()->removeLastPoint();
    if (item()->points().size() < 3)
        abandon(*view);
    else
        finish(*view);
    return true;
}

} // namespace TVX::CORE
