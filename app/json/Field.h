#pragma once

#include "json/Codec.h"

#include <functional>
#include <string>
#include <vector>

namespace firecheck {

/// One key of a JSON object, as its documentation and schema show it.
struct KeyShape {
    std::string key;
    std::string doc;
    bool required = false;
    SchemaMaker schema = {};
    std::optional<Json> defaultValue = {}; ///< stands in for a key that is not given
    CodeNames names = {};                  ///< of the codes that mean something, where the value is a code
};

/// One key of a JSON object and what it sets in Params. Usable for whatever derives from Params as well.
template <class Params> struct Field : KeyShape {
    template <class Read>
    Field(KeyShape shape, Read readIntoParams)
        : KeyShape(std::move(shape)), read(std::move(readIntoParams)) {}
    template <class Base> Field(const Field<Base>& field) : KeyShape(field), read(field.read) {}

    std::function<void(Params&, const Json&, const JsonPlace&)> read;
};

template <class Params> using Fields = std::vector<Field<Params>>;

template <class Params, class T>
Field<Params> optionalField(std::string key, T Params::*member, Codec<T> codec, std::string doc) {
    return {
        KeyShape{std::move(key), std::move(doc), false, std::move(codec.schema), {}, std::move(codec.names)},
        [member, read = std::move(codec.read)](Params& params, const Json& value, const JsonPlace& place) {
            params.*member = read(value, place);
        }};
}

/// As above, with a value for objects that do not give one.
template <class Params, class T>
Field<Params> defaultedField(std::string key, T Params::*member, Codec<T> codec, Json defaultValue,
                             std::string doc) {
    auto field = optionalField(std::move(key), member, std::move(codec), std::move(doc));
    field.defaultValue = std::move(defaultValue);
    return field;
}

template <class Params, class T>
Field<Params> requiredField(std::string key, T Params::*member, Codec<T> codec, std::string doc) {
    auto field = optionalField(std::move(key), member, std::move(codec), std::move(doc));
    field.required = true;
    return field;
}

template <class Params> void append(Fields<Params>& fields, const Fields<Params>& further) {
    fields.insert(fields.end(), further.begin(), further.end());
}

/// The fields of a base followed by further ones.
template <class Params, class Base>
Fields<Params> extended(const Fields<Base>& base, Fields<Params> further) {
    Fields<Params> fields(base.begin(), base.end());
    append(fields, further);
    return fields;
}

/// Refuses what is no object, every key other than those of the shapes, and every missing one.
void checkKeys(const Json& object, const JsonPlace& place, const std::vector<KeyShape>& shapes);

Json objectSchema(const std::vector<KeyShape>& shapes);

template <class Params> std::vector<KeyShape> keyShapes(const Fields<Params>& fields) {
    return {fields.begin(), fields.end()};
}

/// Reads the fields that `object` holds, and the defaults of those it does not; its keys have been checked.
/// What is refused of one field does not keep the others from being read (see JsonPlace::attempt).
template <class Params>
void readFields(Params& params, const Fields<Params>& fields, const Json& object, const JsonPlace& place) {
    for (const Field<Params>& field : fields) {
        const auto given = object.find(field.key);
        if (given != object.end())
            place.attempt([&] { field.read(params, *given, JsonPlace(place, field.key)); });
        else if (field.defaultValue)
            field.read(params, *field.defaultValue, JsonPlace(place, field.key));
    }
}

/// An object in place of a value, whose keys set the same Params.
template <class Params> Field<Params> nestedField(std::string key, Fields<Params> fields, std::string doc) {
    const std::vector<KeyShape> shapes = keyShapes(fields);
    return {KeyShape{std::move(key), std::move(doc), false, [shapes] { return objectSchema(shapes); }},
            [fields = std::move(fields), shapes](Params& params, const Json& value, const JsonPlace& place) {
                checkKeys(value, place, shapes);
                readFields(params, fields, value, place);
            }};
}

} // namespace firecheck
