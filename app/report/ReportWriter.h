#pragma once

#include "report/SiteReport.h"

#include <functional>
#include <memory>
#include <string>

namespace firecheck {

/// Writes the reports of one call, site after site, so that no more than one is held at a time.
class ReportWriter {
public:
    /// Takes the report's bytes, piece by piece.
    using Sink = std::function<void(const std::string&)>;

    explicit ReportWriter(Sink sink) : m_write(std::move(sink)) {}
    virtual ~ReportWriter() = default;

    virtual void begin() {}
    virtual void add(const SiteReport& report) = 0;
    virtual void end() {}

protected:
    void write(const std::string& piece) const { m_write(piece); }

private:
    Sink m_write;
};

/// One JSON object: {"sites": [...]}, one entry for each site checked.
std::unique_ptr<ReportWriter> jsonReportWriter(ReportWriter::Sink sink);

/// The same but for the engine's two maps, whose size is that of all relations of all records.
std::unique_ptr<ReportWriter> jsonReportWriterWithoutResults(ReportWriter::Sink sink);

/// For people. With `coloured`, ANSI escape sequences set off what counts.
std::unique_ptr<ReportWriter> textReportWriter(ReportWriter::Sink sink, bool coloured);

/// A table for spreadsheets: UTF-8 with a byte order mark, one line for each violation and element related to
/// it, one line also for a violation that relates to no element.
std::unique_ptr<ReportWriter> csvReportWriter(ReportWriter::Sink sink);

/// One page for a browser, complete in itself: the plan of each site, and its violations linked with it.
std::unique_ptr<ReportWriter> htmlReportWriter(ReportWriter::Sink sink);

} // namespace firecheck
