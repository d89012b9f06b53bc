#include "site_file/site_reader.h"

#include "json/parse_json.h"
#include "site_file/RefusedSite.h"
#include "site_file/site_classes.h"
#include "site_file/site_keys.h"
#include "text/input_text.h"
#include "text/nearest_name.h"
#include "text/shortened.h"
#include "text/words.h"

#include <QString>

#include <set>

namespace firecheck {

namespace {

/// The class for which the name is a use, as people may take it for a class; null for none.
const SiteClass* classWithUse(const std::string& name) {
    for (const SiteClass& candidate : siteClasses())
        for (const KeyShape& key : candidate.keys)
            for (const auto& [use, code] : key.names)
                if (key.key == "use" && nearestName(name, {use}))
                    return &candidate;
    return nullptr;
}

[[noreturn]] void refuseClass(const std::string& name, const JsonPlace& place, ObjectRole role) {
    std::vector<std::string> known;
    for (const SiteClass& candidate : siteClasses())
        if (allows(role, candidate))
            known.push_back(candidate.name);
    const auto near = nearestName(name, known);
    const std::string reason =
        filled(role == ObjectRole::SecondView ? Words::tr("unknown class of 3-D models \"%1\"")
                                              : Words::tr("unknown class \"%1\""),
               shortened(name));
    if (near)
        refuse(place, reason, *near);
    if (const SiteClass* used = classWithUse(name))
        refuse(place, filled(Words::tr("%1, which is a use of \"%2\""), reason, used->name));
    std::string all;
    for (const std::string& candidate : known)
        all += (all.empty() ? "" : ", ") + candidate;
    refuse(place, filled(Words::tr("%1; the classes are %2"), reason, all));
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
        std::vector<Refusal> refusals;
        const JsonPlace top(refusals);
        top.attempt([&] { readTop(value, top); });
        if (!refusals.empty())
            throw RefusedJson(std::move(refusals));
        return std::move(m_site);
    }

private:
    void readTop(const Json& value, const JsonPlace& top) {
        checkKeys(value, top, siteKeys());
        readNotes(value, top);
        m_site.document = std::make_unique<UdDbDocument>();
        const auto objects = value.find(kObjectsKey);
        if (objects == value.end())
            return;
        const JsonPlace list(top, kObjectsKey);
        if (!objects->is_array())
            refuseType(*objects, list, filled(Words::tr("a list of objects")));
        for (std::size_t i = 0; i < objects->size(); ++i) {
            const JsonPlace place(list, i);
            const std::size_t linksBefore = m_links.count();
            bool isKept = false;
            place.attempt([&] { isKept = appendObject((*objects)[i], place); });
            if (!isKept)
                m_links.keepFirst(linksBefore);
        }
        m_links.setAll(m_objects, top);
    }

    void readNotes(const Json& value, const JsonPlace& top) {
        for (const KeyShape& shape : siteKeys()) {
            const auto note = value.find(shape.key);
            if (shape.key == kObjectsKey || note == value.end())
                continue;
            const JsonPlace place(top, shape.key);
            place.attempt([&] { text().read(*note, place); });
            if (shape.key == kSiteNameKey && note->is_string())
                m_site.name = note->get<std::string>();
        }
    }

    /// False for an object whose handle was refused.
    bool appendObject(const Json& value, const JsonPlace& place) {
        ObjectHead head;
        std::unique_ptr<UdDbObject> object = createObject(value, place, ObjectRole::InDocument, head);
        if (head.handle == 0 || m_objects.count(head.handle) > 0)
            return false;
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
        return true;
    }

    std::unique_ptr<UdDbObject> createObject(const Json& value, const JsonPlace& place, ObjectRole role,
                                             ObjectHead& head) {
        const ClassReader& reader = readerFor(value, place, role);
        checkKeys(value, place, reader.keys);
        readFields(head, reader.headFields, value, place);
        if (role == ObjectRole::InDocument && head.handle != 0)
            place.attempt([&] { requireNewHandle(head.handle, place); });
        auto object = reader.siteClass->create(value, place, head.identifier, m_links);
        if (head.extents)
            object->setExtents(*head.extents);
        return object;
    }

    void requireNewHandle(long long handle, const JsonPlace& place) {
        const std::string handleKey = "handle";
        if (!m_handles.insert(handle).second)
            refuse(JsonPlace(place, handleKey),
                   filled(Words::tr("expected a handle of its own, found %1 once more"), handle));
    }

    static const ClassReader& readerFor(const Json& value, const JsonPlace& place, ObjectRole role) {
        if (!value.is_object())
            refuseType(value, place, filled(Words::tr("an object")));
        const auto className = value.find(kClassKey);
        if (className == value.end())
            refuse(place, filled(Words::tr("expected the key \"class\" (what the object is)")));
        const JsonPlace classPlace(place, kClassKey);
        if (!className->is_string())
            refuseType(*className, classPlace, filled(Words::tr("the name of a class")));
        return readerOfClass(className->get_ref<const std::string&>(), classPlace, role);
    }

    Site m_site;
    std::set<long long> m_handles;
    ObjectLinks m_links;
    ObjectLinks::ObjectsByHandle m_objects;
};

} // namespace

Site readSite(const Json& value) {
    return SiteReader().read(value);
}

SiteFile parseSiteFile(std::string text, const std::string& name) {
    SiteFile file;
    file.text = std::move(text);
    file.value = parseJson(file.text, name);
    try {
        file.site = readSite(file.value);
    } catch (const RefusedJson& refused) {
        throw RefusedSite(name, file.text, file.value, refused.refusals());
    }
    return file;
}

SiteFile loadSiteFile(const std::string& fileName) {
    return parseSiteFile(inputText(fileName, filled(Words::tr("a site file"))), fileName);
}

Site parseSite(const std::string& text, const std::string& name) {
    return parseSiteFile(text, name).site;
}

Site loadSite(const std::string& fileName) {
    return loadSiteFile(fileName).site;
}

} // namespace firecheck
