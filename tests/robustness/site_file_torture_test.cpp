// Whatever a site file holds, it is refused with a reason that names the place, or checked with results that
// are numbers of a size that can be.

#include "InputError.h"
#include "check/check_site.h"
#include "drawing/load_site.h"
#include "report/ReportWriter.h"
#include "source_file.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <sys/stat.h>
#include <thread>

using namespace firecheck;

namespace {

const std::string kChecked = "checked";

/// kChecked, or what is no number, or none that can be.
std::string flawOf(const SiteReport& report) {
    const auto isPlace = [](double x, double y) { return std::abs(x) + std::abs(y) < 4e12; };
    for (const Finding& finding : report.findings)
        for (const Measure& measure : finding.measures)
            if (!(measure.value >= 0.0 && measure.value <= 1e17))
                return "measured " + std::to_string(measure.value) + ": " + finding.sentence;
    for (const PlanShape& shape : report.plan)
        if (!isPlace(shape.box.low.x, shape.box.low.y) || !isPlace(shape.box.high.x, shape.box.high.y))
            return "drawn up to " + std::to_string(shape.box.high.x) + ": " + shape.title;
    htmlReportWriter([](const std::string&) {})->add(report);
    return kChecked;
}

/// kChecked, the reason why the site file is refused, or what is wrong with the results.
std::string outcomeOf(const std::string& text) {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    try {
        return flawOf(checkSite(parseSite(text, "site.json"), "site.json", rules));
    } catch (const InputError& error) {
        return error.what();
    }
}

TEST(SiteFile, CutOffOrWithAWrongBitAnywhereIsRefusedOrChecked) {
    const std::string whole = sourceText("examples/small-yard.json");
    int checked = 0;
    for (std::size_t at = 0; at < whole.rfind('}'); ++at) {
        ASSERT_EQ(outcomeOf(whole.substr(0, at)).rfind("site.json:", 0), 0u) << at;
        std::string flipped = whole;
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << at % 8));
        const std::string outcome = outcomeOf(flipped);
        ASSERT_TRUE(outcome == kChecked || outcome.rfind("site.json:", 0) == 0) << at << ": " << outcome;
        checked += outcome == kChecked;
    }
    EXPECT_GT(checked, 300) << "bits of names, numbers and blanks";
}

TEST(SiteFile, WithAnOddNumberAnywhereIsRefusedThereOrChecked) {
    const Json site = Json::parse(sourceText("examples/every-rule-offends.json"));
    const Json leaves = site.flatten();
    for (const auto& [pointer, value] : leaves.items())
        for (const double odd : {1e12, -1e12, 5e-324, 1e308}) {
            if (!value.is_number() || pointer.find("handle") != std::string::npos)
                continue;
            Json varied = site;
            varied[Json::json_pointer(pointer)] = odd;
            const std::string outcome = outcomeOf(varied.dump());
            const bool isRefused = outcome.find(pointer + ": expected ") != std::string::npos;
            ASSERT_TRUE(isRefused || (outcome == kChecked && odd != 1e308))
                << pointer << " = " << odd << ": " << outcome;
        }
}

TEST(SiteFile, HoldsWhatIsOddOrIsTold) {
    const auto drawing = [](const std::string& handle) {
        return "{\"objects\": [{\"class\": \"drawing\", \"handle\": " + handle + "}]}";
    };
    const struct {
        std::string text;
        std::string outcome;
    } rows[] = {
        {std::string("{\"objects\": []}\0{", 17),
         "site.json:1:16: expected JSON in UTF-8: found a NUL byte, as texts in UTF-16 have"},
        {"\xEF\xBB\xBF{\"name\": \"\\u0000\", \"objects\": []}", kChecked},
        {"{\"name\": \"" + std::string(1'000'000, 'x') + "\", \"objects\": []}", kChecked},
        {drawing("-9223372036854775808"), kChecked},
        {drawing("1e3"), kChecked},
        {drawing("-0"), "site.json:1:35: #0, /objects/0/handle: expected a handle other than 0"},
        {drawing("9007199254740993.0"), "site.json:1:35: /objects/0/handle: expected an integer from "
                                        "-9223372036854775808 to 9223372036854775807"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(outcomeOf(row.text), row.outcome) << row.text.substr(0, 80);
}

TEST(SiteFile, HoldsWhatHasNoExtent) {
    const std::string yard = sourceText("examples/small-yard.json");
    const auto expectChecked = [&](const std::string& kind, const std::string& place) {
        const std::string object = ", {\"class\": " + kind + ", \"handle\": 99, " + place + "}]}";
        EXPECT_EQ(outcomeOf(yard.substr(0, yard.rfind(']')) + object), kChecked) << object;
    };
    for (const char* shape :
         {R"("center": [0, 0], "length": 0, "depth": 0)", R"("circle": {"center": [0, 0], "radius": 0})",
          R"("polyline": [])", R"("polyline": [[0, 0], [0, 0, 1]])",
          R"("polyline": [[0, 0], [1, 0, 1], [2, 0]])",
          R"("polyline": [[0, 0, 1e11], [9, 0, -1e11], [9, 9]])",
          R"("polyline": [[0, 0], [9, 9], [9, 0], [0, 9]])", R"("shapeKind": "polyline")"})
        for (const char* kind : {R"("futureHouse")", R"("woodYard")", R"("openShed", "use": "formwork")",
                                 R"("prefabHouse", "use": "office")", R"("totalStepDownSubstation")"})
            expectChecked(kind, shape);
    for (const char* axis :
         {R"("start": [0, 0], "end": [0, 0])", R"("start": [0, 0], "end": [9, 0], "through": [4, 0])",
          R"("start": [0, 0], "end": [0, 0], "through": [9, 0])",
          R"("start": [2, 0], "end": [1e11, 1e11], "through": [-1e11, -1e11])"})
        for (const char* kind :
             {R"("road", "fireRoad": true, "width": 0)", R"("serviceCable", "startElevationMetres": 6)"})
            expectChecked(kind, axis);
}

TEST(SiteFile, OfHundredThousandsOfPointsAndDoorsIsChecked) {
    Json site = Json::parse(sourceText("examples/small-yard.json"));
    Json yard = {{"class", "woodYard"}, {"handle", 101}};
    Json wall = {{"class", "wall"}, {"handle", 102}, {"start", {0, 0}}, {"end", {9, 0}}};
    for (int i = 0; i < 200000; ++i) {
        // Long spikes: each lies beside all others, whichever way but one is looked.
        if (i % 2 == 0)
            yard["polyline"].push_back({i % 4 == 0 ? -4e4 : 4e4, 0.4 * i});
        wall["doors"].push_back({{"distance", i}, {"door", nullptr}});
    }
    for (const double y : {8e4, 0.0})
        yard["polyline"].push_back({-5e4, y});
    site["objects"].push_back(std::move(yard));
    site["objects"].push_back(std::move(wall));
    EXPECT_EQ(outcomeOf(site.dump()), kChecked); // in hours, if any of it took time by the square
}

TEST(SiteFile, ThatIsAPipeIsReadWhenSomebodyWrites) {
    const QTemporaryDir directory;
    const std::string name = directory.filePath("site.json").toStdString();
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    EXPECT_THAT([&] { loadSite(name); },
                testing::ThrowsMessage<InputError>(
                    name + ": expected a site file, found a pipe that nothing was written to"));
    const std::string yard = sourceText("examples/small-yard.json");
    std::thread writer([&] { std::ofstream(name) << yard; });
    EXPECT_EQ(loadSite(name).labels.size(), 12u);
    writer.join();
}

} // namespace
