#pragma once

#include "glviews/sphericalstationmark.h"
#include "scene/sphericalprojection.h"

#include <QString>
#include <QtGlobal>

#include <functional>
#include <vector>

class FTFont;

namespace TVX::CORE {

class ScanViewEllipse;
class ScanViewItem;
class ScanViewMeasurementItem;
class ScanViewPolygon;
class ScanViewRectangle;
class ScanViewSceneGraph;
class ScanViewTextItem;

// What the spherical view draws over its panorama, in widget pixels with the origin at the lower
// left: the scene items, the handles of the item being edited, picked points, station marks and
// the logo. The caller sets up an orthographic projection over the widget with blending on, and
// keeps the GL context current while the painter is used.
class SphericalOverlayPainter final
{
public:
    // Screen rectangles of drawn items, in drawing order, with the item each belongs to.
    struct HitAreas {
        std::vector<ScreenRect> rects;
        std::vector<const ScanViewItem*> items;
    };
    using MeasurementLabeler = std::function<QString(const ScanViewMeasurementItem&)>;

    // Without a font no text is drawn.
    SphericalOverlayPainter(const CameraView& view, FTFont* font);

    // Outlines, fills, texts and measurements; returns the rectangles of texts and labels.
    HitAreas drawItems(const ScanViewSceneGraph& graph, const MeasurementLabeler& labeler);
    // Small squares on the points of `item`.
    void drawHandles(const ScanViewItem& item);
    // A red cross on each picked direction.
    void drawSelectedPoints(const std::vector<Vector3d>& directions);
    // Sets each mark's visible flag and screen position, and draws the visible ones.
    void drawStationMarks(std::vector<SphericalStationMark>& marks);
    // A texture of width × height pixels at the lower right corner; nothing for texture 0.
    void drawLogo(unsigned int texture, int width, int height);

private:
    void drawItem(const ScanViewEllipse& item);
    void drawItem(const ScanViewPolygon& item);
    void drawItem(const ScanViewRectangle& item);
    void drawItem(const ScanViewTextItem& item);
    void drawItem(const ScanViewMeasurementItem& item);
    // Screen polylines through the directions, edges along great circles; cut where a point is
    // not visible.
    std::vector<std::vector<ScreenPoint>> polylines(const std::vector<Vector3d>& directions, bool closed) const;
    void drawOutline(const std::vector<Vector3d>& directions, bool closed);
    // Text with a dark shadow, its lower left at (x, y); returns the rectangle it covers.
    ScreenRect drawText(const QString& text, double x, double y, const float* colour);
    void addHitArea(const ScreenRect& rect, const ScanViewItem& item);

    CameraView m_view;
    FTFont* m_font{nullptr};
    MeasurementLabeler m_labeler;
    HitAreas m_areas;
};

} // namespace TVX::CORE
