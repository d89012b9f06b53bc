#include "edit/ObjectEdits.h"

namespace firecheck {

namespace {

void replace(Json& objects, std::size_t index, const Json& before, const Json& after) {
    const auto place = objects.begin() + static_cast<std::ptrdiff_t>(index);
    if (before.is_null())
        objects.insert(place, after);
    else if (after.is_null())
        objects.erase(place);
    else
        *place = after;
}

} // namespace

void make(const ObjectEdits& edits, Json& objects) {
    for (const ObjectEdit& edit : edits)
        replace(objects, edit.index, edit.before, edit.after);
}

void undo(const ObjectEdits& edits, Json& objects) {
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
        replace(objects, edit->index, edit->after, edit->before);
}

} // namespace firecheck
