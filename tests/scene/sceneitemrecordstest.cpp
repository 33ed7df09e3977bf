#include "testregistry.h"

#include "scene/tvxsdimensioning.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/tvxssimpletext.h"

#include <QTest>

#include <functional>
#include <typeinfo>

using namespace TVX::CORE;

using MakeRecord = std::function<std::shared_ptr<TVXSceneItem>()>;
Q_DECLARE_METATYPE(MakeRecord)

class SceneItemRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The 2D records keep the base clone by design: the copy is a plain record holding only its
    // own copy of the common block.
    void twoDimensionalClonesArePlainRecords_data()
    {
        QTest::addColumn<MakeRecord>("make");
        QTest::newRow("polygon") << MakeRecord([] { return std::make_shared<TVXSPolygon>(QPolygonF({{1, 2}}), 11); });
        QTest::newRow("rectangle") << MakeRecord([] { return std::make_shared<TVXSRectangle>(QRectF(1, 2, 3, 4), 12); });
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
        original->data().numberedValues.insert(3, QVariant(2.5));
        QCOMPARE(original->category(), 2u);

        const std::shared_ptr<TVXSceneItem> copy = original->clone();
        QVERIFY(typeid(*copy) == typeid(TVXSceneItem));
        QCOMPARE(copy->category(), 0u);
        QCOMPARE(copy->data().number, original->data().number);
        QCOMPARE(copy->data().integers, original->data().integers);
        QCOMPARE(copy->data().numberedValues, original->data().numberedValues);
        copy->data().text = QStringLiteral("changed");
        QCOMPARE(original->data().text, QStringLiteral("block"));
    }

    void referenceObjectsCloneAsTheirOwnClass()
    {
        const TVXSReferencePoint::Values values{1.5, -2.25, 3.0, 0.125, 5, 6, 7, 8, 9, 10};
        QVERIFY(typeid(*TVXSReferencePoint(QStringLiteral("RP 1"), values).clone()) == typeid(TVXSReferencePoint));
        TVXSReferenceSphere sphere(QStringLiteral("K 7"), values);
        sphere.setFlag(true);
        const auto copy = std::dynamic_pointer_cast<TVXSReferenceSphere>(sphere.clone());
        QVERIFY(copy);
        QCOMPARE(copy->kind(), 2u);
        QCOMPARE(copy->category(), 1u);
        QCOMPARE(copy->name(), QStringLiteral("K 7"));
        QVERIFY(copy->flag());
        QVERIFY(copy->values() == values);
        copy->setName(QStringLiteral("K 8"));
        QCOMPARE(sphere.name(), QStringLiteral("K 7"));
    }
};

TVX_TEST(SceneItemRecordsTest)

#include "sceneitemrecordstest.moc"
