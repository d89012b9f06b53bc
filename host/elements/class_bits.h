#pragma once

#include "cad/UdRxObject.h"

namespace referencehost {

/// One bit for each class that objects can be cast to.
enum ClassBit : UdRxObject::ClassBits {
    kElementObjectBit = 1u << 0,
    kBaseObjectBit = 1u << 1,
    kPrefabHouseBit = 1u << 2,
    kRoadBit = 1u << 3,
    kCrossBit = 1u << 4,
    kDoorBit = 1u << 5,
    kWallBit = 1u << 6,
    kCloseHouseBit = 1u << 7,
    kOpenHouseBit = 1u << 8,
    kYardBit = 1u << 9,
    kYardOBJBit = 1u << 10,
    kWastePoolBit = 1u << 11,
    kServiceCableBit = 1u << 12,
    kTowerCraneBit = 1u << 13,
    kTotalStepDownSubstationBit = 1u << 14,
    kPosterBit = 1u << 15,
    k3dsBaseObjectBit = 1u << 16,
    k3dsObjectBit = 1u << 17,
};

} // namespace referencehost
