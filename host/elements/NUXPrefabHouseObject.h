#pragma once

#include "elements/NUXBaseObject.h"

/// Where a prefab house has its outside stairs. Other codes occur and stand for no known place.
enum StairPt : int {
    kStairAtLeftEnd = 0,
    kStairAtRightEnd = 1,
    kNoStair = 2,
    kStairAtBothEnds = 3,
    kStairAlongSide = 4,
};

struct NUXPrefabHouseParams : NUXBaseParams {
    double depth = 0.0; ///< of the floor; the footprint's is rectDepth
    int floorCount = 1;
    StairPt stairPosition = kNoStair;
    int isFB = 0;     ///< non-zero: the gallery and stairs are on the rear side
    int houseUse = 0; ///< 0 office, 1 dormitory
    std::vector<hrx::CVec2<double>> partitions;
};

class NUXPrefabHouseObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kPrefabHouseBit;
    static NUXPrefabHouseObject* Cast(const UdRxObject* object) {
        return UdRxCast<NUXPrefabHouseObject>(object);
    }

    explicit NUXPrefabHouseObject(const NUXPrefabHouseParams& params,
                                  std::wstring typeIdentifier = L"NUX_ELEMENT_TYPE_PREFABHOUSE")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_depth(params.depth),
          m_floorCount(params.floorCount), m_stairPosition(params.stairPosition), m_isFB(params.isFB),
          m_houseUse(params.houseUse), m_partitions(params.partitions) {}

    double getDepth() const { return m_depth; }
    int getFloorCount() const { return m_floorCount; }
    StairPt getStairPosition() const { return m_stairPosition; }
    int getIsFB() const { return m_isFB; }
    int houseUse() const { return m_houseUse; }

    /// Positions of the end walls and partitions along the house, in its own frame.
    void getEveryWidth(std::vector<hrx::CVec2<double>>& positions) const { positions = m_partitions; }

private:
    double m_depth;
    int m_floorCount;
    StairPt m_stairPosition;
    int m_isFB;
    int m_houseUse;
    std::vector<hrx::CVec2<double>> m_partitions;
};
