#include "SchemaJudge.h"

#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

using valijson::adapters::NlohmannJsonAdapter;

struct SchemaJudge::Schema {
    valijson::Schema schema;
};

SchemaJudge::SchemaJudge(const std::string& schema) : m_schema(std::make_unique<Schema>()) {
    const auto json = nlohmann::json::parse(schema);
    valijson::SchemaParser().populateSchema(NlohmannJsonAdapter(json), m_schema->schema);
}

SchemaJudge::~SchemaJudge() = default;

bool SchemaJudge::accepts(const std::string& text) {
    const auto json = nlohmann::json::parse(text);
    return valijson::Validator().validate(m_schema->schema, NlohmannJsonAdapter(json), nullptr);
}
