#include "scene/sphericalprojection.h"

#include "scene/spheregeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVX::CORE {

namespace {

// The third row of gluPerspective for near 0.001 and far 10: (far + near) / (near − far) and
// 2·far·near / (near − far), as constants so that picking and drawing agree to the last digit.
constexpr double depthScale = -1.0002000200020002;
constexpr double depthOffset = -0.002000200020002;

// Longest run of steps along one great-circle edge; a tiny step must not make a huge list.
constexpr int maxArcSteps = 4096;

Matrix4d multiplied(const Matrix4d& a, const Matrix4d& b)
{
    Matrix4d r{};
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 4; ++j) {
            for (std::size_t k = 0; k < 4; ++k)
                r[i * 4 + j] += a[i * 4 + k] * b[k * 4 + j];
        }
    }
    return r;
}

std::array<double, 4> applied(const Matrix4d& m, const std::array<double, 4>& v)
{
    std::array<double, 4> r{};
    for (std::size_t i = 0; i < 4; ++i)
        r[i] = m[i * 4] * v[0] + m[i * 4 + 1] * v[1] + m[i * 4 + 2] * v[2] + m[i * 4 + 3] * v[3];
    return r;
}

// Gauss–Jordan with partial pivoting; false for a singular matrix.
bool inverted(Matrix4d m, Matrix4d& inverse)
{
    inverse = Matrix4d{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    for (std::size_t column = 0; column < 4; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < 4; ++row) {
            if (std::abs(m[row * 4 + column]) > std::abs(m[pivot * 4 + column]))
                pivot = row;
        }
        const double p = m[pivot * 4 + column];
        if (!(std::abs(p) > 0.0) || !std::isfinite(p))
            return false;
        for (std::size_t k = 0; k < 4; ++k) {
            std::swap(m[pivot * 4 + k], m[column * 4 + k]);
            std::swap(inverse[pivot * 4 + k], inverse[column * 4 + k]);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            m[column * 4 + k] /= p;
            inverse[column * 4 + k] /= p;
        }
        for (std::size_t row = 0; row < 4; ++row) {
            const double f = m[row * 4 + column];
            if (row == column || f == 0.0)
                continue;
            for (std::size_t k = 0; k < 4; ++k) {
                m[row * 4 + k] -= f * m[column * 4 + k];
                inverse[row * 4 + k] -= f * inverse[column * 4 + k];
            }
        }
    }
    return true;
}

Matrix4d homogeneous(const Matrix3d& r)
{
    return {r(0, 0), r(0, 1), r(0, 2), 0, r(1, 0), r(1, 1), r(1, 2), 0, r(2, 0), r(2, 1), r(2, 2), 0, 0, 0, 0, 1};
}

// Rz(γ)·Ry(β)·Rx(α) with the negated camera angles, as it is written for glLoadMatrixd.
Matrix3d writtenRotation(double angleX, double angleY, double angleZ)
{
    return Matrix3d::rotationZ(-angleZ) * Matrix3d::rotationY(-angleY) * Matrix3d::rotationX(-angleX);
}

// Scan frame to clip coordinates, as GL transforms the sphere.
Matrix4d clipMatrix(const CameraView& view)
{
    const double aspect = double(view.width) / double(view.height > 0 ? view.height : 1);
    return multiplied(perspectiveMatrix(view.fieldOfView, aspect),
                      homogeneous(cameraRotation(view.angleX, view.angleY, view.angleZ)));
}

} // namespace

SphereMesh buildSphereMesh(const AngularExtent& extent, int rings, double radius)
{
    SphereMesh mesh;
    if (rings < 2)
        return mesh;
    const int slices = 2 * rings;
    const double ringStep = M_PI / double(rings - 1);
    const double sliceStep = 2.0 * M_PI / double(slices - 1);
    const double vStart = std::max(extent.verticalMin + M_PI / 2.0, 0.0);
    const double vRange = std::min(extent.verticalMax + M_PI / 2.0, M_PI) - vStart;
    const double hRange = extent.horizontalMax - extent.horizontalMin;

    // Reserved to the exact size, so the arrays hold no slack.
    const std::size_t count = std::size_t(rings - 1) * std::size_t(slices) * 2;
    mesh.vertices.reserve(count);
    mesh.texCoords.reserve(count);
    for (int i = 0; i + 1 < rings; ++i) {
        const double phis[2] = {i * ringStep, (i + 1) * ringStep};
        for (int j = 0; j < slices; ++j) {
            const double lambda = j * sliceStep;
            // Horizontal angles grow clockwise seen from above, against λ.
            const double h = 2.0 * M_PI - lambda;
            float u = 0.0f;
            if (h > extent.horizontalMax)
                u = 1.0f;
            else if (h >= extent.horizontalMin)
                u = float((h - extent.horizontalMin) / hRange);
            for (const double phi : phis) {
                mesh.vertices.push_back({float(radius * std::cos(lambda) * std::sin(phi)),
                                         float(radius * std::sin(lambda) * std::sin(phi)),
                                         float(radius * std::cos(phi))});
                mesh.texCoords.push_back({u, float(((M_PI - phi) - vStart) / vRange)});
            }
        }
    }
    return mesh;
}

Matrix3d cameraRotation(double angleX, double angleY, double angleZ)
{
    return writtenRotation(angleX, angleY, angleZ).transposed();
}

Matrix4d cameraMatrixArray(double angleX, double angleY, double angleZ)
{
    return homogeneous(writtenRotation(angleX, angleY, angleZ));
}

Matrix4d perspectiveMatrix(double fieldOfViewDegrees, double aspect)
{
    const double f = 1.0 / std::tan(fieldOfViewDegrees * M_PI / 180.0 / 2.0);
    return {f / aspect, 0, 0, 0, 0, f, 0, 0, 0, 0, depthScale, depthOffset, 0, 0, -1, 0};
}

Vector3d screenToDirection(const CameraView& view, qint32 x, qint32 y)
{
    if (view.height <= 0 || view.width <= 0)
        return {};
    Matrix4d inverse;
    if (!inverted(clipMatrix(view), inverse))
        return {};
    const double w = view.width;
    const double h = view.height;
    const std::array<double, 4> p = applied(inverse, {2.0 * x / w - 1.0, 2.0 * (h - y) / h - 1.0, 1.0, 1.0});
    if (p[3] == 0.0)
        return {};
    const Vector3d point(p[0] / p[3], p[1] / p[3], p[2] / p[3]);
    if (!(point.dot(point) >= 1e-6))
        return {};
    return point.normalized();
}

bool viewToScreen(const CameraView& view, const Vector3d& point, ScreenPoint& screen)
{
    const Matrix3d rotation = cameraRotation(view.angleX, view.angleY, view.angleZ);
    const Vector3d ahead(-rotation(2, 0), -rotation(2, 1), -rotation(2, 2));
    if (!((point - view.position).dot(ahead) >= 1e-6))
        return false;
    const std::array<double, 4> clip = applied(clipMatrix(view), {point.x, point.y, point.z, 1.0});
    if (!(clip[3] > 0.0))
        return false;
    screen.x = (clip[0] / clip[3] * 0.5 + 0.5) * view.width;
    screen.y = (clip[1] / clip[3] * 0.5 + 0.5) * view.height;
    screen.depth = clip[2] / clip[3] * 0.5 + 0.5;
    return screen.depth >= 1e-5;
}

bool viewToScreenInside(const CameraView& view, const Vector3d& point, ScreenPoint& screen)
{
    if (!viewToScreen(view, point, screen))
        return false;
    const double x = std::floor(screen.x);
    const double y = std::floor(screen.y);
    return !(x + 5 < 0 || y + 5 < 0 || x - 5 > view.width || y + 5 > view.height);
}

QPoint directionToCell(const Vector3d& d, const AngularExtent& extent, quint32 columns, quint32 rows)
{
    const QPoint none(-1, -1);
    if (!(d.dot(d) >= 1e-8))
        return none;
    const double r = d.length();
    const double elevation = std::asin(std::clamp(d.z / r, -1.0, 1.0));
    const double h = std::sqrt(d.x * d.x + d.y * d.y);
    double azimuth = 0.0;
    if (h > 0.0) {
        azimuth = std::acos(std::clamp(d.x / h, -1.0, 1.0));
        if (d.y > 0.0)
            azimuth = 2.0 * M_PI - azimuth;
    }
    const double column = std::round((azimuth - extent.horizontalMin)
                                     / (extent.horizontalMax - extent.horizontalMin) * double(columns));
    const double row = double(rows)
                       - std::round(((elevation + M_PI / 2.0) - (extent.verticalMin + M_PI / 2.0))
                                    / ((extent.verticalMax + M_PI / 2.0) - (extent.verticalMin + M_PI / 2.0))
                                    * double(rows));
    constexpr double lowest = std::numeric_limits<qint32>::min();
    constexpr double highest = std::numeric_limits<qint32>::max();
    if (!(column >= lowest && column <= highest && row >= lowest && row <= highest))
        return none;
    return QPoint(qint32(column), qint32(row));
}

double rotatedAngle(double angle, double deltaDegrees)
{
    double degrees = angle * 180.0 / M_PI + deltaDegrees;
    if (degrees >= 360.0)
        degrees -= 360.0;
    if (degrees < 0.0)
        degrees += 360.0;
    return degrees * M_PI / 180.0;
}

double zoomedIn(double fieldOfView)
{
    const double next = fieldOfView - 4.0;
    return next <= 10.0 ? 10.0 : next;
}

double zoomedOut(double fieldOfView)
{
    const double next = fieldOfView + 4.0;
    return next >= 90.0 ? 90.0 : next;
}

quint32 stationMarkDrawSize(quint32 size)
{
    // Even first, then clamped: 17 gives 18, 33 gives 32.
    quint64 even = size;
    if (even % 2 != 0)
        ++even;
    return quint32(std::clamp<quint64>(even, 16, 32));
}

bool stationMarkHolds(qint32 centreX, qint32 centreY, quint32 size, double x, double y)
{
    const double half = size / 2.0;
    const double dx = x - centreX;
    const double dy = y - centreY;
    return std::abs(dx) <= half && std::abs(dy) <= half && dx * dx + dy * dy <= half * half;
}

int hitAreaAt(const std::vector<ScreenRect>& areas, qint32 column, qint32 rowFromBottom)
{
    const double row = double(rowFromBottom) + 1.0;
    for (std::size_t i = areas.size(); i-- > 0;) {
        const ScreenRect& a = areas[i];
        if (column >= a.left && column <= a.right && row >= a.bottom && row <= a.top)
            return int(i);
    }
    return -1;
}

std::vector<Vector3d> greatCircleSteps(const Vector3d& from, const Vector3d& to, double maxStep)
{
    const Vector3d a = unitDirection(from);
    const Vector3d b = unitDirection(to);
    const double angle = angleBetween(a, b);
    const double sinAngle = std::sin(angle);
    if (a.dot(a) == 0.0 || b.dot(b) == 0.0 || !(sinAngle > 1e-9) || !(maxStep > 0.0))
        return {from};
    const int steps = int(std::min(std::ceil(angle / maxStep), double(maxArcSteps)));
    std::vector<Vector3d> result;
    result.reserve(std::size_t(steps));
    result.push_back(from);
    for (int k = 1; k < steps; ++k) {
        const double t = double(k) / steps;
        result.push_back((a * std::sin((1.0 - t) * angle) + b * std::sin(t * angle)) * (1.0 / sinAngle));
    }
    return result;
}

} // namespace TVX::CORE
