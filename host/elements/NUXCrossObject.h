#pragma once

#include "elements/NUXBaseObject.h"

/// A crossing of roads.
class NUXCrossObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kCrossBit;
    static NUXCrossObject* Cast(const UdRxObject* object) { return UdRxCast<NUXCrossObject>(object); }

    explicit NUXCrossObject(const NUXBaseParams& params,
                            std::wstring typeIdentifier = L"NUX_EDO_TYPE_CROSS_ROAD")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params) {}
};
