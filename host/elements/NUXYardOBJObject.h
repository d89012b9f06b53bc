#pragma once

#include "elements/NUXBaseObject.h"

struct NUXYardOBJParams : NUXBaseParams {
    bool paramAnswer = true; ///< what calculateParam answers; the values are given either way
};

/// A yard drawn as a mesh; its footprint is its rectangle.
class NUXYardOBJObject : public NUXBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kYardOBJBit;
    static NUXYardOBJObject* Cast(const UdRxObject* object) { return UdRxCast<NUXYardOBJObject>(object); }

    explicit NUXYardOBJObject(const NUXYardOBJParams& params,
                              std::wstring typeIdentifier = L"NUX_EDO_TYPE_STEELBARYARD")
        : NUXBaseObject(kClassBit, std::move(typeIdentifier), params), m_paramAnswer(params.paramAnswer) {}

    bool calculateParam(hrx::CVec2<double>& centre, double& length, double& depth, double& angle) const {
        centre = {getPtRectCenter().x, getPtRectCenter().y};
        length = getRectWidthL();
        depth = getRectHigh();
        angle = getRectAngle();
        return m_paramAnswer;
    }

private:
    bool m_paramAnswer;
};
