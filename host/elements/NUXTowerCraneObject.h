#pragma once

#include "elements/NUXElementObject.h"
#include "geometry/CBody.h"
#include "geometry/CVec3.h"

#include <memory>

/// A tower crane as three boxes: the mast, and two jibs that start at the mast's axis at jib height.
/// A part without length or section does not exist.
struct NUXTowerCraneParams {
    hrx::CVec3<double> position; ///< middle of the mast's foot
    double angle = 0.0;          ///< of the front jib, degrees
    double mastWidth = 1600.0;
    double jibHeight = 0.0; ///< of the jibs' underside above the foot; also the mast's height
    double frontJibLength = 0.0;
    double counterJibLength = 0.0;
    double jibWidth = 1200.0;
    double jibDepth = 1200.0;    ///< vertical
    double jibInclination = 0.0; ///< of the front jib above the horizontal, degrees
};

class NUXTowerCraneObject : public NUXElementObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kTowerCraneBit;
    static NUXTowerCraneObject* Cast(const UdRxObject* object) {
        return UdRxCast<NUXTowerCraneObject>(object);
    }

    explicit NUXTowerCraneObject(const NUXTowerCraneParams& params,
                                 std::wstring typeIdentifier = L"NUX_EDO_TYPE_TOWERCRANE")
        : NUXElementObject(kClassBit, std::move(typeIdentifier)), m_params(params) {}

    // A fresh body at each call; null when the crane has no such part.
    std::unique_ptr<hrx::CBody> getTowerQianBiBody() const; ///< front jib
    std::unique_ptr<hrx::CBody> getTowerHouBiBody() const;  ///< counter jib
    std::unique_ptr<hrx::CBody> getTowerBaseBody() const;   ///< mast

protected:
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    NUXTowerCraneParams m_params;
};
