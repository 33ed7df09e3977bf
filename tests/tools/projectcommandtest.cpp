#include "testregistry.h"
#include "toolrun.h"

#include "../project/projectfixtures.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::TEST;

namespace {

QJsonArray numbers(std::initializer_list<double> values)
{
    QJsonArray array;
    for (double value : values)
        array.append(value);
    return array;
}

QJsonObject scanNode(const char* name, int id, bool enabled)
{
    return {{"type", "scan"}, {"name", QString::fromUtf8(name)}, {"id", id}, {"enabled", enabled}};
}

QJsonObject folderNode(const char* name, bool enabled, const QJsonArray& children)
{
    return {{"type", "folder"}, {"name", QString::fromUtf8(name)}, {"enabled", enabled}, {"children", children}};
}

} // namespace

class ProjectCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsProjectFile_data()
    {
        QTest::addColumn<quint32>("formatVersion");
        QTest::addColumn<QJsonArray>("coordinateSystems");
        QTest::addColumn<int>("currentCoordinateSystem");
        // typicalFields(): systems "Site grid" 10..16 and "Gauß-Krüger" 20..26, the second current.
        const QJsonArray systems{
            QJsonObject{{"name", "Site grid"}, {"values", numbers({10, 11, 12, 13, 14, 15, 16})}},
            QJsonObject{{"name", QStringLiteral("Gauß-Krüger")}, {"values", numbers({20, 21, 22, 23, 24, 25, 26})}}};
        QTest::newRow("format 3") << 3u << systems << 1;
        // No coordinate systems section: an empty list and index 0.
        QTest::newRow("format 1") << 1u << QJsonArray() << 0;
    }

    void printsProjectFile()
    {
        QFETCH(quint32, formatVersion);
        QFETCH(QJsonArray, coordinateSystems);
        QFETCH(int, currentCoordinateSystem);
        QTemporaryDir dir;
        ProjectFileFields fields = typicalFields();
        fields.formatVersion = formatVersion;
        fields.major = 2019;
        fields.minor = 4;
        fields.patch = 12;
        QVERIFY(writeBytes(dir.filePath(QStringLiteral("site.tvxprj")), build(fields)));

        // A relative argument is printed as an absolute path.
        const ToolRun run = runTool({QStringLiteral("project"), QStringLiteral("site.tvxprj")}, dir.path());
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, QByteArray());

        const QJsonObject expected{
            {"path", QDir(dir.path()).filePath(QStringLiteral("site.tvxprj"))},
            {"formatVersion", int(formatVersion)},
            {"writerVersion", QJsonArray{2019, 4, 12}},
            {"origin", numbers({1.5, -2.25, 310.0})},
            {"coordinateSystems", coordinateSystems},
            {"currentCoordinateSystem", currentCoordinateSystem},
            {"scans", QJsonArray{"scans/north.tvx", QStringLiteral("scans/süd.tvx"), "scans/east.tvx"}},
            {"tree", folderNode("scans", true,
                                {folderNode("Facade", true, {scanNode("north", 0, true)}), scanNode("süd", 1, true),
                                 scanNode("east", 2, false)})}};
        QCOMPARE(run.json(), expected);
    }

    void unreadableFileGivesTheOpenMessage_data()
    {
        QTest::addColumn<QByteArray>("bytes"); // empty: no file at all
        QTest::addColumn<QString>("advice");
        const QString upgrade = QStringLiteral(
            "It was written with Tarvenix version: 2030.2.7 using project format version: 4. If this version is newer "
            "than the currently used version, you need to upgrade your Tarvenix Software Suite.\n");
        ProjectFileFields newer = typicalFields();
        newer.formatVersion = 4;
        newer.major = 2030;
        newer.minor = 2;
        newer.patch = 7;
        QTest::newRow("format 4") << build(newer) << upgrade;
        QTest::newRow("truncated") << build(typicalFields()).left(100) << QString();
        QTest::newRow("scan file magic") << QByteArray("TVXF and more") << QString();
        QTest::newRow("missing file") << QByteArray() << QString();
    }

    void unreadableFileGivesTheOpenMessage()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, advice);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("site.tvxprj"));
        if (!bytes.isEmpty())
            QVERIFY(writeBytes(path, bytes));
        const ToolRun run = runTool({QStringLiteral("project"), path});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(QString::fromUtf8(run.err),
                 QStringLiteral("An error occured reading the project file %1.\n\n").arg(path) + advice);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), bytes.isEmpty() ? QStringList() : QStringList{"site.tvxprj"});
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no file") << QStringList{"project"};
        QTest::newRow("two files") << QStringList{"project", "a.tvxprj", "b.tvxprj"};
        QTest::newRow("an option") << QStringList{"project", "--verbose"};
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        const ToolRun run = runTool(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.startsWith("usage: tvxtool"));
    }
};

TVX_TEST(ProjectCommandTest)

#include "projectcommandtest.moc"
