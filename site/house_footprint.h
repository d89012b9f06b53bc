#pragma once

#include "geometry/CVec2.h"

class NUXPrefabHouseObject;

/// The rectangle that a prefab house takes up including its gallery and stairs: length and depth in
/// millimetres, and its centre. An unknown stair code sets none of the three, but still shifts the centre
/// across the house.
void getHouseRectWithStair(const NUXPrefabHouseObject& house, double& length, double& depth,
                           hrx::CVec2<double>& centre);
