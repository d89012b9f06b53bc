#pragma once

#include "cad/UdDbObjectId.h"
#include "elements/NUXElementObject.h"
#include "geometry/CVec2.h"

#include <map>

/// A door as a wall knows it. A flagged entry is kept for the drawing's sake and stands for no door of the
/// wall.
struct DoorData {
    double distance = 0.0; ///< along the wall, from its start
    double width = 0.0;
    double height = 0.0;
    double elevation = 0.0;
    bool flag = false;
    UdDbObjectId doorId;
    double leafAngle = 0.0;
    double offset = 0.0; ///< from the wall's axis
};

struct NUXWallParams {
    hrx::CVec2<double> start;
    hrx::CVec2<double> end;
    std::map<double, DoorData> doors;
};

/// A straight wall or fence, given by its axis.
class NUXWallObject : public NUXElementObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kWallBit;
    static NUXWallObject* Cast(const UdRxObject* object) { return UdRxCast<NUXWallObject>(object); }

    explicit NUXWallObject(const NUXWallParams& params, std::wstring typeIdentifier = L"NUX_EDO_TYPE_WALL")
        : NUXElementObject(kClassBit, std::move(typeIdentifier)), m_start(params.start), m_end(params.end),
          m_doors(params.doors) {}

    hrx::CVec2<double> getStartPosition() const { return m_start; }
    hrx::CVec2<double> getEndPosition() const { return m_end; }
    const std::map<double, DoorData>& getAssociationDoor() const { return m_doors; }

    /// For whoever builds a document: doors may be appended after the wall that names them.
    void setAssociationDoor(std::map<double, DoorData> doors) { m_doors = std::move(doors); }

protected:
    std::optional<hrx::CExtents3> geometryExtents() const override;

private:
    hrx::CVec2<double> m_start;
    hrx::CVec2<double> m_end;
    std::map<double, DoorData> m_doors;
};
