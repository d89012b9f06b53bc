#pragma once

#include "site_file/DrawingSource.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace firecheck {

/// Counts what is told of a drawing, so that a thousand entities of one kind make one line.
class DrawingTally {
public:
    /// An entity that does not count, by its kind, its layer and why.
    void passOver(const std::string& type, const std::string& layer, const std::string& reason, int line);
    /// A value that nobody gave.
    void assume(const std::string& className, const std::string& layer, const std::string& key,
                const std::string& value, int line);
    /// An attribute that gives nothing.
    void passOverAttribute(const std::string& tag, const std::string& block, int line);
    /// A CLASS that is none, of a block or of entities of a kind.
    void passOverClass(const std::string& name, const std::string& block, int line);
    /// A door that stands in no wall.
    void leaveOutOfWalls(const std::string& layer, int line);
    /// An element without a handle of its own.
    void replaceHandle(int line);
    void doubt(const std::string& code, const std::string& message, int line,
               const std::string& suggestion = {});

    /// In the order of the drawing.
    std::vector<DrawingDoubt> doubts() const;

private:
    struct Count {
        int count = 0;
        int line = 0;
    };
    static void add(Count& count, int line);

    std::map<std::tuple<std::string, std::string, std::string>, Count> m_passed;
    std::map<std::tuple<std::string, std::string, std::string, std::string>, Count> m_assumed;
    std::map<std::pair<std::string, std::string>, Count> m_attributes;
    std::map<std::pair<std::string, std::string>, Count> m_classes;
    std::map<std::string, Count> m_lonelyDoors; ///< by layer
    Count m_handles;
    std::vector<DrawingDoubt> m_doubts;
};

} // namespace firecheck
