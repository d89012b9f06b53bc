#pragma once

#include "elements/NUXBaseObject.h"

struct NUXOpenHouseParams : NUXBaseParams {
    int use = 0;
};

/// An open shed.
class NUXOpenHouseObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kOpenHouseBit;
    static NUXOpenHouseObject* Cast(const UdRxObject* object) { return UdRxCast<NUXOpenHouseObject>(object); }

    explicit NUXOpenHouseObject(const NUXOpenHouseParams& params,
                                std::wstring typeIdentifier = L"NUX_ELEMENT_TYPE_OPENHOUSE")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_use(params.use) {}

    /// 0 no workshop; the codes of workshops are those that the rules compare with.
    int openHouseUse() const { return m_use; }

private:
    int m_use;
};
