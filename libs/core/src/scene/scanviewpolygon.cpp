#include "scene/scanviewpolygon.h"

#include "scene/planartriangulation.h"
#include "scene/spheregeometry.h"

#include <cmath>

namespace TVX::CORE {

namespace {

// Plane units per integer step of the projected outline: points closer than a millionth of the
// plane's unit (the sphere's radius) merge.
constexpr double planeScale = 1'000'000.0;

// Vertices more than this far from the centre direction are left out of the fill: their central
// projection runs off towards infinity (and behind the station beyond 90°).
constexpr double maxProjectionAngleDegrees = 89.0;

} // namespace

ScanViewPolygon::ScanViewPolygon(std::vector<Vector3d> vertices) : ScanViewItem(std::move(vertices)) {}

const ScanViewPolygon::FillMesh& ScanViewPolygon::fillMesh() const
{
    if (!m_meshValid || m_meshCounter != changeCounter())
        rebuildMesh();
    return m_mesh;
}

bool ScanViewPolygon::hitTest(const Vector3d& direction) const
{
    const FillMesh& mesh = fillMesh();
    if (mesh.vertices.size() < 3 || mesh.indices.size() < 3)
        return false;
    for (std::size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
        if (rayHitsTriangle(direction, mesh.vertices[mesh.indices[i]], mesh.vertices[mesh.indices[i + 1]],
                            mesh.vertices[mesh.indices[i + 2]]))
            return true;
    }
    return false;
}

void ScanViewPolygon::rebuildMesh() const
{
    m_mesh = FillMesh();
    m_meshCounter = changeCounter();
    m_meshValid = true;
    ++m_meshBuilds;

    const std::vector<Vector3d>& vertices = points();
    if (vertices.size() < 3)
        return;
    if (vertices.size() == 3) {
        for (quint32 i = 0; i < 3; ++i) {
            m_mesh.vertices.push_back(unitDirection(vertices[i]));
            m_mesh.indices.push_back(i);
        }
        return;
    }

    // The plane touches the unit sphere at c, the normalised mean of the vertex directions, with c as
    // its normal.
    Vector3d sum;
    for (const Vector3d& v : vertices)
        sum = sum + unitDirection(v);
    const Vector3d c = sum.normalized();
    if (c.dot(c) == 0.0)
        return;
    // First axis across the coordinate axis that c leans on least, so that the cross product is well
    // conditioned; the second completes a right-handed frame (a, b, c).
    const Vector3d least = std::abs(c.x) <= std::abs(c.y) && std::abs(c.x) <= std::abs(c.z)
        ? Vector3d(1.0, 0.0, 0.0)
        : (std::abs(c.y) <= std::abs(c.z) ? Vector3d(0.0, 1.0, 0.0) : Vector3d(0.0, 0.0, 1.0));
    const Vector3d a = least.cross(c).normalized();
    const Vector3d b = c.cross(a);

    const double minCosine = std::cos(maxProjectionAngleDegrees * M_PI / 180.0);
    ClipperLib::Path outline;
    for (const Vector3d& vertex : vertices) {
        const Vector3d v = unitDirection(vertex);
        const double along = v.dot(c);
        // Zero and non-finite vertices come back as zero and fail here too.
        if (!(along > minCosine))
            continue;
        // Central projection: the point where the vertex's own ray meets the plane, relative to c.
        const Vector3d q = v * (1.0 / along) - c;
        outline.push_back({ClipperLib::cInt(std::llround(q.dot(a) * planeScale)),
                           ClipperLib::cInt(std::llround(q.dot(b) * planeScale))});
    }

    ClipperLib::Paths simple;
    ClipperLib::SimplifyPolygon(outline, simple, ClipperLib::pftEvenOdd);
    const std::vector<QPointF> corners = triangulateEvenOdd(simple);
    m_mesh.vertices.reserve(corners.size());
    m_mesh.indices.reserve(corners.size());
    for (const QPointF& corner : corners) {
        m_mesh.indices.push_back(quint32(m_mesh.vertices.size()));
        m_mesh.vertices.push_back((c + a * (corner.x() / planeScale) + b * (corner.y() / planeScale)).normalized());
    }
}

} // namespace TVX::CORE
