#include "suggestion_checks.h"

#include <random>

namespace {

/// A small crowded site of the classes that rules measure. The engine's numbers are the same everywhere.
class RandomSiteFile {
public:
    explicit RandomSiteFile(unsigned seed) : m_random(seed) {}

    Json make() {
        const int count = 6 + int(m_random() % 14);
        Json objects = Json::array();
        for (int handle = 1; handle <= count; ++handle)
            objects.push_back(object(handle));
        return {{"objects", std::move(objects)}};
    }

private:
    double between(double low, double high) {
        return std::round(low + (high - low) * (double(m_random()) / 4294967296.0));
    }
    Json place() { return {between(0, 60'000), between(0, 60'000)}; }

    Json footprint(int handle, const char* className) {
        Json object = {{"class", className},
                       {"handle", handle},
                       {"center", place()},
                       {"length", between(3'000, 18'000)},
                       {"depth", between(3'000, 9'000)}};
        if (m_random() % 3 == 0)
            object["angle"] = between(0, 180);
        return object;
    }

    Json object(int handle) {
        static const char* const plain[] = {
            "woodYard",    "templateYard",          "electricalMechanicalYard",
            "futureHouse", "transformerSubstation", "totalStepDownSubstation"};
        switch (m_random() % 10) {
        case 0:
        case 1: {
            Json house = footprint(handle, "prefabHouse");
            house["use"] = m_random() % 2 ? "office" : "dormitory";
            house["floors"] = 1 + int(m_random() % 3);
            house["stairs"] = int(m_random() % 5);
            house["partitions"] = {0, house["length"].get<double>() * 0.75, house["length"]};
            return house;
        }
        case 2: {
            Json shed = footprint(handle, "openShed");
            shed["use"] = int(m_random() % 5);
            return shed;
        }
        case 3:
            return {{"class", "road"},  {"handle", handle}, {"fireRoad", m_random() % 3 != 0},
                    {"start", place()}, {"end", place()},   {"width", 3'600 + int(m_random() % 900)}};
        case 4:
            return {{"class", "serviceCable"},
                    {"handle", handle},
                    {"start", place()},
                    {"end", place()},
                    {"startElevationMetres", between(1, 8)},
                    {"radius", 20}};
        case 5:
        case 6:
            return {{"class", "extinguisherBox"}, {"handle", handle}, {"position", place()}};
        default:
            return footprint(handle, plain[m_random() % 6]);
        }
    }

    std::mt19937 m_random;
};

/// Facilities are looked for in the example sites; here they would only take time.
bool isMissing(const NuxStandardCheckRule& record) {
    return record.type == QLatin1String("without");
}

TEST(RandomSites, KeepWhatSuggestionsPromise) {
    SuggestOptions options;
    options.reach = 3'000.0;
    std::size_t helped = 0;
    for (unsigned seed = 1; seed <= RANDOM_SITES; ++seed) {
        const Json site = RandomSiteFile(seed).make();
        SiteReport report = checked(site);
        for (Finding& finding : report.findings)
            if (isMissing(report.record(finding)))
                finding.acceptedBecause = "not asked for";
        for (const Suggestion& suggestion : suggestChanges(site, report, shippedRules(), options)) {
            expectKept(site, report, suggestion, "seed " + std::to_string(seed) + ": ");
            helped += suggestion.steps.empty() ? 0 : 1;
        }
        if (testing::Test::HasFatalFailure())
            return;
    }
    EXPECT_GT(helped, RANDOM_SITES * 5u / 2u);
}

} // namespace
