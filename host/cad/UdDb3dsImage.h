#pragma once

#include "cad/UdDbObject.h"
#include "geometry/CVec3.h"

/// A placed 3-D mesh.
class UdDb3dsImage : public UdDbObject {
public:
    hrx::CVec3<double> GetPosition() const { return m_position; }

protected:
    UdDb3dsImage(ClassBits classes, const hrx::CVec3<double>& position)
        : UdDbObject(classes), m_position(position) {}

private:
    hrx::CVec3<double> m_position;
};
