#include "planarview/planaritemfactory.h"

#include "planarview/interactivedimensioning.h"
#include "planarview/interactiveellipse.h"
#include "planarview/interactivepolygon.h"
#include "planarview/interactiverectangle.h"
#include "planarview/interactivesymbol.h"
#include "planarview/interactivetext.h"

namespace TVX::CORE {

InteractiveGraphicsItem* PlanarItemFactory::createItemForSubMode(int subMode)
{
    switch (subMode) {
    case 0:
        return new InteractiveRectangle;
    case 1:
        return new InteractivePolygon;
    case 2:
        return new InteractiveEllipse;
    case 3:
        return new InteractiveText;
    case 4:
        return new InteractiveSymbol;
    case 5:
    case 6:
    case 7:
        return new InteractiveDimensioning(quint32(subMode - 5), QPointF(), QPointF(), 0.0);
    default:
        return nullptr;
    }
}

InteractiveGraphicsItem* PlanarItemFactory::createItemForRecord(const TVXSceneItemPtr& record)
{
    if (!record || record->category() != 2)
        return nullptr;
    switch (static_cast<const TVXScene2DItem&>(*record).kind()) {
    case TVXScene2DItem::Polygon:
        return new InteractivePolygon(std::static_pointer_cast<TVXSPolygon>(record));
    case TVXScene2DItem::Rectangle:
        return new InteractiveRectangle(std::static_pointer_cast<TVXSRectangle>(record));
    case TVXScene2DItem::Ellipse:
        return new InteractiveEllipse(std::static_pointer_cast<TVXSEllipse>(record));
    case TVXScene2DItem::SimpleText:
        return new InteractiveText(std::static_pointer_cast<TVXSSimpleText>(record));
    case TVXScene2DItem::Dimensioning:
        return new InteractiveDimensioning(std::static_pointer_cast<TVXSDimensioning>(record));
    default:
        return nullptr;
    }
}

} // namespace TVX::CORE
