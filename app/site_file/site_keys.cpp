#include "site_file/site_keys.h"

#include "text/words.h"

namespace firecheck {

namespace {

Field<ObjectHead> handleField() {
    Codec<long long> codec = integer<long long>();
    codec.schema = [anyInteger = codec.schema] {
        Json schema = anyInteger();
        schema["not"] = {{"const", 0}};
        return schema;
    };
    codec.read = [read = codec.read](const Json& value, const JsonPlace& place) {
        const long long handle = read(value, place);
        if (handle == 0)
            refuse(place, filled(Words::tr("expected a handle other than 0")));
        return handle;
    };
    return requiredField(
        "handle", &ObjectHead::handle, std::move(codec),
        QT_TRANSLATE_NOOP("Words", "the number by which reports name the object; each object has its own"));
}

Field<ObjectHead> noteField() {
    const Codec<std::wstring> codec = text();
    return {KeyShape{"note", "a remark for readers of the file", false, codec.schema},
            [codec](ObjectHead&, const Json& value, const JsonPlace& place) { codec.read(value, place); }};
}

Field<ObjectHead> identifierField(const SiteClass& siteClass) {
    const std::string doc =
        QT_TRANSLATE_NOOP("Words", "element type identifier, or model kind identifier of a 3-D model");
    if (siteClass.identifierUse == SiteClass::Identifier::Required)
        return requiredField("identifier", &ObjectHead::identifier, text(), doc);
    return defaultedField("identifier", &ObjectHead::identifier, text(), siteClass.identifier, doc);
}

KeyShape classKey() {
    return {kClassKey, "what the object is", true, text().schema};
}

} // namespace

Fields<ObjectHead> headFields(const SiteClass& siteClass, ObjectRole role) {
    Fields<ObjectHead> fields;
    if (role == ObjectRole::InDocument) {
        fields.push_back(handleField());
        fields.push_back(optionalField("name", &ObjectHead::name, text(), "what people call the object"));
    }
    fields.push_back(noteField());
    if (siteClass.identifierUse != SiteClass::Identifier::None)
        fields.push_back(identifierField(siteClass));
    fields.push_back(optionalField("extents", &ObjectHead::extents, extents(),
                                   "extents that the object reports in place of those of its geometry"));
    if (role == ObjectRole::InDocument)
        fields.push_back(defaultedField("refusesToOpen", &ObjectHead::refusesToOpen, flag(), false,
                                        "whether the drawing fails to open the object"));
    return fields;
}

std::vector<KeyShape> objectKeys(const SiteClass& siteClass, ObjectRole role) {
    std::vector<KeyShape> keys = {classKey()};
    const std::vector<KeyShape> head = keyShapes(headFields(siteClass, role));
    keys.insert(keys.end(), head.begin(), head.end());
    keys.insert(keys.end(), siteClass.keys.begin(), siteClass.keys.end());
    if (role == ObjectRole::InDocument)
        keys.push_back(
            {kSecondViewKey,
             "the same thing as a 3-D model: an object of one of their classes, without handle and name",
             false, [] {
                 return Json{{"$ref", "#/definitions/secondView"}};
             }});
    return keys;
}

std::vector<KeyShape> siteKeys() {
    return {{"$schema", "where the schema of site files is", false, text().schema},
            {kSiteNameKey, "what people call the site", false, text().schema},
            {"note", "a remark for readers of the file", false, text().schema},
            {kObjectsKey, "the objects of the drawing, in their order", true, [] {
                 return Json{{"type", "array"}, {"items", {{"$ref", "#/definitions/object"}}}};
             }}};
}

} // namespace firecheck
