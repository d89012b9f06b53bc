#include "explain/measure_text.h"

#include "explain/Words.h"

#include <QString>

#include <cmath>

namespace firestandard {

namespace {

constexpr int kFewestDecimals = 2;
constexpr int kMostDecimals = 8; // a distance is known to 1e-8 m

QString rounded(double value, int decimals) {
    constexpr double kBeyondAnySite = 1e9;
    return std::abs(value) < kBeyondAnySite ? QString::number(value, 'f', decimals)
                                            : QString::number(value, 'g');
}

/// Both limits and the value are written alike.
int decimalsOf(const Measure& measure) {
    int decimals = kFewestDecimals;
    for (const auto& limit : {measure.minimum, measure.maximum})
        while (limit && *limit != measure.value && decimals < kMostDecimals &&
               rounded(*limit, decimals) == rounded(measure.value, decimals))
            ++decimals;
    return decimals;
}

std::string withUnit(double value, const Measure& measure) {
    const char* unit = measure.kind == Measure::Kind::Area ? " m²" : " m";
    return rounded(value, decimalsOf(measure)).toStdString() + unit;
}

} // namespace

std::string valueText(const Measure& measure) {
    return withUnit(measure.value, measure);
}

std::string limitText(const Measure& measure) {
    if (measure.minimum && measure.maximum)
        return filled(Words::tr("at least %1 and at most %2"), withUnit(*measure.minimum, measure),
                      withUnit(*measure.maximum, measure));
    if (measure.minimum)
        return filled(Words::tr("at least %1"), withUnit(*measure.minimum, measure));
    return measure.maximum ? filled(Words::tr("at most %1"), withUnit(*measure.maximum, measure))
                           : std::string();
}

} // namespace firestandard
