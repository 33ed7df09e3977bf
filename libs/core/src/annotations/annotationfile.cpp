#include "annotations/annotationfile.h"

#include "annotations/viewerscenereader.h"
#include "annotations/viewerscenewriter.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace TVX::CORE {

namespace {
void setError(QString* error, const QString& text)
{
    if (error)
        *error = text;
}
} // namespace

QString AnnotationFile::path(const QString& scanPath)
{
    const QFileInfo scan(scanPath);
    return scan.absolutePath() + QLatin1Char('/') + scan.completeBaseName() + QLatin1String("-viewer.xml");
}

bool AnnotationFile::load(const QString& scanPath, SceneItemsTableModel& model, ScanViewSceneGraph* graph, QString* error)
{
    return read(path(scanPath), model, graph, error);
}

bool AnnotationFile::save(const QString& scanPath, const SceneItemsTableModel& model, const ScanViewSceneGraph* graph, QString* error)
{
    return write(path(scanPath), model, graph, error);
}

bool AnnotationFile::read(const QString& filePath, SceneItemsTableModel& model, ScanViewSceneGraph* graph, QString* error)
{
    QFile file(filePath);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, file.errorString());
        return false;
    }
    ViewerSceneReader reader(&file);
    if (reader.read(model, graph))
        return true;
    setError(error, reader.errorString());
    return false;
}

bool AnnotationFile::write(const QString& filePath, const SceneItemsTableModel& model, const ScanViewSceneGraph* graph, QString* error)
{
    QSaveFile file(filePath);
    if (!file.open(QIODevice::WriteOnly)) {
        setError(error, file.errorString());
        return false;
    }
    ViewerSceneWriter writer(&file);
    if (!writer.write(model, graph)) {
        const QStringList skipped = writer.skippedItems();
        setError(error, skipped.isEmpty() ? file.errorString()
                                          : QStringLiteral("items that the file cannot hold: %1").arg(skipped.join(QStringLiteral("; "))));
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        setError(error, file.errorString());
        return false;
    }
    return true;
}

} // namespace TVX::CORE
