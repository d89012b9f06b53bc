#pragma once

#include "elements/NUXBaseObject.h"
#include "site_file/SiteClass.h"

namespace firecheck {

/// The keys that give a footprint and the shape kind that selects it, as rectangle, circle or polyline.
Fields<NUXBaseParams> footprintFields();

Field<NUXBaseParams> elevationField();
Field<NUXBaseParams> shapeKindField();

/// Lets the shape kind follow the one footprint that `object` gives, unless it gives a kind as well. Refuses
/// an object without footprint and shape kind, and one with two footprints and none to tell which counts.
void completeFootprint(NUXBaseParams& params, const Json& object, const JsonPlace& place);

/// What completeFootprint refuses, for the schema.
Json footprintSchema();

/// For elements whose place is given otherwise: everything about a footprint, reported and rarely used.
Fields<NUXBaseParams> unusedFootprintFields();

/// A class whose place is its footprint; Params derives from NUXBaseParams.
template <class Object, class Params>
SiteClass footprintClass(std::string name, std::string identifier, std::string doc,
                         const Fields<Params>& ownFields, Complete<Params> completeOwn = {}) {
    Fields<Params> fields = extended(footprintFields(), ownFields);
    const auto complete = [completeOwn](Params& params, const Json& object, const JsonPlace& place) {
        completeFootprint(params, object, place);
        if (completeOwn)
            completeOwn(params, object, place);
    };
    SiteClass result = siteClass<Object, Params>(std::move(name), std::move(identifier), std::move(doc),
                                                 std::move(fields), complete);
    result.furtherSchema = footprintSchema;
    return result;
}

} // namespace firecheck
