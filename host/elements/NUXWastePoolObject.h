#pragma once

#include "elements/NUXBaseObject.h"

struct NUXWastePoolParams : NUXBaseParams {
    int use = 0;
};

/// A waste pool.
class NUXWastePoolObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kWastePoolBit;
    static NUXWastePoolObject* Cast(const UdRxObject* object) { return UdRxCast<NUXWastePoolObject>(object); }

    explicit NUXWastePoolObject(const NUXWastePoolParams& params,
                                std::wstring typeIdentifier = L"NUX_EDO_TYPE_WASTEPOOL")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_use(params.use) {}

    /// 0 building waste, 1 household waste.
    int getObjectUse() const { return m_use; }

private:
    int m_use;
};
