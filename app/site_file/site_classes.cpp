#include "site_file/site_classes.h"

#include <iterator>

namespace firecheck {

const std::vector<SiteClass>& siteClasses() {
    static const std::vector<SiteClass> all = [] {
        std::vector<SiteClass> classes;
        for (auto part :
             {buildingClasses, groundClasses, routeClasses, wallClasses, equipmentClasses, bareClasses}) {
            std::vector<SiteClass> further = part();
            std::move(further.begin(), further.end(), std::back_inserter(classes));
        }
        return classes;
    }();
    return all;
}

} // namespace firecheck
