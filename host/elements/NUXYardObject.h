#pragma once

#include "elements/NUXBaseObject.h"

/// A material yard; which kind it is, its type identifier tells.
class NUXYardObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kYardBit;
    static NUXYardObject* Cast(const UdRxObject* object) { return UdRxCast<NUXYardObject>(object); }

    explicit NUXYardObject(const NUXBaseParams& params,
                           std::wstring typeIdentifier = L"NUX_EDO_TYPE_WOODYARD")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params) {}
};
