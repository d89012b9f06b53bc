#include "command_line/Progress.h"

#include "text/printable.h"
#include "text/words.h"

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
    const std::size_t share = 100 * done / all;
    const std::string rule = printable(next);
    if (done == 0) {
        write(filled(Words::tr("%1: %2 %, %3", "file, share, rule"), m_fileName, share, rule));
        return;
    }
    const double left = spent.count() / double(done) * double(all - done);
    write(filled(Words::tr("%1: %2 %, about %3 s left, %4", "file, share, time, rule"), m_fileName, share,
                 static_cast<long>(left) + 1, rule));
}

void Progress::write(const std::string& line) {
    std::fprintf(stderr, "%s%s", kEraseLine, line.c_str());
    std::fflush(stderr);
    m_hasWritten = true;
}

} // namespace firecheck
