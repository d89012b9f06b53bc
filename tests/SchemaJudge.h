#pragma once

#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

#include <string>

/// Judges by a published schema, read from its text as a stranger would.
class SchemaJudge {
public:
    explicit SchemaJudge(const std::string& schema) {
        const auto json = nlohmann::json::parse(schema);
        valijson::SchemaParser().populateSchema(valijson::adapters::NlohmannJsonAdapter(json), m_schema);
    }

    bool accepts(const std::string& text) {
        const auto json = nlohmann::json::parse(text);
        return valijson::Validator().validate(m_schema, valijson::adapters::NlohmannJsonAdapter(json),
                                              nullptr);
    }

private:
    valijson::Schema m_schema;
};
