#include "testregistry.h"

#include "fileio/tvxfiletilecache.h"
#include "scanfixture.h"

#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
enum Outcome { Read, Hit, Failed };
using Lookups = QList<QPair<int, int>>; // (scan index, tile column); tile row 0
} // namespace
Q_DECLARE_METATYPE(Lookups)

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
            QVERIFY(m_scans[i]->open() && m_scans[i]->readHeader() && m_scans[i]->close());
        }
    }

    void lookups_data()
    {
        QTest::addColumn<Lookups>("lookups");
        QTest::addColumn<QList<int>>("outcomes");
        QTest::addColumn<QList<int>>("order"); // tile columns, most recent first
        QTest::addColumn<quint32>("scanIndex");

        QTest::newRow("hit") << Lookups{{0, 5}, {0, 5}} << QList<int>{Read, Hit} << QList<int>{5} << 0u;
        QTest::newRow("hit moves to the front") << Lookups{{0, 0}, {0, 1}, {0, 2}, {0, 0}}
                                                << QList<int>{Read, Read, Read, Hit} << QList<int>{0, 2, 1} << 0u;
        QTest::newRow("hit at the front stays") << Lookups{{0, 0}, {0, 1}, {0, 1}} << QList<int>{Read, Read, Hit}
                                                << QList<int>{1, 0} << 0u;
        QTest::newRow("another scan empties the cache") << Lookups{{0, 0}, {0, 1}, {1, 0}}
                                                        << QList<int>{Read, Read, Read} << QList<int>{0} << 1u;
        QTest::newRow("switching back reads again") << Lookups{{0, 0}, {1, 0}, {0, 0}}
                                                    << QList<int>{Read, Read, Read} << QList<int>{0} << 0u;
        // The list is emptied before the read fails; the scan index stays the old one.
        QTest::newRow("failing read of another scan still empties")
            << Lookups{{0, 0}, {0, 1}, {1, 60}, {0, 0}} << QList<int>{Read, Read, Failed, Read} << QList<int>{0} << 0u;
        QTest::newRow("failing read of the same scan keeps the list")
            << Lookups{{0, 0}, {0, 60}, {0, 0}} << QList<int>{Read, Failed, Hit} << QList<int>{0} << 0u;

        // Tiles 0..50: the 51st read drops tile 0, the least recently used; asking for it again
        // reads it anew and drops tile 1.
        Lookups lookups;
        QList<int> outcomes;
        for (int t = 0; t <= 50; ++t) {
            lookups.append({0, t});
            outcomes.append(Read);
        }
        lookups.append({0, 0});
        outcomes.append(Read);
        QList<int> order{0};
        for (int t = 50; t >= 2; --t)
            order.append(t);
        QTest::newRow("51st tile drops the oldest") << lookups << outcomes << order << 0u;
    }

    void lookups()
    {
        QFETCH(Lookups, lookups);
        QFETCH(QList<int>, outcomes);
        QFETCH(QList<int>, order);
        QFETCH(quint32, scanIndex);

        TVXFileTileCache cache;
        QCOMPARE(cache.scanIndex(), TVXFileTileCache::noScan);
        std::map<std::pair<int, int>, TVXFileTilePtr> seen;
        for (int i = 0; i < lookups.size(); ++i) {
            const auto [scan, tileColumn] = lookups[i];
            TVXFileTilePtr tile;
            const bool found = cache.lookup(quint32(scan), *m_scans[scan], quint32(tileColumn), 0, tile);
            QCOMPARE(found, outcomes[i] != Failed);
            if (!found)
                continue;
            QCOMPARE(tile->firstColumn, quint32(tileColumn));
            // A hit hands out the very tile read before; a read makes a new one.
            auto& previous = seen[{scan, tileColumn}];
            QCOMPARE(tile == previous, outcomes[i] == Hit);
            previous = tile;
        }
        QCOMPARE(cache.scanIndex(), scanIndex);
        QCOMPARE(int(cache.size()), order.size());
        const auto entries = cache.order();
        for (int i = 0; i < order.size(); ++i)
            QCOMPARE(entries[std::size_t(i)], std::make_pair(quint32(order[i]), 0u));
    }
};

TVX_TEST(TileCacheTest)
#include "tilecachetest.moc"
