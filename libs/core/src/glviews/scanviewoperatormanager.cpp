#include "glviews/scanviewoperatormanager.h"

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
#include "glviews/scanviewoperator.h"
#include "glviews/zoominoperator.h"
#include "glviews/zoomoutoperator.h"

#include <QLoggingCategory>

#include <algorithm>
#include <map>

Q_LOGGING_CATEGORY(lcOperators, "tvx.glviews.operators", QtWarningMsg)

namespace TVX::CORE {

struct ScanViewOperatorManager::Private {
    quint32 currentMode{NoMode};
    std::map<quint32, OperatorList> lists;
    ActiveViewProvider provider;
    ScanViewOperatorHost* host{nullptr};
};

ScanViewOperatorManager::ScanViewOperatorManager()
    : d(std::make_unique<Private>())
{
}

ScanViewOperatorManager::~ScanViewOperatorManager() = default;

std::unique_ptr<ScanViewOperatorManager> ScanViewOperatorManager::createDefault()
{
    // Created once each, in this order, and shared by the lists below.
    const auto cameraMove = std::make_shared<CameraMoveOperator>();
    const auto scanPointSelection = std::make_shared<ScanPointSelectionOperator>();
    const auto objectSelection = std::make_shared<ObjectSelectionOperator>();
    const auto zoomIn = std::make_shared<ZoomInOperator>();
    const auto zoomOut = std::make_shared<ZoomOutOperator>();
    const auto createPolygon = std::make_shared<CreatePolygonOperator>();
    const auto createRectangle = std::make_shared<CreateRectangleOperator>();
    const auto createEllipse = std::make_shared<CreateEllipseOperator>();
    const auto createMeasurement = std::make_shared<CreateMeasurmenttemOperator>();
    const auto createText = std::make_shared<CreateTextItemOperator>();
    const auto modifyPolygon = std::make_shared<ModifyPolygonOperator>();
    const auto modifyRectangle = std::make_shared<ModifyRegtangleOperator>();
    const auto modifyEllipse = std::make_shared<ModifyEllipseOperator>();
    const auto modifyText = std::make_shared<ModifyTextItemOperator>();
    const auto modifyMeasurement = std::make_shared<ModifyMeasurementtemOperator>();
    const auto areaSelection = std::make_shared<AreaSelectionOperator>();

    const std::pair<Mode, std::shared_ptr<ScanViewOperator>> table[] = {
        {PickMode, scanPointSelection},
        {AreaSelectionMode, areaSelection},
        {ZoomInMode, zoomIn},
        {ZoomOutMode, zoomOut},
        {CreatePolygonMode, createPolygon},
        {ModifyPolygonMode, modifyPolygon},
        {CreateEllipseMode, createEllipse},
        {ModifyEllipseMode, modifyEllipse},
        {CreateRectangleMode, createRectangle},
        {ModifyRectangleMode, modifyRectangle},
        {CreateMeasurementMode, createMeasurement},
        {ModifyMeasurementMode, modifyMeasurement},
        {CreateTextMode, createText},
        {ModifyTextMode, modifyText},
        {ScanPointSelectionMode, scanPointSelection},
        {ObjectSelectionMode, objectSelection},
    };
    auto manager = std::make_unique<ScanViewOperatorManager>();
    for (const auto& [mode, first] : table)
        manager->setOperators(mode, {first, cameraMove});
    return manager;
}

void ScanViewOperatorManager::setOperators(quint32 mode, OperatorList operators)
{
    const auto nulls = std::remove(operators.begin(), operators.end(), nullptr);
    if (nulls != operators.end()) {
        qCWarning(lcOperators) << "left out" << (operators.end() - nulls) << "missing operators of mode" << mode;
        operators.erase(nulls, operators.end());
    }
    for (const auto& op : operators) {
        op->setActiveViewProvider(d->provider);
        op->setHost(d->host);
    }
    d->lists[mode] = std::move(operators);
}

ScanViewOperatorManager::OperatorList ScanViewOperatorManager::operators(quint32 mode) const
{
    const auto list = d->lists.find(mode);
    return list == d->lists.end() ? OperatorList() : list->second;
}

std::shared_ptr<ScanViewOperator> ScanViewOperatorManager::operatorFor(quint32 mode) const
{
    const auto list = d->lists.find(mode);
    if (list == d->lists.end() || list->second.empty())
        return nullptr;
    return list->second.front();
}

quint32 ScanViewOperatorManager::currentMode() const
{
    return d->currentMode;
}

void ScanViewOperatorManager::setMode(quint32 mode)
{
    if (mode == d->currentMode)
        return;
    // A copy: an operator may change the lists while it is told.
    for (const auto& op : operators(d->currentMode)) {
        op->cancel();
        op->deactivate();
    }
    qCDebug(lcOperators) << "mode" << d->currentMode << "->" << mode;
    d->currentMode = mode;
}

bool ScanViewOperatorManager::dispatch(const ScanViewEvent& event)
{
    bool (ScanViewOperator::*operation)(const ScanViewEvent&) = nullptr;
    switch (event.kind) {
    case ScanViewEvent::MouseMove:
        operation = &ScanViewOperator::mouseMove;
        break;
    case ScanViewEvent::MouseButton:
        operation = event.isPress() ? &ScanViewOperator::mousePress : &ScanViewOperator::mouseRelease;
        break;
    case ScanViewEvent::MouseDoubleClick:
        operation = &ScanViewOperator::mouseDoubleClick;
        break;
    case ScanViewEvent::Wheel:
        operation = &ScanViewOperator::wheel;
        break;
    case ScanViewEvent::KeyPress:
        operation = &ScanViewOperator::keyPress;
        break;
    case ScanViewEvent::KeyRelease:
        operation = &ScanViewOperator::keyRelease;
        break;
    default:
        qCWarning(lcOperators) << "ignored view event of unknown kind" << event.kind;
        return false;
    }
    for (const auto& op : operators(d->currentMode)) {
        if (((*op).*operation)(event))
            return true;
    }
    return false;
}

void ScanViewOperatorManager::resetActiveOperator()
{
    for (const auto& op : operators(d->currentMode)) {
        op->cancel();
        op->reset();
    }
}

void ScanViewOperatorManager::setActiveViewProvider(ActiveViewProvider provider)
{
    d->provider = std::move(provider);
    for (const auto& entry : d->lists) {
        for (const auto& op : entry.second)
            op->setActiveViewProvider(d->provider);
    }
}

void ScanViewOperatorManager::setHost(ScanViewOperatorHost* host)
{
    d->host = host;
    for (const auto& entry : d->lists) {
        for (const auto& op : entry.second)
            op->setHost(host);
    }
}

} // namespace TVX::CORE
