// What the process behind the page takes for one step of a drag, and the parts of it, by objects of the site.

#include "check/check_site.h"
#include "drawing/load_site.h"
#include "edit/edit_requests.h"

#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <map>
#include <stdexcept>

using namespace firecheck;

namespace {

const RuleMap& shippedRules() {
    static const RuleMap& rules = loadRules(SOURCE_DIRECTORY "/data/FireStandardCheck.xml");
    return rules;
}

/// The first site of that size that scripts/make-sites writes.
const std::string& siteFile(long long objects) {
    static const QTemporaryDir directory;
    static std::map<long long, std::string> files;
    std::string& file = files[objects];
    if (file.empty()) {
        const QString place = directory.filePath(QString::number(objects));
        if (QProcess::execute(SOURCE_DIRECTORY "/scripts/make-sites",
                              {place, "1", QString::number(objects)}) != 0)
            throw std::runtime_error("no site could be made");
        file = (place + "/site0001.json").toStdString();
    }
    return file;
}

/// One house moved on and on, from the request's text to that of the answer.
void tryOfADrag(benchmark::State& state) {
    SiteFile file = loadSiteFile(siteFile(state.range(0)));
    SiteFileOnDisk target(QString::fromStdString(siteFile(state.range(0))), file.text);
    EditSession session(std::move(file), "site", std::move(target), shippedRules());
    const Json& objects = session.draft().objects();
    const auto house = std::find_if(objects.begin(), objects.end(),
                                    [](const Json& object) { return object.at("class") == "prefabHouse"; });
    Json moved = *house;
    const std::string handle = moved.at("handle").dump();
    for ([[maybe_unused]] auto _ : state) {
        moved["center"][1] = moved["center"][1].get<double>() + 10.0;
        const Json request = {{"revision", 1}, {"changes", {{{"handle", handle}, {"object", moved}}}}};
        const EditAnswer answer = answerRequest(session, false, "try", {}, request.dump());
        if (answer.outcome != EditAnswer::Outcome::Done)
            throw std::runtime_error(answer.json.dump());
        benchmark::DoNotOptimize(answer.json.dump());
    }
}

void readingOfATry(benchmark::State& state) {
    const SiteFile file = loadSiteFile(siteFile(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(readSite(file.value).labels.size());
}

void doubtsOfATry(benchmark::State& state) {
    const SiteFile file = loadSiteFile(siteFile(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(siteDoubts(file, shippedRules()));
}

void checkOfATry(benchmark::State& state) {
    const SiteFile file = loadSiteFile(siteFile(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        Site site = readSite(file.value);
        state.ResumeTiming();
        benchmark::DoNotOptimize(checkSite(std::move(site), "site", shippedRules()).findings.size());
    }
}

const std::vector<std::int64_t> kSizes = {150, 1000, 3000};

BENCHMARK(tryOfADrag)->ArgsProduct({kSizes})->Unit(benchmark::kMillisecond);
BENCHMARK(readingOfATry)->ArgsProduct({kSizes})->Unit(benchmark::kMillisecond);
BENCHMARK(doubtsOfATry)->ArgsProduct({kSizes})->Unit(benchmark::kMillisecond);
BENCHMARK(checkOfATry)->ArgsProduct({kSizes})->Unit(benchmark::kMillisecond);

} // namespace
