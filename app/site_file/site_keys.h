#pragma once

#include "site_file/SiteClass.h"

#include <string>

namespace firecheck {

/// What every object of a site file may say of itself, whatever its class.
struct ObjectHead {
    long long handle = 0;
    std::wstring name;
    std::wstring identifier;
    std::optional<hrx::CExtents3> extents;
    bool refusesToOpen = false;
};

/// An object of a document, or the second view of one: a 3-D model without handle and name of its own.
enum class ObjectRole { InDocument, SecondView };

/// Whether objects of the class can play the role.
inline bool allows(ObjectRole role, const SiteClass& siteClass) {
    return role == ObjectRole::InDocument || siteClass.isModel;
}

Fields<ObjectHead> headFields(const SiteClass& siteClass, ObjectRole role);

/// All keys of an object of that class, in the order in which the documentation shows them.
std::vector<KeyShape> objectKeys(const SiteClass& siteClass, ObjectRole role);

// Keys that the reader itself looks at.
inline const std::string kClassKey = "class";
inline const std::string kSecondViewKey = "secondView";
inline const std::string kSiteNameKey = "name";
inline const std::string kObjectsKey = "objects";

/// Keys of the site as a whole.
std::vector<KeyShape> siteKeys();

} // namespace firecheck
