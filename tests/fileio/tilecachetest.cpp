#include "scanfixture.h"
#include "testregistry.h"

#include "fileio/tvxfiletilecache.h"

#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
enum Outcome { Read, Hit, Failed };

struct Lookup {
    int scan;
    int tileColumn; // tile row 0
    Outcome outcome;
};

struct CacheRow {
    const char* name;
    QList<Lookup> lookups;
    QList<int> order; // tile columns, most recent first
    quint32 scanIndex;
};
} // namespace
Q_DECLARE_METATYPE(CacheRow)

// The tile cache as a sequence of lookups on two scans of 60 one-cell tiles each.
class TileCacheTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<TVXFile> m_scans[2];

private Q_SLOTS:
    void initTestCase()
    {
        for (int i = 0; i < 2; ++i) {
            const QString name = QStringLiteral("scan%1").arg(i);
            const QString path = writePatternScan(m_dir.path(), name, 60, 1, 1, DistanceChannel);
            QVERIFY(!path.isEmpty());
            m_scans[i] = std::make_unique<TVXFile>(path);
            QVERIFY(m_scans[i]->open() && m_scans[i]->readHeader());
            m_scans[i]->close();
        }
    }

    void lookups_data()
    {
        QTest::addColumn<CacheRow>("row");
        // Tiles 0..50: the 51st read drops tile 0, the least recently used; asking for it again
        // reads it anew and drops tile 1.
        QList<Lookup> fiftyTwo;
        QList<int> fiftyTwoOrder{0};
        for (int t = 0; t <= 50; ++t)
            fiftyTwo.append({0, t, Read});
        fiftyTwo.append({0, 0, Read});
        for (int t = 50; t >= 2; --t)
            fiftyTwoOrder.append(t);
        const CacheRow rows[] = {
            {"hit moves to the front", {{0, 0, Read}, {0, 1, Read}, {0, 2, Read}, {0, 0, Hit}}, {0, 2, 1}, 0},
            {"another scan empties the cache", {{0, 0, Read}, {0, 1, Read}, {1, 0, Read}}, {0}, 1},
            // The list is emptied before the read fails; the scan index stays the old one.
            {"failing read of another scan still empties", {{0, 0, Read}, {0, 1, Read}, {1, 60, Failed}, {0, 0, Read}},
             {0}, 0},
            {"failing read of the same scan keeps the list", {{0, 0, Read}, {0, 60, Failed}, {0, 0, Hit}}, {0}, 0},
            {"51st tile drops the oldest", fiftyTwo, fiftyTwoOrder, 0},
        };
        for (const CacheRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void lookups()
    {
        QFETCH(CacheRow, row);
        TVXFileTileCache cache;
        QCOMPARE(cache.scanIndex(), TVXFileTileCache::noScan);
        std::map<std::pair<int, int>, TVXFileTilePtr> seen;
        for (const Lookup& lookup : row.lookups) {
            TVXFileTilePtr tile;
            const bool found =
                cache.lookup(quint32(lookup.scan), *m_scans[lookup.scan], quint32(lookup.tileColumn), 0, tile);
            QCOMPARE(found, lookup.outcome != Failed);
            if (!found)
                continue;
            QCOMPARE(tile->firstColumn, quint32(lookup.tileColumn));
            // A hit hands out the very tile read before; a read makes a new one.
            auto& previous = seen[{lookup.scan, lookup.tileColumn}];
            QCOMPARE(tile == previous, lookup.outcome == Hit);
            previous = tile;
        }
        QCOMPARE(cache.scanIndex(), row.scanIndex);
        QCOMPARE(int(cache.size()), row.order.size());
        const auto entries = cache.order();
        for (int i = 0; i < row.order.size(); ++i)
            QCOMPARE(entries[std::size_t(i)], std::make_pair(quint32(row.order[i]), 0u));
    }
};

TVX_TEST(TileCacheTest)
#include "tilecachetest.moc"
