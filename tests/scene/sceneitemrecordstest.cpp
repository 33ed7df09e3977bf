#include "testregistry.h"

#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/tvxssimpletext.h"

#include <QTest>

#include <typeinfo>

using namespace TVX::CORE;

namespace {

const TVXSReferencePoint::Values referenceValues{1.5, -2.25, 3.0, 0.125, 5, 6, 7, 8, 9, 10};

// Every record by name, with a common block that tells copies from fresh records.
std::shared_ptr<TVXSceneItem> makeRecord(const QString& name)
{
    std::shared_ptr<TVXSceneItem> record;
    if (name == "plain")
        record = std::make_shared<TVXSceneItem>();
    else if (name == "polygon")
        record = std::make_shared<TVXSPolygon>(QPolygonF({{1, 2}, {3, 4}, {5, 0}}), 11);
    else if (name == "rectangle")
        record = std::make_shared<TVXSRectangle>(QRectF(1, 2, 30, 40), 12);
    else if (name == "ellipse")
        record = std::make_shared<TVXSEllipse>(QRectF(-5, -5, 10, 20), 13);
    else if (name == "simple text")
        record = std::make_shared<TVXSSimpleText>(QStringLiteral("Riss"), QPointF(7, 8), QPointF(2, -3), 14);
    else if (name == "dimensioning")
        record = std::make_shared<TVXSDimensioning>(2, QPointF(1, 1), QPointF(9, 9), 15);
    else if (name == "reference object")
        record = std::make_shared<TVXSReferenceObject>();
    else if (name == "reference point")
        record = std::make_shared<TVXSReferencePoint>(QStringLiteral("RP 1"), referenceValues);
    else if (name == "reference sphere")
        record = std::make_shared<TVXSReferenceSphere>(QStringLiteral("K 7"), referenceValues);
    if (record) {
        record->data().text = QStringLiteral("block of ") + name;
        record->data().integers = {4, 5};
        record->data().namedValues.insert(QStringLiteral("layer"), {1, QVariant(QStringLiteral("walls"))});
        record->data().numberedValues.insert(3, QVariant(2.5));
    }
    return record;
}

// The kind of a record that declares one, else -1.
int kindOf(const TVXSceneItem& record)
{
    if (const auto* item = dynamic_cast<const TVXScene2DItem*>(&record))
        return int(item->kind());
    if (const auto* reference = dynamic_cast<const TVXSReferenceObject*>(&record))
        return int(reference->kind());
    return -1;
}

} // namespace

class SceneItemRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Reference objects clone as their own class. The 2D records keep the base clone, so their
    // copies are plain records with the common block only; that is how they are meant to behave.
    // The 2D kinds are the item kinds of the scan file's scene items section.
    void kindAndClone_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<quint32>("category");
        QTest::addColumn<int>("kind");
        QTest::addColumn<quint32>("number"); // last constructor argument of the 2D records
        QTest::addColumn<quint32>("cloneCategory");
        QTest::addColumn<int>("cloneKind");

        QTest::newRow("plain") << "plain" << 0u << -1 << 0u << 0u << -1;
        QTest::newRow("polygon") << "polygon" << 2u << 1 << 11u << 0u << -1;
        QTest::newRow("rectangle") << "rectangle" << 2u << 2 << 12u << 0u << -1;
        QTest::newRow("ellipse") << "ellipse" << 2u << 3 << 13u << 0u << -1;
        QTest::newRow("simple text") << "simple text" << 2u << 4 << 14u << 0u << -1;
        QTest::newRow("dimensioning") << "dimensioning" << 2u << 6 << 15u << 0u << -1;
        QTest::newRow("reference object") << "reference object" << 1u << 0 << 0u << 1u << 0;
        QTest::newRow("reference point") << "reference point" << 1u << 1 << 0u << 1u << 1;
        QTest::newRow("reference sphere") << "reference sphere" << 1u << 2 << 0u << 1u << 2;
    }

    void kindAndClone()
    {
        QFETCH(QString, record);
        QFETCH(quint32, category);
        QFETCH(int, kind);
        QFETCH(quint32, number);
        QFETCH(quint32, cloneCategory);
        QFETCH(int, cloneKind);

        const std::shared_ptr<TVXSceneItem> original = makeRecord(record);
        QVERIFY(original);
        QCOMPARE(original->category(), category);
        QCOMPARE(kindOf(*original), kind);
        QCOMPARE(original->data().number, number);

        const std::shared_ptr<TVXSceneItem> copy = original->clone();
        QVERIFY(copy && copy != original);
        QCOMPARE(copy->category(), cloneCategory);
        QCOMPARE(kindOf(*copy), cloneKind);
        if (cloneKind < 0)
            QVERIFY(typeid(*copy) == typeid(TVXSceneItem));
        // The common block is copied, and the copy owns its own.
        QCOMPARE(copy->data().text, original->data().text);
        QCOMPARE(copy->data().number, original->data().number);
        QCOMPARE(copy->data().integers, original->data().integers);
        QCOMPARE(copy->data().namedValues, original->data().namedValues);
        QCOMPARE(copy->data().numberedValues, original->data().numberedValues);
        copy->data().text = QStringLiteral("changed");
        copy->data().numberedValues.clear();
        QCOMPARE(original->data().text, QStringLiteral("block of ") + record);
        QCOMPARE(original->data().numberedValues.size(), 1);
    }

    void referenceClonesKeepTheirData()
    {
        TVXSReferenceSphere sphere(QStringLiteral("K 7"), referenceValues);
        sphere.setFlag(true);
        const auto copy = std::dynamic_pointer_cast<TVXSReferenceSphere>(sphere.clone());
        QVERIFY(copy);
        QCOMPARE(copy->name(), QStringLiteral("K 7"));
        QVERIFY(copy->flag());
        QVERIFY(copy->values() == referenceValues);
        // Position first, the sphere's radius fourth, in file order.
        QCOMPARE(QList<double>({copy->x(), copy->y(), copy->z()}), QList<double>({1.5, -2.25, 3.0}));
        QCOMPARE(copy->radius(), 0.125);
        copy->setName(QStringLiteral("K 8"));
        copy->setFlag(false);
        QCOMPARE(sphere.name(), QStringLiteral("K 7"));
        QVERIFY(sphere.flag());
    }
};

TVX_TEST(SceneItemRecordsTest)

#include "sceneitemrecordstest.moc"
