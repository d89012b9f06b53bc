// The distance rules against a second formulation that shares nothing with them: elements are upright boxes
// along the axes, their gaps are worked out by hand, and every unordered pair is looked at once.
#include "evaluators/distant/NUXRelElementTypeDistantRule.h"
#include "site_file/site_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace firecheck;

namespace {

const QStringList kTypes =
    QString("NUX_ELEMENT_TYPE_PREFABHOUSE NUX_ELEMENT_TYPE_FUTUREHOUSE "
            "NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION NUX_EDO_TYPE_ROAD "
            "NUX_ELEMENT_TYPE_OPENHOUSE NUX_EDO_TYPE_WOODYARD NUX_ELEMENT_TYPE_CLOSEHOUSE "
            "NUX_ELEMENT_TYPE_BOXHOUSE NUX_EDO_TYPE_FIREEXTINGUISHERBOX "
            "NUX_ELEMENT_TYPE_TOTALSTEPDOWNSUBSTATION")
        .split(' ');
const char* const kNames[] = {"Distant_PrefabHouseToWoodFactory", "Distant_FutureouseToWoodFactory",
                              "Distant_FutureHouseToOpenHouse",
                              "Distant_TransformerSubstationToWoodWorkingFactory", "Distant_Any"};

enum class Class { Plain, House, Shed, Road, Substation, Model };

struct Thing {
    QString type;
    Class ofClass;
    int use = 0; ///< of a shed; of a road: 0 ordinary, 1 fire road, 2 fire road without outline
    double x, y, length, depth;
    qint64 handle = 0;
};

using Things = std::vector<Thing>;

constexpr double kFar = 1e100;

/// The gap between the boxes of two things, of a house with its gallery and its stairs at both ends.
double gap(const Thing& a, const Thing& b) {
    const auto stairs = [](const Thing& t) { return t.ofClass == Class::House ? 1600.0 : 0.0; };
    const auto gallery = [](const Thing& t) { return t.ofClass == Class::House ? 500.0 : 0.0; };
    const double length = 0.5 * (a.length + b.length) + stairs(a) + stairs(b);
    const double depth = 0.5 * (a.depth + gallery(a) + b.depth + gallery(b));
    const double aside = a.y - 0.5 * gallery(a) - b.y + 0.5 * gallery(b); // the gallery lies to the south
    return std::hypot(std::max(0.0, std::abs(a.x - b.x) - length), std::max(0.0, std::abs(aside) - depth));
}

/// The distance that a rule of this name takes from first to reference; kFar when the pair does not count.
double expectedDistance(const Thing& first, const Thing& reference, const QString& name) {
    const QString kind = first.type.section('_', -1);
    const QString other = reference.type.section('_', -1);
    if (first.ofClass == Class::Model)
        return 0.0;
    if (kind == "ROAD") {
        if (first.ofClass != Class::Road || first.use == 2)
            return 0.0;
        return first.use == 1 && reference.ofClass != Class::Road &&
                       (other == "WOODYARD" || other == "FUTUREHOUSE")
                   ? gap(first, reference)
                   : kFar;
    }
    if (kind != "PREFABHOUSE" && kind != "FUTUREHOUSE" && kind != "TRANSFORMERSUBSTATION")
        return 0.0;
    const bool hasBody = kind == "PREFABHOUSE" ? first.ofClass == Class::House : first.ofClass != Class::Road;
    bool counts = other == "WOODYARD";
    if (other == "OPENHOUSE") {
        if (reference.ofClass != Class::Shed)
            return 0.0;
        const int use = reference.use;
        counts = (kind == "PREFABHOUSE" && name == kNames[0] && use == 2) ||
                 (kind == "FUTUREHOUSE" && name == kNames[1] && use == 2) ||
                 (kind == "FUTUREHOUSE" && name == kNames[2] && (use < 2 || use > 4)) ||
                 (kind == "TRANSFORMERSUBSTATION" && name == kNames[3] && use == 3);
    } else if (kind == "PREFABHOUSE" && other == "ROAD") {
        if (reference.ofClass != Class::Road || reference.use == 2)
            return 0.0;
        counts = reference.use == 1;
    } else if (kind == "PREFABHOUSE") {
        counts |= other == "FUTUREHOUSE" || other == "TRANSFORMERSUBSTATION";
    } else if (kind == "FUTUREHOUSE") {
        counts |= other == "CLOSEHOUSE" || other == "BOXHOUSE";
    } else {
        counts |= other == "TRANSFORMERSUBSTATION" || other == "TOTALSTEPDOWNSUBSTATION";
    }
    // What only claims a body: a road has no footprint of its own, and a house's box is that of its class.
    if (!counts || !hasBody || (reference.ofClass == Class::Road && other != "ROAD"))
        return kFar;
    Thing asMeasured = reference;
    Thing firstAsMeasured = first;
    if (reference.ofClass == Class::House)
        asMeasured.ofClass = Class::Plain;
    if (kind != "PREFABHOUSE")
        firstAsMeasured.ofClass = Class::Plain;
    return gap(firstAsMeasured, asMeasured);
}

struct Limits {
    const char* condition;
    const char* value;
    double minimum;
    double maximum;
};
const Limits kLimits[] = {{"less", "6", 6000.0, kFar},
                          {"less or more", "4.5:12", 4500.0, 12000.0},
                          {"less or more", "2:", 2000.0, 0.0},
                          {"Less", "6", 0.0, kFar}};

using Records = std::vector<std::pair<qint64, std::vector<qint64>>>;

Records expectedRecords(const Things& things, const NuxStandardCheckRule& rule, const Limits& limits) {
    const auto offends = [&](double d) { return d < 1e11 && (d < limits.minimum || d > limits.maximum); };
    const bool spacesHouses = rule.elementType == kTypes[0] && rule.referenceElementType == kTypes[0];
    const bool spacesSubstations = rule.elementType == kTypes[2] && rule.referenceElementType == kTypes[2];
    std::vector<std::vector<qint64>> related(things.size());
    for (std::size_t low = 0; low < things.size(); ++low) {
        for (std::size_t high = low + 1; high < things.size(); ++high) {
            if (spacesHouses || spacesSubstations) {
                const Class spaced = spacesHouses ? Class::House : Class::Substation;
                if (things[low].ofClass == spaced && things[high].ofClass == spaced &&
                    offends(gap(things[low], things[high])))
                    related[low].push_back(things[high].handle);
                continue;
            }
            for (const auto& [first, reference] : {std::pair(low, high), std::pair(high, low)}) {
                if (things[first].type == rule.elementType &&
                    things[reference].type == rule.referenceElementType &&
                    things[reference].ofClass != Class::Model &&
                    offends(expectedDistance(things[first], things[reference], rule.name)))
                    related[first].push_back(things[reference].handle);
            }
        }
    }
    Records records;
    for (std::size_t i = 0; i < things.size(); ++i) {
        std::sort(related[i].begin(), related[i].end()); // handles rise along the model space
        if (!related[i].empty())
            records.emplace_back(things[i].handle, related[i]);
    }
    return records;
}

Json jsonOf(const Thing& thing) {
    static const char* const kClasses[] = {
        "building", "prefabHouse", "openShed", "road", "totalStepDownSubstation", "model"};
    Json object = {{"class", kClasses[static_cast<int>(thing.ofClass)]},
                   {"handle", thing.handle},
                   {"identifier", thing.type.toStdString()}};
    if (thing.ofClass == Class::Road) {
        object["fireRoad"] = thing.use != 0;
        object["start"] = {thing.x - 0.5 * thing.length, thing.y};
        object["end"] = {thing.x + 0.5 * thing.length, thing.y};
        object["width"] = thing.depth;
        if (thing.use == 2)
            object["outline"] = "none";
        return object;
    }
    object[thing.ofClass == Class::Model ? "position" : "center"] = {thing.x, thing.y};
    object["length"] = thing.length;
    object["depth"] = thing.depth;
    if (thing.ofClass == Class::House || thing.ofClass == Class::Shed)
        object["use"] = thing.use;
    if (thing.ofClass == Class::House)
        object["stairs"] = "bothEnds";
    return object;
}

class Generator {
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }

    /// Mostly what it says it is, now and then of another class. Coordinates are whole millimetres, half of
    /// them on a 500 mm grid, where distances meet the limits.
    Thing thing() {
        static const Class kOwnClass[] = {Class::House, Class::Plain,     Class::Plain, Class::Road,
                                          Class::Shed,  Class::Plain,     Class::Plain, Class::Plain,
                                          Class::Model, Class::Substation};
        const int type = below(10);
        const int step = below(2) ? 500 : 2;
        const auto length = [&](int low, int high) {
            return double(low + step * below((high - low) / step));
        };
        Thing result{kTypes[type],       kOwnClass[type],   0, length(-20000, 20000), length(-20000, 20000),
                     length(1000, 9000), length(1000, 5000)};
        if (below(8) == 0)
            result.ofClass = static_cast<Class>(below(5));
        result.use = result.ofClass == Class::Road ? below(3) : below(6);
        return result;
    }

private:
    std::mt19937 m_random;
};

} // namespace

TEST(DistanceRules, AgreeWithASecondFormulation) {
    std::size_t found = 0;
    for (unsigned seed = 0; seed < 300; ++seed) {
        Generator generator(seed);
        Things things;
        Json objects = Json::array();
        for (qint64 handle = 1; handle <= 30; ++handle) {
            things.push_back(generator.thing());
            things.back().handle = handle;
            objects.push_back(jsonOf(things.back()));
        }
        const Site site = readSite({{"objects", objects}});
        for (int i = 0; i < 40; ++i) {
            const Limits& limits = kLimits[generator.below(4)];
            NuxStandardCheckRule rule;
            rule.name = kNames[generator.below(5)];
            rule.elementType = kTypes[generator.below(10)];
            rule.referenceElementType = generator.below(4) ? kTypes[generator.below(10)] : rule.elementType;
            rule.constraintCondition = limits.condition;
            rule.distantValue = limits.value;
            Records records;
            for (const auto& record :
                 NUXRelElementTypeDistantRule().check(site.document->GetModelSpace(), rule))
                records.emplace_back(record.handle, record.relatedHandles);
            const Records expected =
                rule.constraintCondition == "Less" ? Records() : expectedRecords(things, rule, limits);
            ASSERT_EQ(records, expected)
                << "seed " << seed << ' ' << rule.name.toStdString() << ' ' << rule.elementType.toStdString()
                << " to " << rule.referenceElementType.toStdString() << ' ' << limits.value;
            found += records.size();
        }
    }
    EXPECT_GT(found, 3000u) << "too few offences to tell anything";
}
