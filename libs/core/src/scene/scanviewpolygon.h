#pragma once

#include "scene/scanviewitem.h"

namespace TVX::CORE {

// A polygon over the panorama. Its fill mesh splits a self-crossing outline into the regions that
// the even-odd rule fills and is rebuilt lazily, once per change of the vertices. The outline is
// filled as seen in the plane that touches the unit sphere at the vertices' mean direction; vertices
// more than 89° away from that direction are left out of the fill.
class ScanViewPolygon final : public ScanViewItem
{
public:
    struct FillMesh {
        std::vector<Vector3d> vertices; // unit directions
        std::vector<quint32> indices;   // three per triangle
    };

    explicit ScanViewPolygon(std::vector<Vector3d> vertices = {});

    bool hitTest(const Vector3d& direction) const override;

    // The fill mesh for the current vertices, rebuilt first when stale.
    const FillMesh& fillMesh() const;
    // How often the mesh has been built since construction.
    quint32 meshBuildCount() const { return m_meshBuilds; }

private:
    void rebuildMesh() const;

    mutable FillMesh m_mesh;
    mutable quint32 m_meshCounter{0};
    mutable bool m_meshValid{false};
    mutable quint32 m_meshBuilds{0};
};

} // namespace TVX::CORE
