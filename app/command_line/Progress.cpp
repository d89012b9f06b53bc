#include "command_line/Progress.h"

#include "text/printable.h"

#include <cstdio>
#include <unistd.h>

namespace firecheck {

namespace {

constexpr std::chrono::seconds kPatience{2};
const char* const kEraseLine = "\r\033[K";

} // namespace

Progress::Progress(std::string fileName)
    : m_fileName(printable(fileName)), m_isTerminal(isatty(STDERR_FILENO) == 1) {}

Progress::~Progress() {
    if (m_hasWritten)
        std::fputs(kEraseLine, stderr);
}

void Progress::tell(const firestandard::CheckStep& step) {
    tell(step.judged, step.rules, step.next.name.toStdString());
}

void Progress::tell(std::size_t done, std::size_t all, const std::string& next) {
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - m_begin;
    if (!m_isTerminal || spent < kPatience)
        return;
    std::string line = m_fileName + ": " + std::to_string(100 * done / all) + " %";
    if (done > 0) {
        const double left = spent.count() / double(done) * double(all - done);
        line += ", about " + std::to_string(static_cast<long>(left) + 1) + " s left";
    }
    write(line + ", " + printable(next));
}

void Progress::write(const std::string& line) {
    std::fprintf(stderr, "%s%s", kEraseLine, line.c_str());
    std::fflush(stderr);
    m_hasWritten = true;
}

} // namespace firecheck
