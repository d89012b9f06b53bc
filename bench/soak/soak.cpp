// Checks in one process over changing sites, in ten rounds over the same ones. Memory, open handles and time
// must stay where they were, and every report must be that of the first round; every hundredth is compared
// with a fresh process's as well.

#include "RandomSite.h"
#include "check/check_site.h"
#include "report/ReportWriter.h"
#include "shipped_rules.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QProcess>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

using namespace firecheck;

namespace {

constexpr unsigned kRounds = 10;
constexpr unsigned kSettledRound = 2; // by then all that lives as long as the process has been made
constexpr unsigned kChecksForAFreshOne = 100;

constexpr std::size_t kMostHeapGrowth = 16 * 1024; // bytes: two a check
constexpr std::size_t kMostResidentGrowth = 1024 * 1024;
constexpr double kMostTimeGrowth = 1.5;

/// The report of the site of this seed, as a digest. Sizes and formats take turns.
QByteArray digestOf(unsigned seed) {
    Site site;
    RandomSite contents(50 + seed * 37 % 400, seed);
    contents.appendMix();
    site.document = contents.take();

    QCryptographicHash digest(QCryptographicHash::Sha256);
    const auto sink = [&digest](const std::string& piece) {
        digest.addData(piece.data(), static_cast<int>(piece.size()));
    };
    std::unique_ptr<ReportWriter> writers[] = {jsonReportWriter(sink), textReportWriter(sink, false),
                                               csvReportWriter(sink), htmlReportWriter(sink)};
    ReportWriter& writer = *writers[seed % std::size(writers)];
    writer.begin();
    writer.add(checkSite(std::move(site), "site.json", shippedRules()));
    writer.end();
    return digest.result().toHex();
}

QByteArray digestOfFreshProcess(unsigned seed) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {"digest", QString::number(seed)});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().trimmed();
}

struct Sample {
    double seconds;
    std::size_t heap;
    std::size_t resident;
    unsigned handles;
};

std::size_t residentBytes() {
    std::ifstream statm("/proc/self/statm");
    std::size_t all = 0;
    std::size_t resident = 0;
    statm >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

Sample sampleSince(std::clock_t start) {
    malloc_trim(0);
    return {static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, mallinfo2().uordblks, residentBytes(),
            QDir("/proc/self/fd").count()};
}

class Soak {
public:
    explicit Soak(unsigned sites) : m_sites(sites) {}

    void runRound() {
        const std::clock_t start = std::clock();
        for (unsigned seed = 0; seed < m_sites; ++seed) {
            const QByteArray digest = digestOf(seed);
            if (m_rounds.empty())
                m_digests.push_back(digest);
            else if (m_digests[seed] != digest)
                fail("site %u: another report than in the first round\n", seed);
        }
        m_rounds.push_back(sampleSince(start));
    }

    /// Each round looks at others.
    void compareWithFreshProcesses() {
        const auto round = static_cast<unsigned>(m_rounds.size()) - 1;
        for (unsigned seed = round; seed < m_sites; seed += kChecksForAFreshOne, ++m_compared)
            if (digestOfFreshProcess(seed) != m_digests[seed])
                fail("site %u: another report than from a fresh process\n", seed);
    }

    void judgeGrowth() {
        const Sample& settled = m_rounds.at(kSettledRound - 1);
        const Sample& last = m_rounds.back();
        if (last.heap > settled.heap + kMostHeapGrowth)
            fail("the heap grew by %zu bytes\n", last.heap - settled.heap);
        if (last.resident > settled.resident + kMostResidentGrowth)
            fail("resident memory grew by %zu bytes\n", last.resident - settled.resident);
        if (last.handles != settled.handles)
            fail("open handles: %u, now %u\n", settled.handles, last.handles);
        if (last.seconds > m_rounds.front().seconds * kMostTimeGrowth)
            fail("the last round took %.1f times as long as the first\n",
                 last.seconds / m_rounds.front().seconds);
    }

    void tellLastRound() const {
        const Sample& last = m_rounds.back();
        std::printf("%8zu %12.2f %12zu %14zu %8u\n", m_rounds.size() * m_sites, last.seconds, last.heap,
                    last.resident / 1024, last.handles);
        std::fflush(stdout);
    }

    bool isSound() const { return m_failures == 0; }
    unsigned compared() const { return m_compared; }

private:
    template <class... Values> void fail(const char* format, Values... values) {
        ++m_failures;
        std::printf(format, values...);
    }

    unsigned m_sites;
    unsigned m_failures = 0;
    unsigned m_compared = 0;
    std::vector<QByteArray> m_digests;
    std::vector<Sample> m_rounds;
};

int run(unsigned checks) {
    Soak soak(checks / kRounds);
    std::puts("  checks  CPU seconds  heap, bytes  resident, KiB  handles");
    for (unsigned round = 0; round < kRounds; ++round) {
        soak.runRound();
        soak.tellLastRound();
        soak.compareWithFreshProcesses();
    }
    soak.judgeGrowth();
    std::printf("%u reports compared with those of fresh processes; %s\n", soak.compared(),
                soak.isSound() ? "nothing grew, no report differed" : "not sound");
    return soak.isSound() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 3 && words[1] == "digest") {
        std::puts(digestOf(words[2].toUInt()).constData());
        return 0;
    }
    const unsigned checks = words.size() == 2 ? words[1].toUInt() : 10000;
    if (checks < kRounds) {
        std::fprintf(stderr, "soak: expected a number of checks, %u at least, found \"%s\"\n", kRounds,
                     qPrintable(words[1]));
        return 2;
    }
    return run(checks);
}
