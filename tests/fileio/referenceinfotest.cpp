#include "testregistry.h"

#include "scene/tvxsreferencepoint.h"
#include "scene/tvxsreferencesphere.h"
#include "scanfixture.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
// One reference entry of `type`: `doubles` numbers counting up from `first`, a name, a flag and,
// for points and spheres, a trailer with text "t", integers {4, 5} and one value in each map.
void writeEntry(QDataStream& s, quint32 type, int doubles, double first, const QString& name)
{
    s << type;
    for (int i = 0; i < doubles; ++i)
        s << first + i;
    s << name << true;
    if (type == 1 || type == 2) {
        s << QStringLiteral("t") << quint32(2) << qint32(4) << qint32(5);
        s << quint32(1) << QStringLiteral("key") << qint32(8) << QVariant(QStringLiteral("v"));
        s << quint32(1) << qint32(-3) << QVariant(1.5);
    }
}

QByteArray section(qint32 count, const std::function<void(QDataStream&)>& entries, quint32 endTag = 0x15FFFF)
{
    return streamBytes([&](QDataStream& s) {
        s << quint32(0x150000) << true << QStringLiteral("ETRS89") << count;
        entries(s);
        s << endTag;
    });
}
} // namespace

// Entry types of the reference information section and its list operations.
class ReferenceInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("result"); // "read", "refused" or the read error
        QTest::addColumn<QStringList>("built"); // the classes, in order
        const QString read = QStringLiteral("read");
        const QString refused = QStringLiteral("refused");
        const QString failed = QStringLiteral("file read error libs/core/src/fileio/tvxfilereferenceinfo, line 203");

        // Each dropped entry is followed by a point: it is only read right when the dropped entry
        // consumed exactly its bytes.
        QTest::newRow("point and sphere") << section(2, [](QDataStream& s) {
            writeEntry(s, 1, 10, 1.0, QStringLiteral("P1"));
            writeEntry(s, 2, 10, 11.0, QStringLiteral("S1"));
        }) << read << QStringList{"point", "sphere"};
        QTest::newRow("type 3: six and five doubles, name, flag; nothing built") << section(2, [](QDataStream& s) {
            writeEntry(s, 3, 11, 1.0, QStringLiteral("old"));
            writeEntry(s, 1, 10, 1.0, QStringLiteral("P1"));
        }) << read << QStringList{"point"};
        QTest::newRow("other type: five doubles, name, flag") << section(2, [](QDataStream& s) {
            writeEntry(s, 9, 5, 1.0, QStringLiteral("odd"));
            writeEntry(s, 1, 10, 1.0, QStringLiteral("P1"));
        }) << read << QStringList{"point"};
        QTest::newRow("negative count reads no entry") << section(-4, [](QDataStream&) {}) << read << QStringList();
        const auto onePoint = [](QDataStream& s) { writeEntry(s, 1, 10, 1.0, QStringLiteral("P1")); };
        QTest::newRow("wrong end tag") << section(1, onePoint, 0x16FFFF) << refused << QStringList{"point"};
        QTest::newRow("count past the end") << section(0x7FFFFFFF, [](QDataStream&) {}) << refused << QStringList();
        // An odd name length corrupts the stream; the rest still lines up, so the end tag matches.
        QTest::newRow("corrupt name") << streamBytes([](QDataStream& s) {
            s << quint32(0x150000) << true << quint32(3) << qint32(0) << quint32(0x15FFFF);
        }) << failed << QStringList();
    }

    void entries()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, result);
        QFETCH(QStringList, built);

        TVXFileReferenceInfo info;
        QCOMPARE(readSection(info, bytes), result);
        QCOMPARE(info.objectCount(), built.size());
        for (int i = 0; i < built.size(); ++i) {
            const auto point = std::dynamic_pointer_cast<TVXSReferencePoint>(info.object(i));
            QVERIFY(point);
            const bool sphere = std::dynamic_pointer_cast<TVXSReferenceSphere>(point) != nullptr;
            QCOMPARE(QString::fromLatin1(sphere ? "sphere" : "point"), built[i]);
            // Ten numbers in file order: the first P1 counts 1..10, S1 11..20.
            const double first = point->name() == QStringLiteral("S1") ? 11.0 : 1.0;
            for (std::size_t v = 0; v < 10; ++v)
                QCOMPARE(point->values()[v], first + double(v));
            QVERIFY(point->flag());
            QCOMPARE(point->data().text, QStringLiteral("t"));
            QCOMPARE(point->data().integers, (QList<qint32>{4, 5}));
            QCOMPARE(point->data().namedValues.value(QStringLiteral("key")),
                     qMakePair(8, QVariant(QStringLiteral("v"))));
            QCOMPARE(point->data().numberedValues.value(-3), QVariant(1.5));
        }
        if (result == QLatin1String("read")) {
            QCOMPARE(info.name, QStringLiteral("ETRS89"));
            QVERIFY(info.flag);
        }
    }
};

TVX_TEST(ReferenceInfoTest)
#include "referenceinfotest.moc"
