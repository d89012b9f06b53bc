#include "elements/NUXDoorObject.h"
#include "elements/NUXWallObject.h"
#include "site_file/footprint_fields.h"
#include "site_file/site_classes.h"
#include "text/words.h"

namespace firecheck {

namespace {

SiteClass door() {
    using Params = NUXDoorParams;
    // Hosts add these up as integers.
    const Codec<int> partOfDoor = integer<int>(0, 100000000);
    Fields<Params> fields = {
        requiredField("position", &Params::position, point(),
                      QT_TRANSLATE_NOOP("Words", "middle of the door")),
        defaultedField("angle", &Params::angle, number(), 0, "angle of the closed door in degrees"),
        defaultedField("leafWidth", &Params::plankWidth, partOfDoor, 1000, "width between the posts"),
        defaultedField("postWidth", &Params::postSectionWidth, partOfDoor, 100,
                       "width of each post, along the wall"),
        defaultedField("postDepth", &Params::postSectionHeight, partOfDoor, 100,
                       "depth of each post, across the wall"),
    };
    return siteClass<NUXDoorObject, Params>("door", "NUX_EDO_TYPE_DOOR", "a door or gate",
                                            extended(unusedFootprintFields(), fields));
}

/// A door of a wall as the file gives it: by handle.
struct WallDoor : DoorData {
    std::optional<double> key;
    std::optional<long long> handle; ///< none stands for an id that is not valid
    std::string pointer;
};

Field<WallDoor> doorReferenceField() {
    const auto schema = [] { return Json{{"anyOf", {{{"type", "null"}}, integer<long long>().schema()}}}; };
    return {KeyShape{"door", "handle of the door, or null for an id that is not valid", true, schema},
            [](WallDoor& entry, const Json& value, const JsonPlace& place) {
                if (!value.is_null())
                    entry.handle = integer<long long>().read(value, place);
                entry.pointer = place.pointer();
            }};
}

Field<WallDoor> keyField() {
    const Codec<double> codec = number();
    return {
        KeyShape{"key", "what the wall orders its doors by; \"distance\" unless given", false, codec.schema},
        [codec](WallDoor& entry, const Json& value, const JsonPlace& place) {
            entry.key = codec.read(value, place);
        }};
}

Fields<WallDoor> wallDoorFields() {
    const Fields<DoorData> data = {
        requiredField("distance", &DoorData::distance, number(),
                      QT_TRANSLATE_NOOP("Words", "from the wall's start, along it")),
        defaultedField("flagged", &DoorData::flag, flag(), false,
                       "whether the entry stands for no door of the wall"),
        defaultedField("width", &DoorData::width, extent(), 0, "width of the opening"),
        defaultedField("height", &DoorData::height, extent(), 0, "height of the opening"),
        defaultedField("elevation", &DoorData::elevation, number(), 0, "height of its foot above the ground"),
        defaultedField("leafAngle", &DoorData::leafAngle, number(), 0, "opening angle in degrees"),
        defaultedField("offset", &DoorData::offset, number(), 0, "from the wall's axis"),
    };
    return extended<WallDoor>(data, {doorReferenceField(), keyField()});
}

struct WallParams : NUXWallParams {
    std::vector<WallDoor> entries;
};

Field<WallParams> doorsField() {
    const Fields<WallDoor> fields = wallDoorFields();
    const std::vector<KeyShape> shapes = keyShapes(fields);
    const auto schema = [shapes] { return Json{{"type", "array"}, {"items", objectSchema(shapes)}}; };
    return {KeyShape{"doors", "the wall's doors", false, schema},
            [fields, shapes](WallParams& params, const Json& value, const JsonPlace& place) {
                if (!value.is_array())
                    refuseType(value, place, filled(Words::tr("a list of doors")));
                for (std::size_t i = 0; i < value.size(); ++i) {
                    const JsonPlace entryPlace(place, i);
                    checkKeys(value[i], entryPlace, shapes);
                    WallDoor entry;
                    readFields(entry, fields, value[i], entryPlace);
                    params.entries.push_back(entry);
                }
            }};
}

Fields<WallParams> wallFields() {
    const Fields<NUXWallParams> axis = {
        requiredField("start", &NUXWallParams::start, planPoint(),
                      QT_TRANSLATE_NOOP("Words", "start of the axis")),
        requiredField("end", &NUXWallParams::end, planPoint(), QT_TRANSLATE_NOOP("Words", "end of the axis")),
    };
    return extended<WallParams>(axis, {doorsField()});
}

UdDbObjectId doorId(const WallDoor& entry, const ObjectLinks::ObjectsByHandle& objects) {
    if (!entry.handle)
        return {};
    const auto found = objects.find(*entry.handle);
    if (found == objects.end() || !NUXDoorObject::Cast(found->second))
        throw RefusedJson({{entry.pointer,
                            filled(Words::tr("expected the handle of a door, found %1"), *entry.handle),
                            {}}});
    return UdDbObjectId(found->second);
}

void linkDoors(NUXWallObject& wall, const std::vector<WallDoor>& entries,
               const ObjectLinks::ObjectsByHandle& objects) {
    std::map<double, DoorData> doors;
    for (const WallDoor& entry : entries) {
        DoorData data = entry;
        data.doorId = doorId(entry, objects);
        if (!doors.emplace(entry.key.value_or(entry.distance), data).second)
            throw RefusedJson({{entry.pointer,
                                filled(Words::tr("expected a \"key\" that no other door of the wall has")),
                                {}}});
    }
    wall.setAssociationDoor(std::move(doors));
}

SiteClass wall() {
    const Fields<WallParams> fields = wallFields();
    SiteClass result;
    result.name = "wall";
    result.doc = "a straight wall or fence, which may have doors";
    result.identifier = "NUX_EDO_TYPE_WALL";
    result.keys = keyShapes(fields);
    result.create = [fields](const Json& object, const JsonPlace& place, const std::wstring& identifier,
                             ObjectLinks& links) {
        WallParams params;
        readFields(params, fields, object, place);
        auto created = std::make_unique<NUXWallObject>(params, identifier);
        links.add([wallObject = created.get(),
                   entries = params.entries](const ObjectLinks::ObjectsByHandle& objects) {
            linkDoors(*wallObject, entries, objects);
        });
        return created;
    };
    return result;
}

} // namespace

std::vector<SiteClass> wallClasses() {
    return {wall(), door()};
}

} // namespace firecheck
