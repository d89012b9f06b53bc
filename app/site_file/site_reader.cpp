#include "site_file/site_reader.h"

#include "InputError.h"
#include "json/parse_json.h"
#include "site_file/site_classes.h"
#include "site_file/site_keys.h"
#include "text/input_text.h"
#include "text/nearest_name.h"

#include <QString>

namespace firecheck {

namespace {

[[noreturn]] void refuseClass(const std::string& name, const JsonPlace& place, ObjectRole role) {
    std::vector<std::string> known;
    for (const SiteClass& candidate : siteClasses())
        if (allows(role, candidate))
            known.push_back(candidate.name);
    const auto near = nearestName(name, known);
    const std::string what = role == ObjectRole::SecondView ? "class of 3-D models" : "class";
    refuse(place,
           "unknown " + what + " \"" + name + "\"" + (near ? "; did you mean \"" + *near + "\"?" : ""));
}

/// What the reader knows about one class.
struct ClassReader {
    const SiteClass* siteClass;
    std::vector<KeyShape> keys;
    Fields<ObjectHead> headFields;
};

/// The readers of the classes by name, each made when first needed and kept: neither an object nor a site
/// costs tables.
const ClassReader& readerOfClass(const std::string& name, const JsonPlace& place, ObjectRole role) {
    static std::map<std::pair<std::string, ObjectRole>, ClassReader> readers;
    const auto known = readers.find({name, role});
    if (known != readers.end())
        return known->second;
    for (const SiteClass& candidate : siteClasses()) {
        if (candidate.name != name || !allows(role, candidate))
            continue;
        ClassReader reader{&candidate, objectKeys(candidate, role), headFields(candidate, role)};
        return readers.emplace(std::pair(name, role), std::move(reader)).first->second;
    }
    refuseClass(name, place, role);
}

class SiteReader {
public:
    Site read(const Json& value) {
        const JsonPlace top;
        checkKeys(value, top, siteKeys());
        readNotes(value, top);
        m_site.document = std::make_unique<UdDbDocument>();
        const Json& objects = value.at(kObjectsKey);
        const JsonPlace list(top, kObjectsKey);
        if (!objects.is_array())
            refuseType(objects, list, "a list of objects");
        for (std::size_t i = 0; i < objects.size(); ++i)
            appendObject(objects[i], JsonPlace(list, i));
        m_links.setAll(m_objects);
        return std::move(m_site);
    }

private:
    void readNotes(const Json& value, const JsonPlace& top) {
        for (const auto& [key, note] : value.items()) {
            if (key == kObjectsKey)
                continue;
            const std::wstring checked = text().read(note, JsonPlace(top, key));
            if (key == kSiteNameKey)
                m_site.name = note.get<std::string>();
        }
    }

    void appendObject(const Json& value, const JsonPlace& place) {
        ObjectHead head;
        std::unique_ptr<UdDbObject> object = createObject(value, place, ObjectRole::InDocument, head);
        const std::string handleKey = "handle";
        if (m_site.document->hasHandle(head.handle))
            refuse(JsonPlace(place, handleKey),
                   "expected a handle of its own, found " + std::to_string(head.handle) + " once more");
        const auto secondView = value.find(kSecondViewKey);
        if (secondView != value.end()) {
            ObjectHead viewHead;
            object->attachView(createObject(*secondView, JsonPlace(place, kSecondViewKey),
                                            ObjectRole::SecondView, viewHead));
        }
        object->setRefusesToOpen(head.refusesToOpen);
        m_objects[head.handle] = object.get();
        m_site.labels[head.handle] = {value.at(kClassKey).get<std::string>(),
                                      QString::fromStdWString(head.name).toStdString()};
        m_site.document->append(std::move(object), head.handle);
    }

    std::unique_ptr<UdDbObject> createObject(const Json& value, const JsonPlace& place, ObjectRole role,
                                             ObjectHead& head) {
        const ClassReader& reader = readerFor(value, place, role);
        checkKeys(value, place, reader.keys);
        readFields(head, reader.headFields, value, place);
        auto object = reader.siteClass->create(value, place, head.identifier, m_links);
        if (head.extents)
            object->setExtents(*head.extents);
        return object;
    }

    static const ClassReader& readerFor(const Json& value, const JsonPlace& place, ObjectRole role) {
        if (!value.is_object())
            refuseType(value, place, "an object");
        const auto className = value.find(kClassKey);
        if (className == value.end())
            refuse(place, "expected the key \"class\" (what the object is)");
        const JsonPlace classPlace(place, kClassKey);
        if (!className->is_string())
            refuseType(*className, classPlace, "the name of a class");
        return readerOfClass(className->get_ref<const std::string&>(), classPlace, role);
    }

    Site m_site;
    ObjectLinks m_links;
    ObjectLinks::ObjectsByHandle m_objects;
};

} // namespace

Site readSite(const Json& value) {
    return SiteReader().read(value);
}

Site parseSite(const std::string& text, const std::string& name) {
    const Json value = parseJson(text, name);
    try {
        return readSite(value);
    } catch (const InputError& error) {
        throw InputError(name + ": " + error.what());
    }
}

Site loadSite(const std::string& fileName) {
    return parseSite(inputText(fileName, "a site file"), fileName);
}

} // namespace firecheck
