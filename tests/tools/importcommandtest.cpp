#include "scanexport.h"
#include "testfiles.h"
#include "testregistry.h"
#include "toolrun.h"

#include "fileio/tvxprojectserializer.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// Every file below a folder with its bytes.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(folder).relativeFilePath(path), readBytes(path));
    }
    return files;
}

} // namespace

class ImportCommandTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_ptx;

private Q_SLOTS:
    void initTestCase()
    {
        const QString source = m_dir.filePath(QStringLiteral("source.tvx"));
        QVERIFY(writeSourceScan(source, 40, 20));
        m_ptx = m_dir.filePath(QStringLiteral("hall.ptx"));
        QFile file(m_ptx);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(writePtx(file, {exportOf(source)}));
    }

    // A new project, then a second import into it: two folders, the summary on stdout, progress
    // on stderr.
    void createsAndAdds()
    {
        const QString project = m_dir.filePath(QStringLiteral("new/project"));
        const ToolRun first = runTool({QStringLiteral("import"), m_ptx, project});
        QCOMPARE(first.exitCode, 0);
        QVERIFY(first.err.contains("import: 100%"));
        const QJsonObject summary = first.json();
        QCOMPARE(jsonShape(summary), QStringLiteral("cells:n folder:s points:n project:s scans:a seconds:n"));
        QCOMPARE(summary["cells"].toDouble(), 800.0);
        QCOMPARE(summary["folder"].toString(), QStringLiteral("hall.ptx"));
        const QJsonObject scan = summary["scans"].toArray().at(0).toObject();
        QCOMPARE(scan["columns"].toDouble(), 40.0);
        QVERIFY(QFile::exists(scan["file"].toString()));

        const ToolRun second = runTool({QStringLiteral("import"), m_ptx, project});
        QCOMPARE(second.exitCode, 0);
        TVXProjectSerializer serializer(summary["project"].toString());
        QVERIFY(serializer.open(TVXProjectSerializer::ReadOnly));
        TVXProjectContent content;
        QVERIFY(serializer.read(content));
        QCOMPARE(content.scans, QStringList({"scans/hall.tvx", "scans/hall-2.tvx"}));
        // scans( hall.ptx( hall ) hall.ptx( hall-2 ) )
        QCOMPARE(content.tree.size(), std::size_t(5));
        QCOMPARE(content.tree[1].name, QStringLiteral("hall.ptx"));
        QCOMPARE(content.tree[3].name, QStringLiteral("hall.ptx"));
    }

    // A bad file: exit code 1, the reason on stderr, the project untouched (and no project made).
    void badInput_data()
    {
        QTest::addColumn<bool>("existing");
        QTest::newRow("into an existing project") << true;
        QTest::newRow("into a new directory") << false;
    }
    void badInput()
    {
        QFETCH(bool, existing);
        const QString bad = m_dir.filePath(QStringLiteral("bad.ptx"));
        QByteArray bytes = readBytes(m_ptx);
        QVERIFY(writeBytes(bad, bytes.left(bytes.size() / 2)));
        const QString project = m_dir.filePath(existing ? QStringLiteral("kept") : QStringLiteral("never"));
        if (existing)
            QCOMPARE(runTool({QStringLiteral("import"), m_ptx, project}).exitCode, 0);
        const auto before = filesBelow(project);
        const ToolRun run = runTool({QStringLiteral("import"), bad, project});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("bad.ptx: the file ends at line"), run.err.constData());
        QCOMPARE(filesBelow(project), before);
        QCOMPARE(QFileInfo::exists(project), existing);
    }
};

TVX_TEST(ImportCommandTest)
#include "importcommandtest.moc"
