#pragma once

#include <memory>
#include <string>

/// Judges by a published schema, read from its text as a stranger would.
class SchemaJudge {
public:
    explicit SchemaJudge(const std::string& schema);
    ~SchemaJudge();

    bool accepts(const std::string& text);

private:
    struct Schema;
    std::unique_ptr<Schema> m_schema;
};
