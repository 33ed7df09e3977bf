#include "testregistry.h"

#include "scene/tvxspolygon.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/scanviewscenegraph.h"
#include "scanfixture.h"

#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
const QString readErrorStart = QStringLiteral("file read error libs/core/src/fileio/tvx");

// A small scan file whose sections all hold something: every kind of length, count and value.
QByteArray richScanFile()
{
    QTemporaryDir dir;
    TVXFileWriter writer;
    setGrid(writer.scanInfo(), 5, 4, 2, DistanceChannel | ColourChannel);
    writer.scanInfo().text = QStringLiteral("text");
    writer.scanInfo().segments = {{{1, 2, 3}, {4, 5, 6}}};
    writer.metaInfo().setText(0x140001, QStringLiteral("operator"));
    writer.metaInfo().dateTime = QDateTime(QDate(2020, 1, 1), QTime(12, 0), Qt::UTC);
    writer.metaInfo().extra.insert(0x149000, QVariantMap{{QStringLiteral("a"), QVariantList{1, 2.0}}});
    auto sphere = std::make_shared<TVXSReferenceSphere>(QStringLiteral("S"), TVXSReferencePoint::Values{1, 2, 3, 0.1});
    sphere->data().integers = {1, 2};
    sphere->data().numberedValues.insert(3, QStringLiteral("three"));
    writer.referenceInfo().appendObject(sphere);
    auto polygon = std::make_shared<TVXSPolygon>(QPolygonF({{1, 1}, {2, 2}, {3, 1}}));
    polygon->data().namedValues.insert(QStringLiteral("k"), qMakePair(1, QVariant(true)));
    writer.sceneItems2D().push_back(polygon);
    writer.scene3D()->addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("T"), Vector3d(1, 0, 0)));
    const QString path = dir.filePath(QStringLiteral("rich.tvx"));
    if (!writer.write(path))
        return {};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Rejected, or the read error of one of the scan file's modules; anything else fails the test.
bool rejectedCleanly(const QByteArray& bytes)
{
    TVXFile file(QStringLiteral("/nowhere/x.tvx"));
    QString thrown;
    if (readHeaderBytes(bytes, file, &thrown))
        return false;
    return thrown.isEmpty() || thrown.startsWith(readErrorStart);
}
} // namespace

// Cut or damaged scan files are rejected quickly, never crash and never pass.
class TruncatedScanFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTruncation()
    {
        const QByteArray bytes = richScanFile();
        QVERIFY(bytes.size() > 300);
        TVXFile whole(QStringLiteral("/nowhere/x.tvx"));
        QVERIFY(readHeaderBytes(bytes, whole));
        for (int length = 0; length < bytes.size(); ++length)
            QVERIFY2(rejectedCleanly(bytes.left(length)), qPrintable(QString::number(length)));
    }

};

TVX_TEST(TruncatedScanFileTest)
#include "truncationtest.moc"
