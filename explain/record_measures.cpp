#include "explain/record_measures.h"

#include <algorithm>
#include <limits>

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
double finite(double value) {
    constexpr double most = std::numeric_limits<double>::max();
    return std::clamp(value, -most, most);
}

Measure measureOf(const Offence& offence, Measure::Kind kind) {
    const double scale = kind == Measure::Kind::Area ? 1.0 : kMetresPerMillimetre;
    const auto& told = offence.measurement;
    Measure measure;
    measure.kind = kind;
    measure.other = offence.other;
    measure.value = told.value * scale;
    if (told.minimum)
        measure.minimum = finite(*told.minimum * scale);
    if (told.maximum)
        measure.maximum = finite(*told.maximum * scale);
    if (offence.contact)
        measure.points =
            Measure::Points{inMetres(offence.contact->onFirst), inMetres(offence.contact->onSecond)};
    return measure;
}

} // namespace

std::vector<Measure> recordMeasures(const NuxStandardCheckRule& record, const RuleRun& run) {
    Offence wanted;
    wanted.element = record.handle;
    const auto [begin, end] =
        std::equal_range(run.offences.begin(), run.offences.end(), wanted,
                         [](const Offence& a, const Offence& b) { return a.element < b.element; });
    std::vector<Measure> measures;
    for (auto offence = begin; offence != end; ++offence)
        if (const auto kind = kindOf(offence->measurement.quantity))
            measures.push_back(measureOf(*offence, *kind));
    std::stable_sort(measures.begin(), measures.end(),
                     [](const Measure& a, const Measure& b) { return a.value < b.value; });
    return measures;
}

} // namespace firestandard
