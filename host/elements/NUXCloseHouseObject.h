#pragma once

#include "elements/NUXBaseObject.h"

struct NUXCloseHouseParams : NUXBaseParams {
    std::wstring use;
};

/// A closed house.
class NUXCloseHouseObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kCloseHouseBit;
    static NUXCloseHouseObject* Cast(const UdRxObject* object) {
        return UdRxCast<NUXCloseHouseObject>(object);
    }

    explicit NUXCloseHouseObject(const NUXCloseHouseParams& params,
                                 std::wstring typeIdentifier = L"NUX_ELEMENT_TYPE_CLOSEHOUSE")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_use(params.use) {}

    /// The name of the use.
    std::wstring closeHouseUse() const { return m_use; }

private:
    std::wstring m_use;
};
