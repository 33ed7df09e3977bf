#pragma once

#include <QtGlobal>

#include <utility>
#include <vector>

namespace TVX::CORE {

// The interaction modes of the views: the pair (mode, sub-mode) that planar views receive and the
// operator identifier that the GL views' operator manager is switched to.
namespace InteractionModes {

using Pair = std::pair<int, int>; // (mode, sub-mode)

struct Mode {
    quint32 operatorId;
    Pair pair;
};

// The mode actions of the main window.
inline constexpr Mode pick{1, {0, 0}};
inline constexpr Mode drawRectangle{36, {1, 0}};
inline constexpr Mode drawPolygon{32, {1, 1}};
inline constexpr Mode drawEllipse{34, {1, 2}};
inline constexpr Mode drawText{40, {1, 3}};
inline constexpr Mode editElements{4102, {2, 0}};
inline constexpr Mode zoomIn{16, {3, 0}};
inline constexpr Mode zoomOut{17, {3, 1}};
inline constexpr quint32 measurementOperator = 38;

// The pair of a dimensioning kind: 0 3D (1, 5), 1 Delta Z (1, 6), 2 XY (1, 7); false for another kind.
bool dimensioningPair(int kind, Pair& pair);

// Which of the three dimensioning actions are checked, and the two zoom actions.
struct CheckedActions {
    bool distance3D{false};
    bool distanceXY{false};
    bool deltaZ{false};
    bool zoomIn{false};
    bool zoomOut{false};
};

// What a newly opened planar view is told, in order, given the operator manager's active
// operator and the checked actions: the pair of the operator (nothing for an unknown one), then,
// independently, the zoom mode when a zoom action is checked.
std::vector<Pair> pairsForNewView(quint32 activeOperator, const CheckedActions& checked);

} // namespace InteractionModes

} // namespace TVX::CORE
