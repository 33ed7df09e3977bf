#include "testregistry.h"

#include "fakesphericalview.h"

#include "glviews/areaselectionoperator.h"
#include "glviews/cameramoveoperator.h"
#include "glviews/createellipseoperator.h"
#include "glviews/createmeasurmenttemoperator.h"
#include "glviews/createpolygonoperator.h"
#include "glviews/createrectangleoperator.h"
#include "glviews/createtextitemoperator.h"
#include "glviews/modifyellipseoperator.h"
#include "glviews/modifymeasurementtemoperator.h"
#include "glviews/modifypolygonoperator.h"
#include "glviews/modifyregtangleoperator.h"
#include "glviews/modifytextitemoperator.h"
#include "glviews/objectselectionoperator.h"
#include "glviews/scanpointselectionoperator.h"
#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatormanager.h"
#include "glviews/zoominoperator.h"
#include "glviews/zoomoutoperator.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <functional>
#include <set>

using namespace TVX::CORE;

namespace {

ScanViewEvent button(quint32 code, qint32 x = 0, qint32 y = 0)
{
    return ScanViewEvent::mouse(ScanViewEvent::MouseButton, code, x, y);
}

ScanViewEvent move(qint32 x, qint32 y)
{
    return ScanViewEvent::mouse(ScanViewEvent::MouseMove, 0, x, y);
}

// Writes each call into a log shared by all operators of a test, as "name.operation".
class RecordingOperator : public ScanViewOperator
{
public:
    RecordingOperator(const QString& name, QStringList& log, bool consumes = false)
        : m_name(name), m_log(log), m_consumes(consumes)
    {
    }

    void deactivate() override { note("deactivate"); }
    void cancel() override { note("cancel"); }
    void reset() override { note("reset"); }
    bool mousePress(const ScanViewEvent&) override { return note("mousePress"); }
    bool mouseRelease(const ScanViewEvent&) override { return note("mouseRelease"); }
    bool mouseDoubleClick(const ScanViewEvent&) override { return note("mouseDoubleClick"); }
    bool mouseMove(const ScanViewEvent&) override { return note("mouseMove"); }
    bool wheel(const ScanViewEvent&) override { return note("wheel"); }
    bool keyPress(const ScanViewEvent&) override { return note("keyPress"); }
    bool keyRelease(const ScanViewEvent&) override { return note("keyRelease"); }

private:
    bool note(const char* operation)
    {
        m_log << m_name + QLatin1Char('.') + QLatin1String(operation);
        return m_consumes;
    }

    QString m_name;
    QStringList& m_log;
    bool m_consumes;
};

// Mode 5 lists a then b; mode 7 lists c.
struct RecordingFixture {
    explicit RecordingFixture(bool aConsumes = false, bool bConsumes = false)
    {
        manager.setOperators(5, {std::make_shared<RecordingOperator>("a", log, aConsumes),
                                 std::make_shared<RecordingOperator>("b", log, bConsumes)});
        manager.setOperators(7, {std::make_shared<RecordingOperator>("c", log)});
    }

    QStringList log;
    ScanViewOperatorManager manager;
};

struct ConversionRow {
    std::function<ScanViewEvent()> convert;
    ScanViewEvent expected;
};

struct ModeRow {
    std::function<void(ScanViewOperatorManager&)> steps;
    QStringList log;
    quint32 mode;
};

struct DispatchRow {
    bool aConsumes;
    bool bConsumes;
    quint32 mode;
    ScanViewEvent event;
    QStringList log;
    bool consumed;
};

template <class T>
bool is(const ScanViewOperator* op)
{
    return dynamic_cast<const T*>(op) != nullptr;
}

struct CameraRow {
    quint32 viewType;
    std::vector<ScanViewEvent> events;
    QList<bool> consumed;
    QStringList calls;
};

} // namespace

Q_DECLARE_METATYPE(ConversionRow)
Q_DECLARE_METATYPE(ModeRow)
Q_DECLARE_METATYPE(DispatchRow)
Q_DECLARE_METATYPE(CameraRow)

class ScanViewOperatorManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyCodes_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<quint32>("code");
        QTest::newRow("digit 0") << int(Qt::Key_0) << 1u;
        QTest::newRow("Z") << int(Qt::Key_Z) << 36u;
        QTest::newRow("F12") << int(Qt::Key_F12) << 50u;
        QTest::newRow("F13 is past the table") << int(Qt::Key_F13) << 0u;
        QTest::newRow("Shift") << int(Qt::Key_Shift) << 0x10000000u;
        QTest::newRow("AltGr, as Meta") << int(Qt::Key_AltGr) << 0x10000003u;
        QTest::newRow("Control, left out on purpose") << int(Qt::Key_Control) << 0u;
        QTest::newRow("at sign, just before A") << int(Qt::Key_At) << 0u;
    }

    void keyCodes()
    {
        QFETCH(int, qtKey);
        QFETCH(quint32, code);
        QCOMPARE(scanViewKeyCode(qtKey), code);
    }

    void recordsOfQtEvents_data()
    {
        QTest::addColumn<ConversionRow>("row");
        const auto mouse = [](QEvent::Type type, Qt::MouseButton button, QPointF position) {
            return [=] {
                return scanViewEvent(QMouseEvent(type, position, position, button, button, Qt::NoModifier));
            };
        };
        const auto wheel = [](QPoint angleDelta) {
            return [=] {
                return scanViewEvent(QWheelEvent(QPointF(5, 5), QPointF(5, 5), QPoint(), angleDelta, Qt::NoButton,
                                                 Qt::NoModifier, Qt::NoScrollPhase, false));
            };
        };
        const auto key = [](QEvent::Type type, int qtKey, Qt::KeyboardModifiers modifiers) {
            return [=] { return scanViewEvent(QKeyEvent(type, qtKey, modifiers)); };
        };
        using E = ScanViewEvent;
        QTest::newRow("middle press, position rounded")
            << ConversionRow{mouse(QEvent::MouseButtonPress, Qt::MiddleButton, {2.6, 3.4}),
                             E::mouse(E::MouseButton, 3, 3, 3)};
        QTest::newRow("left double click carries the press code")
            << ConversionRow{mouse(QEvent::MouseButtonDblClick, Qt::LeftButton, {7, 8}),
                             E::mouse(E::MouseDoubleClick, 1, 7, 8)};
        QTest::newRow("horizontal wheel") << ConversionRow{wheel({240, 0}), E::wheel(240)};
        QTest::newRow("A with Control held")
            << ConversionRow{key(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier), E::key(E::KeyPress, 11, true)};
        // A modifier key's own event comes with the state before it; Qt reports the state after it.
        QTest::newRow("Control itself is no known key, but is held")
            << ConversionRow{key(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier), E::key(E::KeyPress, 0, true)};
        QTest::newRow("Shift release, nothing held any more")
            << ConversionRow{key(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier),
                             E::key(E::KeyRelease, 0x10000000, false)};
    }

    void recordsOfQtEvents()
    {
        QFETCH(ConversionRow, row);
        const ScanViewEvent event = row.convert();
        QCOMPARE(event, row.expected);
    }

    void modeChanges_data()
    {
        QTest::addColumn<ModeRow>("row");
        using M = ScanViewOperatorManager;
        QTest::newRow("leaving a mode: cancel, then deactivate, in list order")
            << ModeRow{[](M& m) { m.setMode(5); m.setMode(7); },
                       {"a.cancel", "a.deactivate", "b.cancel", "b.deactivate"}, 7};
        QTest::newRow("setting the current mode again keeps the gesture")
            << ModeRow{[](M& m) {
                           m.setMode(5);
                           m.dispatch(button(1));
                           m.setMode(5);
                           m.dispatch(move(3, 4));
                       },
                       {"a.mousePress", "b.mousePress", "a.mouseMove", "b.mouseMove"}, 5};
        QTest::newRow("leaving a mode without a list") << ModeRow{[](M& m) { m.setMode(9); m.setMode(7); }, {}, 7};
        QTest::newRow("a view closes: cancel, then reset, on the current mode's operators")
            << ModeRow{[](M& m) { m.setMode(5); m.resetActiveOperator(); },
                       {"a.cancel", "a.reset", "b.cancel", "b.reset"}, 5};
    }

    void modeChanges()
    {
        QFETCH(ModeRow, row);
        RecordingFixture f;
        QCOMPARE(f.manager.currentMode(), 0u);
        row.steps(f.manager);
        QCOMPARE(f.log, row.log);
        QCOMPARE(f.manager.currentMode(), row.mode);
    }

    void dispatch_data()
    {
        QTest::addColumn<DispatchRow>("row");
        using E = ScanViewEvent;
        QTest::newRow("the first consumer wins") << DispatchRow{true, true, 5, button(1), {"a.mousePress"}, true};
        QTest::newRow("the second consumes")
            << DispatchRow{false, true, 5, button(1), {"a.mousePress", "b.mousePress"}, true};
        QTest::newRow("a mode without a list") << DispatchRow{true, true, 9, button(1), {}, false};
        QTest::newRow("move") << DispatchRow{true, false, 5, move(1, 1), {"a.mouseMove"}, true};
        QTest::newRow("other button") << DispatchRow{true, false, 5, button(0), {"a.mouseRelease"}, true};
        QTest::newRow("double click")
            << DispatchRow{true, false, 5, E::mouse(E::MouseDoubleClick, 1, 0, 0), {"a.mouseDoubleClick"}, true};
        QTest::newRow("wheel") << DispatchRow{true, false, 5, E::wheel(-120), {"a.wheel"}, true};
        QTest::newRow("key press") << DispatchRow{true, false, 5, E::key(E::KeyPress, 38, false), {"a.keyPress"}, true};
        QTest::newRow("unknown kind") << DispatchRow{true, true, 5, E::mouse(64, 1, 0, 0), {}, false};
    }

    void dispatch()
    {
        QFETCH(DispatchRow, row);
        RecordingFixture f(row.aConsumes, row.bConsumes);
        f.manager.setMode(row.mode);
        QCOMPARE(f.manager.dispatch(row.event), row.consumed);
        QCOMPARE(f.log, row.log);
    }

    // Each mode lists its own operator, then the one camera operator; every class exists once.
    void defaultTable()
    {
        const std::pair<quint32, std::function<bool(const ScanViewOperator*)>> table[] = {
            {1, is<ScanPointSelectionOperator>},     {3, is<AreaSelectionOperator>},
            {16, is<ZoomInOperator>},                {17, is<ZoomOutOperator>},
            {32, is<CreatePolygonOperator>},         {33, is<ModifyPolygonOperator>},
            {34, is<CreateEllipseOperator>},         {35, is<ModifyEllipseOperator>},
            {36, is<CreateRectangleOperator>},       {37, is<ModifyRegtangleOperator>},
            {38, is<CreateMeasurmenttemOperator>},   {39, is<ModifyMeasurementtemOperator>},
            {40, is<CreateTextItemOperator>},        {41, is<ModifyTextItemOperator>},
            {4101, is<ScanPointSelectionOperator>},  {4102, is<ObjectSelectionOperator>},
        };
        const auto manager = ScanViewOperatorManager::createDefault();
        QCOMPARE(manager->currentMode(), 0u);
        const auto camera = manager->operators(1).at(1);
        QVERIFY(is<CameraMoveOperator>(camera.get()));
        std::set<const ScanViewOperator*> operators;
        for (const auto& [mode, isOwnOperator] : table) {
            const auto list = manager->operators(mode);
            QCOMPARE(list.size(), std::size_t(2));
            QVERIFY2(isOwnOperator(list[0].get()), qPrintable(QString::number(mode)));
            // The lens goes with the selection of scan points and with every create and modify mode.
            QCOMPARE(is<LensEnabledOperator>(list[0].get()), mode == 1 || mode == 4101 || (mode >= 32 && mode <= 41));
            QCOMPARE(list[1], camera);
            QCOMPARE(manager->operatorFor(mode), list[0]);
            operators.insert(list[0].get());
        }
        // Fifteen own operators, scan point selection shared by 1 and 4101, and the camera.
        QCOMPARE(operators.size(), std::size_t(15));
        for (const quint32 untabled : {0u, 2u, 42u, 4100u})
            QVERIFY(manager->operators(untabled).empty());
    }

    void cameraMove_data()
    {
        QTest::addColumn<CameraRow>("row");
        using E = ScanViewEvent;
        const quint32 spherical = 2, cloud = 3;
        QTest::newRow("left drag does not turn")
            << CameraRow{spherical, {button(1, 10, 10), move(20, 30), button(2, 20, 30)}, {true, false, true}, {}};
        QTest::newRow("left release, point cloud view") << CameraRow{cloud, {button(1), button(2)}, {true, true}, {}};
        // (10,10) -> (14,18): d = (4, 8) gives (-0.25·8, 0, -0.25·4); then (14,18) -> (10,14): d = (-4, -4).
        QTest::newRow("middle drag turns the spherical view")
            << CameraRow{spherical,
                         {button(3, 10, 10), move(14, 18), move(10, 14), button(4, 10, 14)},
                         {false, true, true, false},
                         {"rotate(-2,0,-1)", "rotate(1,0,1)"}};
        QTest::newRow("no turn after the middle release")
            << CameraRow{spherical, {button(3), button(4), move(8, 8)}, {false, false, false}, {}};
        QTest::newRow("right drag is never consumed")
            << CameraRow{spherical, {button(5), move(8, 8), button(6, 8, 8)}, {false, false, false}, {}};
        QTest::newRow("wheel 1200: the same single step") << CameraRow{spherical, {E::wheel(1200)}, {true}, {"zoomIn"}};
        QTest::newRow("wheel -120 zooms out") << CameraRow{spherical, {E::wheel(-120)}, {true}, {"zoomOut"}};
        QTest::newRow("wheel 0") << CameraRow{spherical, {E::wheel(0)}, {false}, {}};
        QTest::newRow("double click and keys are left alone")
            << CameraRow{spherical,
                         {E::mouse(E::MouseDoubleClick, 1, 0, 0), E::key(E::KeyPress, 0x10000000, true)},
                         {false, false},
                         {}};
    }

    void cameraMove()
    {
        QFETCH(CameraRow, row);
        QWidget subWindow;
        FakeSphericalView view;
        const auto camera = std::make_shared<CameraMoveOperator>();
        ScanViewOperatorManager manager;
        manager.setOperators(1, {camera});
        manager.setActiveViewProvider([&] {
            ActiveView active;
            if (row.viewType != ActiveView::None) {
                active.subWindow = &subWindow;
                active.scanId = 7;
                active.type = row.viewType;
                active.spherical = row.viewType == ActiveView::Spherical ? &view : nullptr;
            }
            return active;
        });
        manager.setMode(1);
        QList<bool> consumed;
        for (const ScanViewEvent& event : row.events)
            consumed << manager.dispatch(event);
        QCOMPARE(consumed, row.consumed);
        QCOMPARE(view.calls, row.calls);

        // Every press records the gesture's view; only a spherical sub window is kept.
        if (row.events.front().isPress()) {
            QCOMPARE(camera->gestureViewType(), row.viewType);
            QCOMPARE(camera->gestureScanId(), row.viewType == ActiveView::None ? 0u : 7u);
            QCOMPARE(camera->gestureSubWindow(), row.viewType == ActiveView::Spherical ? &subWindow : nullptr);
        }
    }
};

TVX_TEST(ScanViewOperatorManagerTest)

#include "scanviewoperatormanagertest.moc"
