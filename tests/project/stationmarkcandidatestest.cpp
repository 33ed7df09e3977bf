#include "testregistry.h"

#include "projectfixtures.h"

#include "project/basicproject.h"
#include "project/filetreemodel.h"
#include "project/stationmarkcandidates.h"

#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

class StationMarkCandidatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The viewing scan stands at (10, 20, 1), turned by 90° about z; the others stand east of it.
    // The limits hold both ends, a disabled scan is left out, the farthest comes first, and each
    // position is given in the viewing scan's own frame.
    void candidates()
    {
        QTemporaryDir dir;
        const QList<double> eastOffsets{2.0, 15.0, 15.001, 0.1, 6.0, 9.0};
        BasicProject& project = BasicProject::instance();
        int code = 0;
        QString message;
        QVERIFY(project.openProject(dir.filePath(QStringLiteral("p.tvxprj")), QStringLiteral("t"), code, message));
        TestScan viewing;
        viewing.columns = viewing.rows = 8;
        viewing.transformation = {0, -1, 0, 10, 1, 0, 0, 20, 0, 0, 1, 1, 0, 0, 0, 1};
        QVERIFY(writeTestScan(dir.filePath(QStringLiteral("v.tvx")), viewing));
        QCOMPARE(project.addScan(QStringLiteral("v.tvx")), 0);
        for (int i = 0; i < eastOffsets.size(); ++i) {
            TestScan other = viewing;
            other.transformation = {1, 0, 0, 10 + eastOffsets[i], 0, 1, 0, 20, 0, 0, 1, 1, 0, 0, 0, 1};
            const QString name = QStringLiteral("s%1.tvx").arg(i);
            QVERIFY(writeTestScan(dir.filePath(name), other));
            QCOMPARE(project.addScan(name), i + 1);
        }
        // The 9 m station's check box is cleared.
        QVERIFY(project.treeModel()->setData(project.treeModel()->indexOfScan(6), Qt::Unchecked, Qt::CheckStateRole));

        const std::vector<StationCandidate> list = StationMarkCandidates::collect(project, 0, 0.2, 15.0);
        QList<quint32> ids;
        for (const StationCandidate& c : list)
            ids << c.scanId;
        QCOMPARE(ids, (QList<quint32>{2, 5, 1}));
        QCOMPARE(list.front().distance, 15.0);
        // East in the project is −y in a frame turned by 90°.
        QVERIFY(std::abs(list.back().x) < 1e-12 && std::abs(list.back().y + 2.0) < 1e-12 && list.back().z == 0.0);
        QCOMPARE(StationMarkCandidates::markSize(list, 2.0), 32);
        QCOMPARE(StationMarkCandidates::markSize(list, 15.0), 16);
        QVERIFY(StationMarkCandidates::collect(project, 99, 0.0, 100.0).empty());
        QVERIFY(project.closeProject(code, message));
    }
};

TVX_TEST(StationMarkCandidatesTest)

#include "stationmarkcandidatestest.moc"
