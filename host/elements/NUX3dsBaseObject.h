#pragma once

#include "cad/UdDb3dsImage.h"
#include "elements/class_bits.h"

#include <string>
#include <utility>

struct NUX3dsBaseParams {
    hrx::CVec3<double> position;
    double angle = 0.0; ///< degrees
};

/// A 3-D model object: a placed mesh that says what kind of thing it shows.
class NUX3dsBaseObject : public UdDb3dsImage {
public:
    static constexpr ClassBits kClassBit = referencehost::k3dsBaseObjectBit;
    static NUX3dsBaseObject* Cast(const UdRxObject* object) { return UdRxCast<NUX3dsBaseObject>(object); }

    NUX3dsBaseObject(std::wstring modelKind, const NUX3dsBaseParams& params)
        : NUX3dsBaseObject(0, std::move(modelKind), params) {}

    virtual std::wstring getModelKind() const { return m_modelKind; }
    double getAngle() const { return m_angle; }

protected:
    NUX3dsBaseObject(ClassBits classes, std::wstring modelKind, const NUX3dsBaseParams& params)
        : UdDb3dsImage(classes | kClassBit, params.position), m_modelKind(std::move(modelKind)),
          m_angle(params.angle) {}

    /// The model's position; a model of unknown size has no other geometry.
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    std::wstring m_modelKind;
    double m_angle;
};
