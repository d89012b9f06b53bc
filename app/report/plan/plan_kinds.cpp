#include "report/plan/plan_kinds.h"

#include "explain/Words.h"

#include <map>

namespace firecheck {

namespace {

struct KindRow {
    const char* cssClass;
    const char* name;
};

const KindRow& rowOf(PlanKind kind) {
    static const std::map<PlanKind, KindRow> rows = {
        {PlanKind::Road, {"road", QT_TRANSLATE_NOOP("Words", "road")}},
        {PlanKind::FireRoad, {"fire-road", QT_TRANSLATE_NOOP("Words", "fire road")}},
        {PlanKind::Yard, {"yard", QT_TRANSLATE_NOOP("Words", "yard")}},
        {PlanKind::House, {"house", QT_TRANSLATE_NOOP("Words", "house")}},
        {PlanKind::Shed, {"shed", QT_TRANSLATE_NOOP("Words", "open shed")}},
        {PlanKind::Station, {"station", QT_TRANSLATE_NOOP("Words", "substation")}},
        {PlanKind::Other, {"other", QT_TRANSLATE_NOOP("Words", "other element")}},
        {PlanKind::Crane, {"crane", QT_TRANSLATE_NOOP("Words", "tower crane")}},
        {PlanKind::Door, {"door", QT_TRANSLATE_NOOP("Words", "gate")}},
        {PlanKind::Wall, {"wall", QT_TRANSLATE_NOOP("Words", "wall")}},
        {PlanKind::Cable, {"cable", QT_TRANSLATE_NOOP("Words", "overhead cable")}},
        {PlanKind::Poster, {"poster", QT_TRANSLATE_NOOP("Words", "poster")}},
        {PlanKind::Model, {"model", QT_TRANSLATE_NOOP("Words", "equipment")}},
    };
    return rows.at(kind);
}

} // namespace

const char* kindClass(PlanKind kind) {
    return rowOf(kind).cssClass;
}

QString kindName(PlanKind kind) {
    return firestandard::Words::tr(rowOf(kind).name);
}

bool isMinor(PlanKind kind) {
    return kind == PlanKind::Model || kind == PlanKind::Other;
}

bool isRoad(PlanKind kind) {
    return kind == PlanKind::Road || kind == PlanKind::FireRoad;
}

} // namespace firecheck
