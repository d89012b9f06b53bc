#pragma once

#include "json/Json.h"

#include <cstddef>
#include <vector>

namespace firecheck {

/// One object of a list put in, taken out, or given other values.
struct ObjectEdit {
    std::size_t index = 0; ///< in the list as the edits before it have left it
    Json before;           ///< null for an object that is put in before the one at `index`
    Json after;            ///< null for an object that is taken out
};

/// Made one after another, undone the other way round.
using ObjectEdits = std::vector<ObjectEdit>;

void make(const ObjectEdits& edits, Json& objects);
void undo(const ObjectEdits& edits, Json& objects);

} // namespace firecheck
