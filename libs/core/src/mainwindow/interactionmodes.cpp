#include "mainwindow/interactionmodes.h"

namespace TVX::CORE::InteractionModes {

bool dimensioningPair(int kind, Pair& pair)
{
    // Deliberately 0 3D, 1 Delta Z, 2 XY, while the sub-modes run 3D, DZ, XY as 5, 6, 7.
    switch (kind) {
    case 0:
        pair = {1, 5};
        return true;
    case 1:
        pair = {1, 6};
        return true;
    case 2:
        pair = {1, 7};
        return true;
    default:
        return false;
    }
}

std::vector<Pair> pairsForNewView(quint32 activeOperator, const CheckedActions& checked)
{
    std::vector<Pair> pairs;
    switch (activeOperator) {
    case 1:
        pairs.push_back({0, 0});
        break;
    case 3:
        pairs.push_back({5, 0});
        break;
    case 32:
        pairs.push_back({1, 1});
        break;
    case 34:
        pairs.push_back({1, 2});
        break;
    case 36:
        pairs.push_back({1, 0});
        break;
    case 40:
        pairs.push_back({1, 3});
        break;
    case 4102:
    case 33:
    case 35:
    case 37:
    case 39:
    case 41:
    case 43:
        pairs.push_back({2, 0});
        break;
    case 38:
        if (checked.distance3D)
            pairs.push_back({1, 5});
        else if (checked.distanceXY)
            pairs.push_back({1, 7});
        else if (checked.deltaZ)
            pairs.push_back({1, 6});
        break;
    default:
        break;
    }
    if (checked.zoomIn)
        pairs.push_back({3, 0});
    else if (checked.zoomOut)
        pairs.push_back({3, 1});
    return pairs;
}

} // namespace TVX::CORE::InteractionModes
