#include "drawing/DrawingTally.h"

#include "site_file/site_classes.h"
#include "text/nearest_name.h"
#include "text/shortened.h"
#include "text/words.h"

#include <algorithm>

namespace firecheck {

namespace {

DrawingDoubt doubtOf(const char* code, int line, std::string message) {
    return {code, line, std::move(message), {}};
}

std::vector<std::string> classNames() {
    std::vector<std::string> names;
    for (const SiteClass& siteClass : siteClasses())
        names.push_back(siteClass.name);
    return names;
}

} // namespace

void DrawingTally::add(Count& count, int line) {
    count.line = count.count++ == 0 ? line : std::min(count.line, line);
}

void DrawingTally::passOver(const std::string& type, const std::string& layer, const std::string& reason,
                            int line) {
    add(m_passed[{layer, type, reason}], line);
}

void DrawingTally::assume(const std::string& className, const std::string& layer, const std::string& key,
                          const std::string& value, int line) {
    add(m_assumed[{layer, className, key, value}], line);
}

void DrawingTally::passOverAttribute(const std::string& tag, const std::string& block, int line) {
    add(m_attributes[{block, tag}], line);
}

void DrawingTally::passOverClass(const std::string& name, const std::string& block, int line) {
    add(m_classes[{block, name}], line);
}

void DrawingTally::leaveOutOfWalls(const std::string& layer, int line) {
    add(m_lonelyDoors[layer], line);
}

void DrawingTally::replaceHandle(int line) {
    add(m_handles, line);
}

void DrawingTally::doubt(const std::string& code, const std::string& message, int line,
                         const std::string& suggestion) {
    m_doubts.push_back({code, line, message, suggestion});
}

std::vector<DrawingDoubt> DrawingTally::doubts() const {
    std::vector<DrawingDoubt> doubts = m_doubts;
    for (const auto& [what, count] : m_passed) {
        const auto& [layer, type, reason] = what;
        doubts.push_back(doubtOf("not-taken-up", count.line,
                                 filled(Words::tr("%1 %2 on layer \"%3\" not taken up: %4"), count.count,
                                        shortened(type), shortened(layer), reason)));
    }
    for (const auto& [what, count] : m_assumed) {
        const auto& [layer, className, key, value] = what;
        doubts.push_back(doubtOf("assumed-value", count.line,
                                 filled(Words::tr("%1 %2 on layer \"%3\" without \"%4\": %5 is assumed"),
                                        count.count, className, shortened(layer), key, shortened(value))));
    }
    for (const auto& [what, count] : m_attributes)
        doubts.push_back(doubtOf(
            "not-taken-up", count.line,
            filled(Words::tr(
                       "%1 attributes \"%2\" of block \"%3\" not taken up: their elements have no such key"),
                   count.count, shortened(what.second), shortened(what.first))));
    for (const auto& [what, count] : m_classes)
        doubts.push_back(
            {"not-taken-up", count.line,
             filled(Words::tr("%1 attributes \"CLASS\" of block \"%2\" not taken up: \"%3\" is no "
                              "class of objects"),
                    count.count, shortened(what.first), shortened(what.second)),
             nearestName(what.second, classNames()).value_or(std::string())});
    for (const auto& [layer, count] : m_lonelyDoors)
        doubts.push_back(doubtOf(
            "door-without-wall", count.line,
            filled(Words::tr("%1 doors on layer \"%2\" stand in no wall"), count.count, shortened(layer))));
    if (m_handles.count > 0)
        doubts.push_back(doubtOf(
            "replaced-handle", m_handles.line,
            filled(m_handles.count == 1
                       ? Words::tr("1 element has no handle, or that of another; it was given a new one")
                       : Words::tr("%n elements have no handle, or that of another; they were given new ones",
                                   "", m_handles.count))));
    std::stable_sort(doubts.begin(), doubts.end(),
                     [](const DrawingDoubt& a, const DrawingDoubt& b) { return a.line < b.line; });
    return doubts;
}

} // namespace firecheck
