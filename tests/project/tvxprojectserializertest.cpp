#include "testregistry.h"

#include "projectfixtures.h"

#include "fileio/tvxprojectserializer.h"
#include "project/projecttreerecords.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

ProjectItemScanGroupPtr folder(const QString& name, bool enabled = true)
{
    auto f = ProjectItemScanGroup::create(name);
    f->setEnabled(enabled);
    return f;
}

ProjectItemScanPtr scan(const QString& name, quint64 id, bool enabled = true)
{
    auto s = ProjectItemScan::create(name, id);
    s->setEnabled(enabled);
    return s;
}

} // namespace

class TVXProjectSerializerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void treeRoundTrip()
    {
        // Added scans first: a folder still lists its sub-folders before its scans.
        const auto root = folder(QStringLiteral("scans"));
        const auto outer = folder(QStringLiteral("Outer"), false);
        const auto inner = folder(QStringLiteral("Inner"));
        root->appendScan(scan(QString(), 4000000000u));
        root->appendScan(scan(QStringLiteral("top"), 5, false));
        root->appendFolder(outer);
        root->appendFolder(folder(QStringLiteral("Ünïcödé ✓")));
        outer->appendScan(scan(QStringLiteral("mid"), 3));
        outer->appendFolder(inner);
        inner->appendScan(scan(QStringLiteral("deep"), 7));
        const QString expected = QStringLiteral("scans+(Outer-(Inner+(deep#7+) mid#3+) Ünïcödé ✓+() #4000000000+ top#5-)");
        QCOMPARE(describe(root), expected);

        TVXProjectContent written;
        written.tree = projectTreeRecords(root);
        TVXProjectSerializer serializer(QStringLiteral("memory.tvxprj"));
        TVXProjectContent read;
        QVERIFY2(serializer.read(TVXProjectSerializer::encode(written), read), qPrintable(serializer.errorString()));
        QCOMPARE(describe(projectTreeFromRecords(read.tree)), expected);
    }

    // The writer's tree records are exactly the depth-first sequence that the format describes.
    void writesTreeRecordsDepthFirst()
    {
        TVXProjectContent content;
        content.origin = {1.5, -2.25, 310.0};
        content.coordinateSystems.push_back({QStringLiteral("Site grid"), {10, 11, 12, 13, 14, 15, 16}});
        content.coordinateSystems.push_back({QStringLiteral("Gauß-Krüger"), {20, 21, 22, 23, 24, 25, 26}});
        content.currentCoordinateSystem = 1;
        content.scans = QStringList{QStringLiteral("scans/north.tvx"), QStringLiteral("scans/süd.tvx"),
                                    QStringLiteral("scans/east.tvx")};
        const auto root = folder(QStringLiteral("scans"));
        root->appendScan(scan(QStringLiteral("süd"), 1));
        root->appendScan(scan(QStringLiteral("east"), 2, false));
        auto facade = folder(QStringLiteral("Facade"));
        facade->appendScan(scan(QStringLiteral("north"), 0));
        root->appendFolder(facade);
        content.tree = projectTreeRecords(root);

        // typicalFields() holds the same project, built from the table by hand.
        QCOMPARE(TVXProjectSerializer::encode(content), build(typicalFields()));
    }

    void refusesDamagedFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto spoilt = [](auto change) {
            ProjectFileFields f = typicalFields();
            change(f);
            return build(f);
        };
        const auto systems = [&spoilt](const QByteArray& b) { return spoilt([&b](ProjectFileFields& f) { f.coordinateSystems = b; }); };
        const auto scans = [&spoilt](const QByteArray& b) { return spoilt([&b](ProjectFileFields& f) { f.scanList = b; }); };
        const auto tree = [&spoilt](const QByteArray& b) { return spoilt([&b](ProjectFileFields& f) { f.tree = b; }); };
        const ProjectFileFields typical = typicalFields();

        QTest::newRow("scan file magic") << spoilt([](ProjectFileFields& f) { f.magic = 0x54565846; });
        QTest::newRow("stream version 13") << spoilt([](ProjectFileFields& f) { f.streamVersion = 13; });
        QTest::newRow("project end tag") << spoilt([](ProjectFileFields& f) { f.projectEnd = 0x2FFFFF; });
        // Format 1 has no coordinate systems section, so its tag stands where the scan list tag belongs.
        QByteArray format1WithSystems = build(typical);
        format1WithSystems.replace(4, 4, bytesOf(quint32(1)));
        QTest::newRow("format 1 file with coordinate systems") << format1WithSystems;
        QTest::newRow("absurd coordinate system count") << systems(bytesOf(quint32(0xFFFFFFF0)) + typical.coordinateSystems.mid(4));
        QTest::newRow("coordinate system name of odd length") << systems(bytesOf(quint32(1), quint32(3)) + QByteArray(63, '\0'));
        QTest::newRow("absurd scan count") << scans(bytesOf(qint64(1) << 60) + typical.scanList.mid(8));
        QTest::newRow("unknown record kind")
            << tree(folderRecord(true, "scans", 1) + bytesOf(quint32(3), qint8(1)) + utf8Field("x") + bytesOf(qint64(0)));
        QTest::newRow("folder claiming more children than follow")
            << tree(folderRecord(true, "scans", 3) + scanRecord(true, "a", 0) + scanRecord(true, "b", 1));
        QTest::newRow("record name longer than the file") << tree(bytesOf(quint32(1), qint8(1), qint64(1) << 50));
        QTest::newRow("folders nested 2000 deep") << tree(folderRecord(true, "f", 1).repeated(2000) + scanRecord(true, "leaf", 0));
    }

    void refusesDamagedFiles()
    {
        QFETCH(QByteArray, bytes);
        TVXProjectSerializer serializer(QStringLiteral("memory.tvxprj"));
        TVXProjectContent content;
        QVERIFY(!serializer.read(bytes, content));
        QVERIFY(!serializer.errorString().isEmpty());
    }

    void refusesEveryTruncation()
    {
        const QByteArray whole = build(typicalFields());
        TVXProjectSerializer serializer(QStringLiteral("memory.tvxprj"));
        for (qsizetype size = 0; size < whole.size(); ++size) {
            TVXProjectContent content;
            QVERIFY2(!serializer.read(whole.left(size), content), qPrintable(QString::number(size)));
        }
        TVXProjectContent content;
        QVERIFY(serializer.read(whole, content));
    }

    void saveFailures_data()
    {
        QTest::addColumn<QString>("obstacle"); // what stands in the way, see below
        QTest::addColumn<int>("line");
        // A project "file" that is a non-empty directory cannot be removed, even by root.
        QTest::newRow("project file cannot be removed") << QStringLiteral("project") << 508;
        // A directory where the ".tmp" file should go: the stream cannot be written.
        QTest::newRow("temporary file cannot be created") << QStringLiteral("tmp") << 520;
    }

    void saveFailures()
    {
        QFETCH(QString, obstacle);
        QFETCH(int, line);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("site.tvxprj"));
        const QString blocked = obstacle == QLatin1String("project") ? path : path + QStringLiteral(".tmp");
        QVERIFY(QDir().mkpath(blocked + QStringLiteral("/inside")));

        TVXProjectContent content;
        content.tree = projectTreeRecords(folder(QStringLiteral("scans")));
        TVXProjectSerializer writer(path);
        writer.open(TVXProjectSerializer::WriteOnly);
        try {
            writer.write(content);
            QFAIL("no read error thrown");
        } catch (const std::ios_base::failure& error) {
            const QString expected =
                QStringLiteral("file read error libs/core/src/fileio/tvxprojectserializer, line %1").arg(line);
            QCOMPARE(QString::fromLatin1(error.what()), expected);
            QCOMPARE(error.code(), std::make_error_code(std::io_errc::stream));
        }
        if (obstacle == QLatin1String("project"))
            QVERIFY(!QFile::exists(path + QStringLiteral(".tmp")));
        QVERIFY(QFileInfo(blocked + QStringLiteral("/inside")).isDir());
    }
};

TVX_TEST(TVXProjectSerializerTest)

#include "tvxprojectserializertest.moc"
