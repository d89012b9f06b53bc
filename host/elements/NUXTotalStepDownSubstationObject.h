#pragma once

#include "elements/NUXBaseObject.h"

/// The substation that feeds the whole site.
class NUXTotalStepDownSubstationObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kTotalStepDownSubstationBit;
    static NUXTotalStepDownSubstationObject* Cast(const UdRxObject* object) {
        return UdRxCast<NUXTotalStepDownSubstationObject>(object);
    }

    explicit NUXTotalStepDownSubstationObject(
        const NUXBaseParams& params,
        std::wstring typeIdentifier = L"NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params) {}
};
