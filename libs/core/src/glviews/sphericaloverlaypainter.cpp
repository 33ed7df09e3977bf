#include "glviews/sphericaloverlaypainter.h"

#include "scene/scanviewscenegraph.h"
#include "scene/spheregeometry.h"

#include <QStringList>

#include <GL/gl.h>

#include <FTGL/ftgl.h>

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

namespace {

// The overlay palette.
constexpr float black[4] = {0.0f, 0.0f, 0.0f, 1.0f};
constexpr float white[4] = {1.0f, 1.0f, 1.0f, 1.0f};
constexpr float red[4] = {1.0f, 0.0f, 0.0f, 1.0f};
constexpr float paleYellow[4] = {1.0f, 1.0f, 0.8f, 1.0f};
constexpr float translucentGreen[4] = {0.0f, 0.5f, 0.14f, 0.5f};
constexpr float translucentOrange[4] = {0.96f, 0.63f, 0.23f, 0.5f};

// Edges are drawn as straight pieces of at most a degree, so that they bend with the sphere.
constexpr double edgeStep = M_PI / 180.0;
constexpr double handleHalfSize = 3.5;
constexpr double crossArm = 5.0;
constexpr int markSegments = 24;
constexpr double logoMargin = 8.0;

void strip(const std::vector<ScreenPoint>& points, GLenum mode)
{
    glBegin(mode);
    for (const ScreenPoint& p : points)
        glVertex2d(p.x, p.y);
    glEnd();
}

void square(double x, double y, double half, GLenum mode)
{
    glBegin(mode);
    glVertex2d(x - half, y - half);
    glVertex2d(x + half, y - half);
    glVertex2d(x + half, y + half);
    glVertex2d(x - half, y + half);
    glEnd();
}

std::vector<ScreenPoint> circle(double x, double y, double radius)
{
    std::vector<ScreenPoint> points;
    points.reserve(markSegments);
    for (int i = 0; i < markSegments; ++i) {
        const double a = 2.0 * M_PI * i / markSegments;
        points.push_back({x + radius * std::cos(a), y + radius * std::sin(a), 0.0});
    }
    return points;
}

} // namespace

SphericalOverlayPainter::SphericalOverlayPainter(const CameraView& view, FTFont* font) : m_view(view), m_font(font) {}

SphericalOverlayPainter::HitAreas SphericalOverlayPainter::drawItems(const ScanViewSceneGraph& graph,
                                                                     const MeasurementLabeler& labeler)
{
    m_labeler = labeler;
    m_areas = HitAreas();
    graph.forEachItem([this](const auto& item) { drawItem(item); });
    return std::move(m_areas);
}

void SphericalOverlayPainter::drawItem(const ScanViewEllipse& item)
{
    drawOutline(item.outline(), true);
}

void SphericalOverlayPainter::drawItem(const ScanViewPolygon& item)
{
    const ScanViewPolygon::FillMesh& mesh = item.fillMesh();
    glColor4fv(translucentGreen);
    glBegin(GL_TRIANGLES);
    for (std::size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
        ScreenPoint corners[3];
        bool visible = true;
        for (std::size_t k = 0; k < 3 && visible; ++k) {
            const quint32 index = mesh.indices[i + k];
            visible = index < mesh.vertices.size() && viewToScreen(m_view, mesh.vertices[index], corners[k]);
        }
        if (!visible)
            continue;
        for (const ScreenPoint& corner : corners)
            glVertex2d(corner.x, corner.y);
    }
    glEnd();
    drawOutline(item.points(), item.points().size() > 2);
}

void SphericalOverlayPainter::drawItem(const ScanViewRectangle& item)
{
    // A rectangle still being drawn has fewer than three points: show what there is.
    const std::vector<Vector3d> corners = item.corners();
    drawOutline(corners.empty() ? item.points() : corners, !corners.empty());
}

void SphericalOverlayPainter::drawItem(const ScanViewTextItem& item)
{
    ScreenPoint anchor;
    if (item.text().isEmpty() || !viewToScreenInside(m_view, item.position(), anchor))
        return;
    addHitArea(drawText(item.text(), anchor.x, anchor.y, white), item);
}

void SphericalOverlayPainter::drawItem(const ScanViewMeasurementItem& item)
{
    drawOutline(item.points(), false);
    if (!m_labeler || item.points().size() < 2)
        return;
    const QString label = m_labeler(item);
    const Vector3d middle = unitDirection(item.first()) + unitDirection(item.second());
    ScreenPoint at;
    if (label.isEmpty() || !viewToScreenInside(m_view, middle, at))
        return;
    addHitArea(drawText(label, at.x + 4.0, at.y + 4.0, paleYellow), item);
}

void SphericalOverlayPainter::drawHandles(const ScanViewItem& item)
{
    for (const Vector3d& point : item.points()) {
        ScreenPoint p;
        if (!viewToScreen(m_view, point, p))
            continue;
        glColor4fv(white);
        square(p.x, p.y, handleHalfSize, GL_QUADS);
        glColor4fv(black);
        glLineWidth(1.0f);
        square(p.x, p.y, handleHalfSize, GL_LINE_LOOP);
    }
}

void SphericalOverlayPainter::drawSelectedPoints(const std::vector<Vector3d>& directions)
{
    glColor4fv(red);
    glLineWidth(2.0f);
    glBegin(GL_LINES);
    for (const Vector3d& direction : directions) {
        ScreenPoint p;
        if (!viewToScreen(m_view, direction, p))
            continue;
        glVertex2d(p.x - crossArm, p.y);
        glVertex2d(p.x + crossArm, p.y);
        glVertex2d(p.x, p.y - crossArm);
        glVertex2d(p.x, p.y + crossArm);
    }
    glEnd();
}

void SphericalOverlayPainter::drawStationMarks(std::vector<SphericalStationMark>& marks)
{
    for (SphericalStationMark& mark : marks) {
        ScreenPoint p;
        mark.visible = viewToScreenInside(m_view, Vector3d(mark.x, mark.y, mark.z), p);
        if (!mark.visible)
            continue;
        mark.screenX = qint32(std::floor(p.x));
        mark.screenY = qint32(std::floor(p.y));
        const double radius = mark.size / 2.0;
        const std::vector<ScreenPoint> rim = circle(mark.screenX, mark.screenY, radius);
        glColor4fv(translucentOrange);
        strip(rim, GL_POLYGON);
        glColor4fv(black);
        glLineWidth(2.0f);
        strip(rim, GL_LINE_LOOP);
        glColor4fv(white);
        square(mark.screenX, mark.screenY, 1.5, GL_QUADS);
        drawText(mark.name, mark.screenX + radius + 3.0, mark.screenY - 5.0, paleYellow);
    }
}

void SphericalOverlayPainter::drawLogo(unsigned int texture, int width, int height)
{
    if (texture == 0)
        return;
    const double left = m_view.width - width - logoMargin;
    const double bottom = logoMargin;
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, texture);
    glColor4fv(white);
    glBegin(GL_QUADS);
    glTexCoord2d(0, 0);
    glVertex2d(left, bottom);
    glTexCoord2d(1, 0);
    glVertex2d(left + width, bottom);
    glTexCoord2d(1, 1);
    glVertex2d(left + width, bottom + height);
    glTexCoord2d(0, 1);
    glVertex2d(left, bottom + height);
    glEnd();
    glDisable(GL_TEXTURE_2D);
}

std::vector<std::vector<ScreenPoint>> SphericalOverlayPainter::polylines(const std::vector<Vector3d>& directions,
                                                                         bool closed) const
{
    std::vector<Vector3d> samples;
    const std::size_t n = directions.size();
    const std::size_t edges = closed ? n : (n > 0 ? n - 1 : 0);
    for (std::size_t i = 0; i < edges; ++i) {
        const std::vector<Vector3d> steps = greatCircleSteps(directions[i], directions[(i + 1) % n], edgeStep);
        samples.insert(samples.end(), steps.begin(), steps.end());
    }
    if (n > 0)
        samples.push_back(closed ? directions.front() : directions.back());

    std::vector<std::vector<ScreenPoint>> runs(1);
    for (const Vector3d& sample : samples) {
        ScreenPoint p;
        if (viewToScreen(m_view, sample, p))
            runs.back().push_back(p);
        else if (!runs.back().empty())
            runs.emplace_back();
    }
    return runs;
}

void SphericalOverlayPainter::drawOutline(const std::vector<Vector3d>& directions, bool closed)
{
    for (const std::vector<ScreenPoint>& run : polylines(directions, closed)) {
        if (run.size() < 2)
            continue;
        // A dark edge under the light line keeps it visible on bright panoramas.
        glColor4fv(black);
        glLineWidth(3.0f);
        strip(run, GL_LINE_STRIP);
        glColor4fv(paleYellow);
        glLineWidth(1.5f);
        strip(run, GL_LINE_STRIP);
    }
}

ScreenRect SphericalOverlayPainter::drawText(const QString& text, double x, double y, const float* colour)
{
    ScreenRect covered{x, y, x, y};
    if (!m_font || text.isEmpty())
        return covered;
    const QStringList lines = text.split(QLatin1Char('\n'));
    const double lineHeight = m_font->LineHeight();
    for (int k = 0; k < lines.size(); ++k) {
        const QByteArray utf8 = lines[k].toUtf8();
        const double baseline = y + (lines.size() - 1 - k) * lineHeight;
        glColor4fv(black);
        m_font->Render(utf8.constData(), -1, FTPoint(x + 1.0, baseline - 1.0));
        glColor4fv(colour);
        m_font->Render(utf8.constData(), -1, FTPoint(x, baseline));
        covered.right = std::max(covered.right, x + double(m_font->BBox(utf8.constData()).Upper().Xf()));
    }
    covered.bottom = y + m_font->Descender();
    covered.top = y + (lines.size() - 1) * lineHeight + m_font->Ascender();
    return covered;
}

void SphericalOverlayPainter::addHitArea(const ScreenRect& rect, const ScanViewItem& item)
{
    // Without a font nothing was drawn, and the item is found through its directions instead.
    if (!(rect.right > rect.left))
        return;
    m_areas.rects.push_back(rect);
    m_areas.items.push_back(&item);
}

} // namespace TVX::CORE
