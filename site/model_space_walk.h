#pragma once

#include "cad/UdDbObjContainer.h"
#include "site/host_codes.h"

#include <memory>
#include <type_traits>

namespace firestandard {

enum class WalkStep { Continue, Stop };

/// Visits every object of the container in its order. `visit` takes a UdDbObject*, null for an object that
/// could not be opened (every cast of which fails), and returns nothing, or a WalkStep to end the walk early.
/// Opened objects are used through their pointers and never released.
template <class Visit> void walkModelSpace(const UdDbObjContainer& modelSpace, Visit&& visit) {
    const std::unique_ptr<UdDbObjContainerIterator> iterator(modelSpace.NewIterator(true, true));
    for (; !iterator->Done(); iterator->Step(true, true)) {
        UdDbObject* object = nullptr;
        iterator->GetItem(object, static_cast<UdDb::OpenMode>(kForReading), false);
        if constexpr (std::is_void_v<std::invoke_result_t<Visit&, UdDbObject*>>)
            visit(object);
        else if (visit(object) == WalkStep::Stop)
            return;
    }
}

} // namespace firestandard
