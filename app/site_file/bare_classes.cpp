#include "elements/NUXElementObject.h"
#include "site_file/site_classes.h"

namespace firecheck {

namespace {

SiteClass element() {
    SiteClass result;
    result.name = "element";
    result.doc = "a site element without a footprint";
    result.identifierUse = SiteClass::Identifier::Required;
    result.create = [](const Json&, const JsonPlace&, const std::wstring& identifier, ObjectLinks&) {
        return std::make_unique<NUXElementObject>(identifier);
    };
    return result;
}

SiteClass drawing() {
    SiteClass result;
    result.name = "drawing";
    result.doc = "an object of the drawing that is neither site element nor 3-D model";
    result.identifierUse = SiteClass::Identifier::None;
    result.create = [](const Json&, const JsonPlace&, const std::wstring&, ObjectLinks&) {
        return std::make_unique<UdDbPlainObject>();
    };
    return result;
}

} // namespace

std::vector<SiteClass> bareClasses() {
    return {element(), drawing()};
}

} // namespace firecheck
