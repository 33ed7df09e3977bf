// Annotation files: any bytes through the reader into a model and a scene graph, then what was
// read through the writer and back through the reader, which must take its own output.
#include "annotations/sceneitemstablemodel.h"
#include "annotations/viewerscenereader.h"
#include "annotations/viewerscenewriter.h"
#include "scene/scanviewscenegraph.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

namespace {

struct Scene {
    TVX::CORE::SceneItemsTableModel model;
    TVX::CORE::ScanViewSceneGraph graph;
};

bool read(const QByteArray& bytes, Scene& scene)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    TVX::CORE::ViewerSceneReader reader(&buffer);
    const bool ok = reader.read(scene.model, &scene.graph);
    if (!ok && reader.errorString().isEmpty())
        std::abort();
    return ok;
}

QByteArray write(const Scene& scene)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    TVX::CORE::ViewerSceneWriter writer(&buffer);
    if (!writer.write(scene.model, &scene.graph))
        std::abort();
    return buffer.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Scene first;
    read(QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size)), first);
    const QByteArray written = write(first);

    // Everything read is written in a form that reads back in full.
    Scene second;
    if (!read(written, second) || second.model.rowCount() != first.model.rowCount()
        || second.graph.itemCount() != first.graph.itemCount())
        std::abort();
    return 0;
}
