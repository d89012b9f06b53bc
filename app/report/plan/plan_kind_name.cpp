#include "report/plan/plan_kind_name.h"

namespace firecheck {

const char* planKindName(PlanKind kind) {
    switch (kind) {
    case PlanKind::Road:
        return "road";
    case PlanKind::FireRoad:
        return "fire-road";
    case PlanKind::Yard:
        return "yard";
    case PlanKind::House:
        return "house";
    case PlanKind::Shed:
        return "shed";
    case PlanKind::Station:
        return "station";
    case PlanKind::Crane:
        return "crane";
    case PlanKind::Door:
        return "door";
    case PlanKind::Wall:
        return "wall";
    case PlanKind::Cable:
        return "cable";
    case PlanKind::Poster:
        return "poster";
    case PlanKind::Model:
        return "model";
    case PlanKind::Other:
        break;
    }
    return "other";
}

} // namespace firecheck
