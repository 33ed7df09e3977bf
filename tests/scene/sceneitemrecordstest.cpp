#include "testregistry.h"

#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/tvxssimpletext.h"

#include <QTest>

#include <functional>
#include <typeinfo>

using namespace TVX::CORE;

namespace {

const TVXSReferencePoint::Values referenceValues{1.5, -2.25, 3.0, 0.125, 5, 6, 7, 8, 9, 10};

using MakeRecord = std::function<std::shared_ptr<TVXSceneItem>()>;

} // namespace
Q_DECLARE_METATYPE(MakeRecord)

class SceneItemRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The 2D records keep the base clone: their copies are plain records with only the common
    // block, by design. Either way the copy owns a block of its own.
    void twoDimensionalClonesArePlainRecords_data()
    {
        QTest::addColumn<MakeRecord>("make");
        QTest::newRow("polygon")
            << MakeRecord([] { return std::make_shared<TVXSPolygon>(QPolygonF({{1, 2}, {3, 4}}), 11); });
        QTest::newRow("rectangle")
            << MakeRecord([] { return std::make_shared<TVXSRectangle>(QRectF(1, 2, 3, 4), 12); });
        QTest::newRow("ellipse") << MakeRecord([] { return std::make_shared<TVXSEllipse>(QRectF(-5, -5, 1, 2), 13); });
        QTest::newRow("simple text") << MakeRecord(
            [] { return std::make_shared<TVXSSimpleText>(QStringLiteral("Riss"), QPointF(7, 8), QPointF(2, -3), 14); });
        QTest::newRow("dimensioning")
            << MakeRecord([] { return std::make_shared<TVXSDimensioning>(2, QPointF(1, 1), QPointF(9, 9), 15); });
    }

    void twoDimensionalClonesArePlainRecords()
    {
        QFETCH(MakeRecord, make);
        const std::shared_ptr<TVXSceneItem> original = make();
        original->data().text = QStringLiteral("block");
        original->data().integers = {4, 5};
        original->data().namedValues.insert(QStringLiteral("layer"), {1, QVariant(QStringLiteral("walls"))});
        original->data().numberedValues.insert(3, QVariant(2.5));
        QCOMPARE(original->category(), 2u);
        QVERIFY(original->data().number != 0); // the last constructor argument

        const std::shared_ptr<TVXSceneItem> copy = original->clone();
        QVERIFY(copy && copy != original);
        QVERIFY(typeid(*copy) == typeid(TVXSceneItem));
        QCOMPARE(copy->category(), 0u);
        QCOMPARE(copy->data().number, original->data().number);
        QCOMPARE(copy->data().text, original->data().text);
        QCOMPARE(copy->data().integers, original->data().integers);
        QCOMPARE(copy->data().namedValues, original->data().namedValues);
        QCOMPARE(copy->data().numberedValues, original->data().numberedValues);
        copy->data().text = QStringLiteral("changed");
        copy->data().numberedValues.clear();
        QCOMPARE(original->data().text, QStringLiteral("block"));
        QCOMPARE(original->data().numberedValues.size(), 1);
    }

    void referenceObjectsCloneAsTheirOwnClass()
    {
        const TVXSReferencePoint point(QStringLiteral("RP 1"), referenceValues);
        QVERIFY(typeid(*point.clone()) == typeid(TVXSReferencePoint));
        QVERIFY(typeid(*TVXSReferenceObject().clone()) == typeid(TVXSReferenceObject));

        TVXSReferenceSphere sphere(QStringLiteral("K 7"), referenceValues);
        sphere.setFlag(true);
        const auto copy = std::dynamic_pointer_cast<TVXSReferenceSphere>(sphere.clone());
        QVERIFY(copy);
        QCOMPARE(copy->kind(), 2u);
        QCOMPARE(copy->category(), 1u);
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
