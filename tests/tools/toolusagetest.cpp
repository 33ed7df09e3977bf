#include "scanfixture.h"
#include "testfiles.h"
#include "testregistry.h"
#include "toolrun.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::TEST;

namespace {
struct UsageRow {
    const char* name;
    const char* arguments; // split at spaces; @name stands for that file in the prepared folder
    int exitCode;
    const char* error; // how standard error starts
};
} // namespace
Q_DECLARE_METATYPE(UsageRow)

// The command line's contract over every command: wrong usage exits with 2 and the usage text,
// a failure with 1 and one line saying what failed; neither prints to standard output or leaves
// output behind.
class ToolUsageTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QStringList entries() const
    {
        return QDir(m_dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QString filled(const char* text) const
    {
        QString result = QString::fromUtf8(text);
        static const QRegularExpression file(QStringLiteral("@([\\w.-]+)"));
        return result.replace(file, m_dir.path() + QStringLiteral("/\\1"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        // 10 × 7 cells in tiles of 4.
        for (const char* name : {"ok", "nodata", "short", "cut"})
            QVERIFY(!writePatternScan(m_dir.path(), QLatin1String(name), 10, 7, 4, AllChannels).isEmpty());
        QVERIFY(!writePatternScan(m_dir.path(), QStringLiteral("colour"), 10, 7, 4, ColourChannel).isEmpty());
        QVERIFY(QFile::remove(filled("@nodata.tvxsd")));
        QVERIFY(QFile::resize(filled("@short.tvxsd"), 40));
        // Header of format 2 (32 bytes), one directory tag and half its offset: the reader throws.
        QVERIFY(writeBytes(filled("@cut.tvx"), readBytes(filled("@cut.tvx")).left(32 + 4 + 4)));
        QVERIFY(writeBytes(filled("@garbage.tvx"), QByteArray(64, 'x')));
        QVERIFY(QFile::copy(filled("@ok.tvxsd"), filled("@garbage.tvxsd")));
    }

    void exitCodes_data()
    {
        QTest::addColumn<UsageRow>("row");
        const char* usage = "usage: tvxtool COMMAND";
        const UsageRow rows[] = {
            {"no command", "", 2, usage},
            {"unknown command", "inf @ok.tvx", 2, usage},
            {"cloud without output", "cloud @ok.tvx", 2, usage},
            {"cloud step 0", "cloud @ok.tvx --output @out.ply --step 0", 2, usage},
            {"annotations of two scans", "annotations @a.tvx @b.tvx", 2, usage},
            {"import without project directory", "import @a.ptx", 2, usage},
            {"import step 0", "import @a.e57 @p --step 0", 2,
             "tvxtool import: the step must lie between 0.0001 and 10 degrees\nusage: "},
            {"demo of too many scans", "demo @demo --scans 501", 2, "tvxtool demo: at most 500 scans\nusage: "},
            {"missing data file", "point @nodata.tvx 0 0", 1, "cannot open @nodata.tvxsd\n"},
            {"not a scan", "info @garbage.tvx", 1, "not a scan file: @garbage.tvx\n"},
            {"read error passed on", "info @cut.tvx", 1, "file read error libs/core/src/fileio/tvxfile, line 243\n"},
            {"point out of range", "point @ok.tvx 10 0", 1, "cell out of range\n"},
            {"point without distance", "point @colour.tvx 1 1", 1, "scan has no distance channel\n"},
            {"point in short data", "point @short.tvx 9 6", 1, "data file too short: @short.tvxsd\n"},
            {"import of another format", "import @a.las @p", 1,
             "tvxtool import: @a.las: only PTX and E57 files can be imported\n"},
            {"missing project file", "project @missing.tvxprj", 1,
             "An error occured reading the project file @missing.tvxprj.\n\n"},
        };
        for (const UsageRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void exitCodes()
    {
        QFETCH(UsageRow, row);
        const QStringList before = entries();
        const ToolRun run = runTool(filled(row.arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QCOMPARE(run.exitCode, row.exitCode);
        QVERIFY2(QString::fromUtf8(run.err).startsWith(filled(row.error)), run.err.constData());
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(entries(), before);
    }

    void helpListsEveryCommand()
    {
        const ToolRun run = runTool({QStringLiteral("--help")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.isEmpty());
        for (const char* command : {"info", "point", "cloud", "annotations", "project", "demo", "import"})
            QVERIFY2(run.out.contains(QByteArray("  tvxtool ") + command + ' '), command);
    }
};

TVX_TEST(ToolUsageTest)

#include "toolusagetest.moc"
