#include "geometry/solids/cylinder_wall.h"

#include <algorithm>
#include <limits>

namespace hrx::solids {

CVec3<double> CylinderAxis::support(const CVec3<double>& direction) const {
    const double level = dot(direction, m_cylinder.axis()) > 0.0 ? m_cylinder.length() : 0.0;
    return m_cylinder.bottom() + m_cylinder.axis() * level;
}

HullContact contactOfWall(const CylinderPiece& cylinder, const HullContact& axisContact) {
    HullContact contact = axisContact;
    contact.lower = std::max(0.0, axisContact.lower - cylinder.radius());
    contact.upper = std::numeric_limits<double>::infinity();
    const double level = dot(axisContact.onB - cylinder.bottom(), cylinder.axis());
    if (!(level >= 0.0 && level <= cylinder.length()))
        return contact;
    const CVec3<double> foot = cylinder.bottom() + cylinder.axis() * level;
    const double away = length(axisContact.onB - foot);
    contact.upper = std::max(0.0, away - cylinder.radius());
    contact.onA =
        contact.upper > 0.0 ? foot + (axisContact.onB - foot) * (cylinder.radius() / away) : axisContact.onB;
    return contact;
}

} // namespace hrx::solids
