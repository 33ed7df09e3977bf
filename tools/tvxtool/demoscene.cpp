#include "demoscene.h"

#include "demorandom.h"

#include <algorithm>
#include <cmath>
#include <limits>

using TVX::CORE::Vector3d;

namespace TVX::TOOL {

namespace {

constexpr double epsilon = 1e-6;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double groundRadius = 400.0;

// Façades: storeys, window bays (from the building's corner on) and one door in the middle of a
// face. Heights count from the building's foot.
constexpr double storeyHeight = 3.2;
constexpr double bayWidth = 2.6;
constexpr double bayMargin = 0.9;
constexpr double windowLeft = 0.7, windowRight = 1.9;   // inside a bay
constexpr double windowBottom = 0.9, windowTop = 2.5;   // inside a storey
constexpr double parapet = 1.0;                          // no windows in the top metre
constexpr double doorHalfWidth = 0.8, doorHeight = 2.4;
constexpr double frameWidth = 0.1;
constexpr double windowDepth = 0.2, doorDepth = 0.15;   // recess behind the façade

// The road runs along x.
constexpr double roadY = -15.0, roadHalfWidth = 3.5;

const Vector3d sun = Vector3d(0.45, -0.35, 0.82).normalized();
constexpr QRgb horizon = 0xFFCDDCEE;
constexpr QRgb zenith = 0xFF5082D2;

double component(const Vector3d& v, int axis)
{
    return axis == 0 ? v.x : axis == 1 ? v.y : v.z;
}

struct Aabb {
    Vector3d lo{infinity, infinity, infinity};
    Vector3d hi{-infinity, -infinity, -infinity};

    void grow(const Vector3d& p)
    {
        lo = {std::min(lo.x, p.x), std::min(lo.y, p.y), std::min(lo.z, p.z)};
        hi = {std::max(hi.x, p.x), std::max(hi.y, p.y), std::max(hi.z, p.z)};
    }
    void grow(const Aabb& b)
    {
        grow(b.lo);
        grow(b.hi);
    }
    Vector3d centre() const { return (lo + hi) * 0.5; }
    // Slab test against the ray's inverse direction.
    bool hit(const Vector3d& origin, const Vector3d& inverse, double tMax) const
    {
        double t0 = 0.0, t1 = tMax;
        for (int axis = 0; axis < 3; ++axis) {
            const double inv = component(inverse, axis), o = component(origin, axis);
            double a = (component(lo, axis) - o) * inv;
            double b = (component(hi, axis) - o) * inv;
            if (a > b)
                std::swap(a, b);
            t0 = std::max(t0, a);
            t1 = std::min(t1, b);
            if (t0 > t1)
                return false;
        }
        return true;
    }
};

struct Primitive {
    enum Kind : quint8 { Box, Cylinder, Sphere };
    Kind kind = Box;
    Material material = Material::Plaster;
    Material top = Material::Roof; // boxes: the face looking up
    bool facade = false;           // boxes: windows on the vertical faces
    int doorFace = -1;             // boxes: the face with a door, 0 −x, 1 +x, 2 −y, 3 +y
    bool porous = false;           // leaves: some rays pass between them
    QRgb tint = 0;
    Vector3d a, b; // box: minimum, maximum; cylinder: base centre, unit axis; sphere: centre
    double radius = 0.0, length = 0.0;

    Aabb bounds() const
    {
        Aabb box;
        if (kind == Box) {
            box.grow(a);
            box.grow(b);
        } else if (kind == Sphere) {
            box.grow(a - Vector3d(radius, radius, radius));
            box.grow(a + Vector3d(radius, radius, radius));
        } else {
            const Vector3d r(radius, radius, radius);
            box.grow(a - r);
            box.grow(a + r);
            box.grow(a + b * length - r);
            box.grow(a + b * length + r);
        }
        return box;
    }
};

// An opening of a façade in face coordinates: s along the face, z above the building's foot.
struct Opening {
    double s0, s1, z0, z1;
    bool door;
};

int faceOf(const Vector3d& normal)
{
    if (std::abs(normal.x) > 0.5)
        return normal.x < 0 ? 0 : 1;
    if (std::abs(normal.y) > 0.5)
        return normal.y < 0 ? 2 : 3;
    return -1;
}

// Along-face coordinate of a point, and the face's extent in it.
double alongFace(int face, const Vector3d& p)
{
    return face < 2 ? p.y : p.x;
}

std::pair<double, double> faceExtent(const Primitive& box, int face)
{
    return face < 2 ? std::make_pair(box.a.y, box.b.y) : std::make_pair(box.a.x, box.b.x);
}

// The opening (door or window) whose frame contains (s, z) on a face, if any.
bool openingAt(const Primitive& box, int face, double s, double z, Opening& opening)
{
    const auto [start, end] = faceExtent(box, face);
    const double middle = 0.5 * (start + end);
    if (face == box.doorFace) {
        opening = {middle - doorHalfWidth, middle + doorHalfWidth, 0.0, doorHeight, true};
        if (s >= opening.s0 - frameWidth && s <= opening.s1 + frameWidth && z <= opening.z1 + frameWidth)
            return true;
    }
    if (z > box.b.z - box.a.z - parapet)
        return false;
    const double bay = std::floor((s - start - bayMargin) / bayWidth);
    const double storey = std::floor(z / storeyHeight);
    if (bay < 0)
        return false;
    const double bayStart = start + bayMargin + bay * bayWidth;
    if (bayStart + windowRight > end - 0.3)
        return false;
    // The bays beside the door stay closed.
    if (face == box.doorFace && storey == 0 && std::abs(bayStart + 0.5 * (windowLeft + windowRight) - middle) < 2.2)
        return false;
    opening = {bayStart + windowLeft, bayStart + windowRight, storey * storeyHeight + windowBottom,
               storey * storeyHeight + windowTop, false};
    return s >= opening.s0 - frameWidth && s <= opening.s1 + frameWidth && z >= opening.z0 - frameWidth
           && z <= opening.z1 + frameWidth;
}

Vector3d facePoint(const Primitive& box, int face, double s, double z)
{
    const double foot = box.a.z;
    switch (face) {
    case 0:
        return {box.a.x, s, foot + z};
    case 1:
        return {box.b.x, s, foot + z};
    case 2:
        return {s, box.a.y, foot + z};
    default:
        return {s, box.b.y, foot + z};
    }
}

DemoQuad quadOn(const Primitive& box, int face, double s0, double s1, double z0, double z1)
{
    return {facePoint(box, face, s0, z0), facePoint(box, face, s1, z0), facePoint(box, face, s1, z1),
            facePoint(box, face, s0, z1)};
}

bool intersectBox(const Primitive& box, const Vector3d& o, const Vector3d& d, SurfaceHit& hit)
{
    double tNear = -infinity, tFar = infinity;
    int axisNear = -1;
    for (int axis = 0; axis < 3; ++axis) {
        const double di = component(d, axis), oi = component(o, axis);
        const double lo = component(box.a, axis), hi = component(box.b, axis);
        if (std::abs(di) < 1e-15) {
            if (oi < lo || oi > hi)
                return false;
            continue;
        }
        double t1 = (lo - oi) / di, t2 = (hi - oi) / di;
        if (t1 > t2)
            std::swap(t1, t2);
        if (t1 > tNear) {
            tNear = t1;
            axisNear = axis;
        }
        tFar = std::min(tFar, t2);
    }
    if (axisNear < 0 || tNear > tFar || tNear < epsilon)
        return false;
    Vector3d normal;
    const double sign = component(d, axisNear) > 0 ? -1.0 : 1.0;
    normal = axisNear == 0 ? Vector3d(sign, 0, 0) : axisNear == 1 ? Vector3d(0, sign, 0) : Vector3d(0, 0, sign);
    hit.distance = tNear;
    hit.point = o + d * tNear;
    hit.normal = normal;
    hit.tint = box.tint;
    hit.material = normal.z > 0.5 ? box.top : box.material;
    const int face = faceOf(normal);
    if (!box.facade || face < 0)
        return true;
    Opening opening{};
    const double s = alongFace(face, hit.point);
    const double z = hit.point.z - box.a.z;
    if (!openingAt(box, face, s, z, opening))
        return true;
    const bool inside = s > opening.s0 && s < opening.s1 && z > opening.z0 && z < opening.z1;
    if (!inside) {
        hit.material = Material::Frame;
        return true;
    }
    // The glass or the door sits back in the wall; where the ray would meet the reveal instead,
    // the frame's colour stands for it.
    const double back = hit.distance + (opening.door ? doorDepth : windowDepth) / std::abs(d.dot(normal));
    const Vector3d p = o + d * back;
    const double s2 = alongFace(face, p), z2 = p.z - box.a.z;
    if (s2 < opening.s0 || s2 > opening.s1 || z2 < opening.z0 || z2 > opening.z1) {
        hit.material = Material::Frame;
        return true;
    }
    hit.distance = back;
    hit.point = p;
    hit.material = opening.door ? Material::Door : Material::Glass;
    return true;
}

bool leafGap(const Vector3d& p, quint64 seed)
{
    return valueNoise(p.x * 2.3, p.y * 2.3, p.z * 2.3, seed) < 0.36;
}

bool intersectSphere(const Primitive& sphere, const Vector3d& o, const Vector3d& d, quint64 seed, SurfaceHit& hit)
{
    const Vector3d oc = o - sphere.a;
    const double b = oc.dot(d);
    const double c = oc.dot(oc) - sphere.radius * sphere.radius;
    const double disc = b * b - c;
    if (disc < 0)
        return false;
    const double root = std::sqrt(disc);
    for (const double t : {-b - root, -b + root}) {
        if (t < epsilon)
            continue;
        const Vector3d p = o + d * t;
        if (sphere.porous && leafGap(p, seed))
            continue;
        hit.distance = t;
        hit.point = p;
        hit.normal = (p - sphere.a).normalized();
        if (hit.normal.dot(d) > 0)
            hit.normal = -hit.normal;
        hit.material = sphere.material;
        hit.tint = sphere.tint;
        return true;
    }
    return false;
}

bool intersectCylinder(const Primitive& cylinder, const Vector3d& o, const Vector3d& d, SurfaceHit& hit)
{
    const Vector3d& u = cylinder.b;
    const Vector3d oc = o - cylinder.a;
    const Vector3d dPerp = d - u * d.dot(u);
    const Vector3d ocPerp = oc - u * oc.dot(u);
    double best = infinity;
    Vector3d normal;
    const double a = dPerp.dot(dPerp);
    if (a > 1e-12) {
        const double b = 2.0 * ocPerp.dot(dPerp);
        const double c = ocPerp.dot(ocPerp) - cylinder.radius * cylinder.radius;
        const double disc = b * b - 4 * a * c;
        if (disc >= 0) {
            const double t = (-b - std::sqrt(disc)) / (2 * a);
            const double h = (oc + d * t).dot(u);
            if (t > epsilon && h >= 0 && h <= cylinder.length) {
                best = t;
                normal = (ocPerp + dPerp * t).normalized();
            }
        }
    }
    const double along = d.dot(u);
    if (std::abs(along) > 1e-12) {
        for (const double capHeight : {0.0, cylinder.length}) {
            const double t = (capHeight - oc.dot(u)) / along;
            const Vector3d p = oc + d * t;
            const Vector3d radial = p - u * p.dot(u);
            if (t > epsilon && t < best && radial.dot(radial) <= cylinder.radius * cylinder.radius) {
                best = t;
                normal = along > 0 ? -u : u;
            }
        }
    }
    if (best == infinity)
        return false;
    hit.distance = best;
    hit.point = o + d * best;
    hit.normal = normal;
    hit.material = cylinder.material;
    hit.tint = cylinder.tint;
    return true;
}

struct BvhNode {
    Aabb box;
    int left = -1; // -1: a leaf holding primitives [first, first + count)
    int right = -1;
    int first = 0;
    int count = 0;
};

QRgb mixColour(QRgb a, QRgb b, double t)
{
    const auto channel = [t](int x, int y) { return int(std::lround(x + (y - x) * t)); };
    return qRgb(channel(qRed(a), qRed(b)), channel(qGreen(a), qGreen(b)), channel(qBlue(a), qBlue(b)));
}

QRgb scaled(QRgb colour, double factor)
{
    const auto channel = [factor](int x) { return std::clamp(int(std::lround(x * factor)), 0, 255); };
    return qRgb(channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)));
}

} // namespace

struct DemoScene::Private {
    quint64 seed{0};
    std::vector<Primitive> primitives;
    std::vector<BvhNode> nodes;
    DemoLandmarks landmarks;

    double random(quint64 purpose, quint64 index, double low, double high) const
    {
        return uniformOf(hashOf(seed, purpose, index), low, high);
    }
    Primitive& add(Primitive primitive)
    {
        primitives.push_back(primitive);
        return primitives.back();
    }
    Primitive& addBox(const Vector3d& lo, const Vector3d& hi, Material material, Material top = Material::Roof)
    {
        Primitive box;
        box.a = lo;
        box.b = hi;
        box.material = material;
        box.top = top;
        return add(box);
    }
    void addCylinder(const Vector3d& base, const Vector3d& axis, double length, double radius, Material material)
    {
        Primitive cylinder;
        cylinder.kind = Primitive::Cylinder;
        cylinder.a = base;
        cylinder.b = axis.normalized();
        cylinder.length = length;
        cylinder.radius = radius;
        cylinder.material = material;
        add(cylinder);
    }
    void addSphere(const Vector3d& centre, double radius, Material material, bool porous = false)
    {
        Primitive sphere;
        sphere.kind = Primitive::Sphere;
        sphere.a = centre;
        sphere.radius = radius;
        sphere.material = material;
        sphere.porous = porous;
        add(sphere);
    }
    void addBuilding(const Vector3d& lo, const Vector3d& hi, Material material, QRgb tint, int doorFace,
                     bool plazaSide);
    void build();
    int buildNode(int first, int count);
};

void DemoScene::Private::addBuilding(const Vector3d& lo, const Vector3d& hi, Material material, QRgb tint,
                                     int doorFace, bool plazaSide)
{
    Primitive& box = addBox(lo, hi, material);
    box.facade = true;
    box.tint = tint;
    box.doorFace = doorFace;
    if (!plazaSide)
        return;
    const Primitive building = box;
    const auto [start, end] = faceExtent(building, doorFace);
    const double middle = 0.5 * (start + end);
    landmarks.facades.push_back(quadOn(building, doorFace, start, end, 0.0, hi.z - lo.z));
    landmarks.doors.push_back(quadOn(building, doorFace, middle - doorHalfWidth, middle + doorHalfWidth, 0.0, doorHeight));
    // Ground floor windows, found the way the façade finds them at a hit.
    for (double s = start + bayMargin + 0.5 * (windowLeft + windowRight); s < end; s += bayWidth) {
        Opening opening{};
        if (openingAt(building, doorFace, s, storeyHeight * 0.5, opening) && !opening.door)
            landmarks.windows.push_back(quadOn(building, doorFace, opening.s0, opening.s1, opening.z0, opening.z1));
    }
}

void DemoScene::Private::build()
{
    // Around the plaza: a town hall with a portico (door to the plaza, −y), a brick building (door
    // to −x) and a grey one (door to +x).
    addBuilding({-14, 12, 0}, {6, 22, 13}, Material::Plaster, qRgb(226, 208, 176), 2, true);
    addBuilding({14, -10, 0}, {24, 8, 10}, Material::Brick, 0, 0, true);
    addBuilding({-27, -9, 0}, {-16, 4, 16.5}, Material::Plaster, qRgb(196, 202, 208), 1, true);
    for (int i = 0; i < 6; ++i)
        addCylinder({-12.2 + 3.2 * i, 9.6, 0}, {0, 0, 1}, 4.6, 0.3, Material::Stone);
    addBox({-12.8, 9.0, 4.6}, {4.4, 12.0, 5.3}, Material::Stone, Material::Stone);

    // A car parked in the road's northern lane.
    const double carX = 6.0 + random(1, 0, -1.5, 1.5);
    Primitive& body = addBox({carX - 2.1, -14.4, 0.33}, {carX + 2.1, -12.6, 1.1}, Material::CarPaint, Material::CarPaint);
    const int hue = int(random(1, 1, 0, 4));
    const QRgb paints[] = {qRgb(160, 24, 28), qRgb(28, 62, 140), qRgb(210, 210, 205), qRgb(40, 110, 70)};
    body.tint = paints[hue];
    Primitive& cabin = addBox({carX - 1.2, -14.3, 1.1}, {carX + 0.9, -12.7, 1.62}, Material::CarGlass, Material::CarPaint);
    cabin.tint = paints[hue];
    for (const double wheelX : {carX - 1.35, carX + 1.35})
        addCylinder({wheelX, -14.5, 0.33}, {0, 1, 0}, 2.0, 0.33, Material::Tyre);
    landmarks.vehicle = {carX, -13.5, 0.8};

    // Street lamps along the road.
    for (int i = 0; i < 5; ++i) {
        const double x = -20 + 10.0 * i;
        addCylinder({x, -10.9, 0}, {0, 0, 1}, 5.0, 0.06, Material::Pole);
        addSphere({x, -10.9, 5.2}, 0.22, Material::Frame);
    }

    // Trees: trunk and a crown of three overlapping spheres of leaves.
    const Vector3d trees[] = {{-9, -7, 0}, {10, -6.5, 0}, {-10.5, 6, 0}, {9.5, 7.5, 0}, {-2, -9.2, 0}, {17, -23, 0}, {-6, -24, 0}};
    for (int i = 0; i < int(std::size(trees)); ++i) {
        const Vector3d base = trees[i] + Vector3d(random(2, quint64(i), -0.5, 0.5), random(3, quint64(i), -0.5, 0.5), 0);
        const double height = random(4, quint64(i), 2.6, 3.6);
        const double crown = random(5, quint64(i), 1.6, 2.4);
        addCylinder(base, {0, 0, 1}, height + crown * 0.5, 0.17, Material::Bark);
        const Vector3d centre = base + Vector3d(0, 0, height + crown * 0.6);
        addSphere(centre, crown, Material::Leaves, true);
        addSphere(centre + Vector3d(0.6 * crown, 0.2 * crown, 0.3 * crown), 0.7 * crown, Material::Leaves, true);
        addSphere(centre + Vector3d(-0.4 * crown, -0.5 * crown, 0.5 * crown), 0.65 * crown, Material::Leaves, true);
        landmarks.treeCrowns.emplace_back(centre, crown);
    }

    // Reference spheres of 145 mm on poles, 7 m around the plaza's centre.
    for (int i = 0; i < 4; ++i) {
        const double angle = (20.0 + 90.0 * i) * M_PI / 180.0;
        const Vector3d centre(7.0 * std::cos(angle), 7.0 * std::sin(angle), random(6, quint64(i), 1.35, 1.65));
        const double radius = 0.0725;
        addSphere(centre, radius, Material::Target);
        addCylinder({centre.x, centre.y, 0}, {0, 0, 1}, centre.z - radius, 0.015, Material::Pole);
        landmarks.spheres.push_back({QStringLiteral("Sphere %1").arg(i + 1), centre, radius});
    }

    // A ring of distant buildings, away from the road.
    const QRgb plasters[] = {qRgb(232, 220, 196), qRgb(210, 186, 160), qRgb(190, 196, 204), qRgb(236, 232, 222)};
    for (int i = 0; i < 16; ++i) {
        const double angle = 2 * M_PI * i / 16 + random(7, quint64(i), -0.12, 0.12);
        const double distance = random(8, quint64(i), 58, 88);
        const Vector3d centre(distance * std::cos(angle), distance * std::sin(angle), 0);
        const double halfX = random(9, quint64(i), 6, 11), halfY = random(10, quint64(i), 5, 9);
        if (std::abs(centre.y - roadY) < halfY + roadHalfWidth + 2)
            continue;
        const bool brick = random(11, quint64(i), 0, 1) < 0.3;
        addBuilding({centre.x - halfX, centre.y - halfY, 0}, {centre.x + halfX, centre.y + halfY, random(12, quint64(i), 8, 28)},
                    brick ? Material::Brick : Material::Plaster, plasters[i % 4], -1, false);
    }
    nodes.clear();
    buildNode(0, int(primitives.size()));
}

int DemoScene::Private::buildNode(int first, int count)
{
    const int index = int(nodes.size());
    nodes.emplace_back();
    Aabb box, centres;
    for (int i = first; i < first + count; ++i) {
        const Aabb bounds = primitives[std::size_t(i)].bounds();
        box.grow(bounds);
        centres.grow(bounds.centre());
    }
    nodes[std::size_t(index)].box = box;
    if (count <= 2) {
        nodes[std::size_t(index)].first = first;
        nodes[std::size_t(index)].count = count;
        return index;
    }
    // Split at the median of the widest spread of centres.
    const Vector3d spread = centres.hi - centres.lo;
    const int axis = spread.x >= spread.y && spread.x >= spread.z ? 0 : spread.y >= spread.z ? 1 : 2;
    const auto begin = primitives.begin() + first;
    std::nth_element(begin, begin + count / 2, begin + count, [axis](const Primitive& p, const Primitive& q) {
        return component(p.bounds().centre(), axis) < component(q.bounds().centre(), axis);
    });
    const int left = buildNode(first, count / 2);
    const int right = buildNode(first + count / 2, count - count / 2);
    nodes[std::size_t(index)].left = left;
    nodes[std::size_t(index)].right = right;
    return index;
}

DemoScene::DemoScene(quint64 seed) : d(std::make_unique<Private>())
{
    d->seed = seed;
    d->build();
}

DemoScene::~DemoScene() = default;

bool DemoScene::cast(const Vector3d& origin, const Vector3d& direction, SurfaceHit& hit) const
{
    hit.distance = infinity;
    const auto inverse = [](double x) { return x == 0.0 ? infinity : 1.0 / x; };
    const Vector3d inv(inverse(direction.x), inverse(direction.y), inverse(direction.z));
    int stack[64];
    int top = 0;
    stack[top++] = 0;
    SurfaceHit candidate;
    while (top > 0) {
        const BvhNode& node = d->nodes[std::size_t(stack[--top])];
        if (!node.box.hit(origin, inv, hit.distance))
            continue;
        if (node.left >= 0) {
            stack[top++] = node.left;
            stack[top++] = node.right;
            continue;
        }
        for (int i = node.first; i < node.first + node.count; ++i) {
            const Primitive& p = d->primitives[std::size_t(i)];
            const bool found = p.kind == Primitive::Box      ? intersectBox(p, origin, direction, candidate)
                               : p.kind == Primitive::Sphere ? intersectSphere(p, origin, direction, d->seed, candidate)
                                                             : intersectCylinder(p, origin, direction, candidate);
            if (found && candidate.distance < hit.distance)
                hit = candidate;
        }
    }
    if (direction.z < -1e-9) {
        const double t = -origin.z / direction.z;
        const Vector3d p = origin + direction * t;
        if (t > epsilon && t < hit.distance && p.x * p.x + p.y * p.y < groundRadius * groundRadius) {
            hit.distance = t;
            hit.point = p;
            hit.normal = {0, 0, 1};
            hit.tint = 0;
            const double fromRoad = std::abs(p.y - roadY);
            if (fromRoad < roadHalfWidth) {
                const bool centreLine = fromRoad < 0.08 && std::fmod(p.x + 1200.0, 6.0) < 3.0;
                const bool edgeLine = std::abs(fromRoad - 3.25) < 0.08;
                hit.material = centreLine || edgeLine ? Material::RoadMarking : Material::Asphalt;
            } else if (p.x > -16 && p.x < 14 && p.y > -11.5 && p.y < 12) {
                hit.material = Material::Paving;
            } else {
                hit.material = Material::Grass;
            }
        }
    }
    return hit.distance < infinity;
}

SurfaceLook DemoScene::look(const SurfaceHit& hit) const
{
    const Vector3d& p = hit.point;
    const quint64 seed = d->seed;
    const double n1 = fractalNoise(p.x * 1.7, p.y * 1.7, p.z * 1.7, seed + 11);
    QRgb albedo = 0;
    double reflectance = 0.5;
    const int face = faceOf(hit.normal);
    const double s = face >= 0 ? alongFace(face, p) : p.x;
    switch (hit.material) {
    case Material::Grass:
        albedo = mixColour(qRgb(62, 104, 42), qRgb(128, 130, 64), fractalNoise(p.x * 0.12, p.y * 0.12, 0, seed + 12));
        albedo = scaled(albedo, 0.75 + 0.5 * n1);
        reflectance = 0.35;
        break;
    case Material::Asphalt:
        albedo = scaled(qRgb(66, 66, 70), 0.8 + 0.4 * valueNoise(p.x * 7, p.y * 7, 0, seed + 13));
        reflectance = 0.15;
        break;
    case Material::RoadMarking:
        albedo = qRgb(228, 228, 218);
        reflectance = 0.8;
        break;
    case Material::Paving: {
        // Slabs of 60 cm with grout between them, each slab its own shade.
        const double u = p.x / 0.6, v = p.y / 0.6;
        const bool grout = u - std::floor(u) < 0.05 || v - std::floor(v) < 0.05;
        const double slab = unitOf(hashOf(seed, 14, quint64(qint64(std::floor(u))), quint64(qint64(std::floor(v)))));
        albedo = grout ? qRgb(118, 112, 102) : scaled(qRgb(186, 172, 150), 0.88 + 0.2 * slab);
        reflectance = grout ? 0.3 : 0.5;
        break;
    }
    case Material::Plaster:
        albedo = scaled(hit.tint, 0.93 + 0.1 * n1);
        reflectance = 0.6;
        break;
    case Material::Brick: {
        // Bricks of 25 × 7.5 cm in stretcher bond with 1.2 cm mortar joints.
        const double course = std::floor(p.z / 0.075);
        const double along = s / 0.25 + (std::fmod(course, 2.0) == 0 ? 0.0 : 0.5);
        const bool mortar = p.z - course * 0.075 < 0.012 || (along - std::floor(along)) * 0.25 < 0.012;
        const double brick = unitOf(hashOf(seed, 15, quint64(qint64(course)), quint64(qint64(std::floor(along)))));
        albedo = mortar ? qRgb(192, 186, 174) : scaled(qRgb(152, 66, 46), 0.8 + 0.35 * brick);
        reflectance = mortar ? 0.55 : 0.4;
        break;
    }
    case Material::Roof:
        albedo = scaled(qRgb(98, 82, 76), 0.85 + 0.3 * n1);
        reflectance = 0.25;
        break;
    case Material::Glass:
        albedo = mixColour(qRgb(40, 54, 70), qRgb(150, 175, 200), 0.3 * n1);
        reflectance = 0.08;
        break;
    case Material::Frame:
        albedo = qRgb(236, 236, 230);
        reflectance = 0.7;
        break;
    case Material::Door: {
        const double grain = std::sin(s * 60.0 + 6.0 * valueNoise(s * 3, p.z * 0.5, 0, seed + 16));
        albedo = scaled(qRgb(112, 70, 40), 0.9 + 0.12 * grain);
        reflectance = 0.3;
        break;
    }
    case Material::Stone:
        albedo = scaled(qRgb(208, 198, 178), 0.9 + 0.15 * n1);
        reflectance = 0.65;
        break;
    case Material::Bark:
        albedo = scaled(qRgb(86, 66, 46), 0.75 + 0.5 * valueNoise(p.x * 9, p.y * 9, p.z * 3, seed + 17));
        reflectance = 0.25;
        break;
    case Material::Leaves:
        albedo = mixColour(qRgb(40, 92, 34), qRgb(120, 150, 50), valueNoise(p.x * 3.1, p.y * 3.1, p.z * 3.1, seed + 18));
        reflectance = 0.3;
        break;
    case Material::CarPaint:
        albedo = hit.tint;
        reflectance = 0.5;
        break;
    case Material::CarGlass:
        albedo = qRgb(32, 38, 48);
        reflectance = 0.06;
        break;
    case Material::Tyre:
        albedo = qRgb(26, 26, 28);
        reflectance = 0.05;
        break;
    case Material::Target:
        albedo = qRgb(246, 246, 246);
        reflectance = 0.95;
        break;
    case Material::Pole:
        albedo = qRgb(140, 142, 146);
        reflectance = 0.5;
        break;
    }
    // Daylight from the sun and the sky, and haze over distance.
    const double light = 0.5 + 0.5 * std::max(0.0, hit.normal.dot(sun));
    const QRgb lit = scaled(albedo, light);
    return {mixColour(lit, horizon, 1.0 - std::exp(-hit.distance / 350.0)), reflectance};
}

QRgb DemoScene::skyColour(const Vector3d& direction)
{
    return mixColour(horizon, zenith, std::pow(std::clamp(direction.z, 0.0, 1.0), 0.6));
}

const DemoLandmarks& DemoScene::landmarks() const
{
    return d->landmarks;
}

std::vector<Vector3d> DemoScene::stationPlaces(int count) const
{
    std::vector<Vector3d> places;
    if (count == 1)
        return {Vector3d(d->random(20, 0, -0.5, 0.5), d->random(21, 0, -0.5, 0.5), 0)};
    // Up to nine stations on a circle whose neighbouring stations stand at least 4 m apart and
    // whose diameter stays below 12 m; a little jitter along the circle and in the radius.
    const int onCircle = std::min(count, 9);
    const double radius = std::clamp(3.2 / std::sin(M_PI / onCircle), 2.5, 5.9);
    const double phase = d->random(22, 0, 0, 2 * M_PI);
    for (int i = 0; i < onCircle; ++i) {
        const double angle = phase + 2 * M_PI * i / onCircle + d->random(23, quint64(i), -0.03, 0.03);
        const double r = radius + d->random(24, quint64(i), -0.05, 0.0);
        places.emplace_back(r * std::cos(angle), r * std::sin(angle), 0);
    }
    // Up to the twentieth, stations line up 7 m apart on the far side of the road.
    const int alongRoad = std::min(count, 20);
    for (int i = onCircle; i < alongRoad; ++i)
        places.emplace_back(-35.0 + 7.0 * (i - onCircle), roadY - roadHalfWidth - 2.0, 0);
    if (count == alongRoad)
        return places;
    // The others stand on open ground (nothing above it but the sky), on a 7 m grid around the
    // plaza, nearest first; far enough from the stations before to leave room for a tripod.
    constexpr int gridReach = 25; // 175 m: room for well over 500 stations
    std::vector<Vector3d> grid;
    for (int gx = -gridReach; gx <= gridReach; ++gx)
        for (int gy = -gridReach; gy <= gridReach; ++gy)
            grid.emplace_back(7.0 * gx + 3.5, 7.0 * gy + 3.5, 0);
    std::stable_sort(grid.begin(), grid.end(),
                     [](const Vector3d& a, const Vector3d& b) { return a.length() < b.length(); });
    const auto openGround = [this](const Vector3d& p) {
        SurfaceHit hit;
        return cast(p + Vector3d(0, 0, 100), Vector3d(0, 0, -1), hit) && hit.point.z < 0.01;
    };
    const auto roomy = [&places](const Vector3d& p) {
        return std::all_of(places.begin(), places.end(), [&p](const Vector3d& q) { return (p - q).length() >= 4.0; });
    };
    for (const Vector3d& p : grid) {
        if (int(places.size()) == count)
            break;
        if (roomy(p) && openGround(p))
            places.push_back(p);
    }
    return places;
}

} // namespace TVX::TOOL
