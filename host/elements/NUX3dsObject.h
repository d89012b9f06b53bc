#pragma once

#include "elements/NUX3dsBaseObject.h"

struct NUX3dsParams : NUX3dsBaseParams {
    double length = 0.0;
    double depth = 0.0;
    double height = 0.0;
};

/// A 3-D model object of known size, placed by the middle of its footprint.
class NUX3dsObject : public NUX3dsBaseObject {
public:
    static constexpr ClassBits kClassBit = referencehost::k3dsObjectBit;
    static NUX3dsObject* Cast(const UdRxObject* object) { return UdRxCast<NUX3dsObject>(object); }

    NUX3dsObject(std::wstring modelKind, const NUX3dsParams& params)
        : NUX3dsBaseObject(kClassBit, std::move(modelKind), params), m_length(params.length),
          m_depth(params.depth), m_height(params.height) {}

    void calculateWidthAndHeight(double& length, double& depth) const {
        length = m_length;
        depth = m_depth;
    }

protected:
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    double m_length;
    double m_depth;
    double m_height;
};
