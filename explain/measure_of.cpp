#include "explain/measure_of.h"

#include "cad/UdDbObject.h"

#include <algorithm>

namespace firestandard {

namespace {

PlanPoint inMetres(const hrx::CVec3<double>& point) {
    return {point.x * kMetresPerMillimetre, point.y * kMetresPerMillimetre};
}

/// Nothing for quantities that reports tell in words alone.
std::optional<Measure::Kind> kindOf(Quantity quantity) {
    switch (quantity) {
    case Quantity::Distance:
        return Measure::Kind::Distance;
    case Quantity::Width:
        return Measure::Kind::Width;
    case Quantity::Area:
        return Measure::Kind::Area;
    case Quantity::Clearance:
    case Quantity::Angle:
        break;
    }
    return std::nullopt;
}

/// A rule file may ask for more than a number holds.
double onAnySite(double value) {
    return std::clamp(value, -kBeyondAnySite, kBeyondAnySite);
}

} // namespace

std::optional<Measure> measureOf(const Comparison& comparison) {
    const Measurement& told = *comparison.measurement;
    const auto kind = kindOf(told.quantity);
    if (!kind)
        return std::nullopt;
    const double scale = *kind == Measure::Kind::Area ? 1.0 : kMetresPerMillimetre;
    Measure measure;
    measure.kind = *kind;
    measure.other = comparison.other ? comparison.other->Handle().GetID() : 0;
    measure.value = told.value * scale;
    if (told.minimum)
        measure.minimum = onAnySite(*told.minimum * scale);
    if (told.maximum)
        measure.maximum = onAnySite(*told.maximum * scale);
    if (comparison.contact)
        measure.points =
            Measure::Points{inMetres(comparison.contact->onFirst), inMetres(comparison.contact->onSecond)};
    return measure;
}

} // namespace firestandard
