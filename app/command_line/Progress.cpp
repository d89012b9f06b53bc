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
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - m_begin;
    if (!m_isTerminal || spent < kPatience)
        return;
    std::string line = m_fileName + ": " + std::to_string(100 * step.judged / step.rules) + " %";
    if (step.judged > 0) {
        const double left = spent.count() / double(step.judged) * double(step.rules - step.judged);
        line += ", about " + std::to_string(static_cast<long>(left) + 1) + " s left";
    }
    write(line + ", " + printable(step.next.name.toStdString()));
}

void Progress::write(const std::string& line) {
    std::fprintf(stderr, "%s%s", kEraseLine, line.c_str());
    std::fflush(stderr);
    m_hasWritten = true;
}

} // namespace firecheck
