#pragma once

#include "InputError.h"
#include "edit/ObjectEdits.h"

#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// What somebody asks for: an object with these values, a new one, or one object less.
struct RequestedChange {
    std::optional<long long> handle; ///< of the object to be changed or removed; nothing for a new one
    Json object;                     ///< the whole of it; null for one to be removed
};

/// Of an object of a site file, as the site's reader takes it; nothing for none.
std::optional<long long> handleOf(const Json& object);

/// A change that makes no site; the text says why.
class RefusedChange : public InputError {
public:
    RefusedChange(const std::string& message, std::optional<long long> refusedHandle, std::string refusedKey)
        : InputError(message), handle(refusedHandle), key(std::move(refusedKey)) {}

    std::optional<long long> handle; ///< of the object that is wrong; nothing for none, and for a new one
    std::string key;                 ///< of that object; empty for the whole of it
};

/// The JSON of a site that somebody changes step by step and back again.
class SiteDraft {
public:
    /// `site` has been read without errors.
    explicit SiteDraft(Json site);

    const Json& site() const { return m_site; }
    const Json& objects() const;
    /// Null when there is none of that handle.
    const Json* object(long long handle) const;

    /// What the changes come to, one after another. A changed object keeps the order of its keys and every
    /// value that is only written otherwise; a new one gets the next free handle unless it gives its own, and
    /// stands before the last of the list, which a rule looks at alone. Throws RefusedChange for a handle
    /// that no object has and for a value that is no object.
    ObjectEdits editsFor(const std::vector<RequestedChange>& changes) const;

    /// Makes the edits for as long as it lives.
    class Trial {
    public:
        Trial(SiteDraft& draft, const ObjectEdits& edits);
        ~Trial();
        Trial(const Trial&) = delete;
        Trial& operator=(const Trial&) = delete;

    private:
        SiteDraft& m_draft;
        const ObjectEdits& m_edits;
    };

    /// Makes the edits as the next step. What was undone before cannot be redone any more.
    void keep(ObjectEdits edits);
    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_steps.size(); }
    /// Each answers the edits as they were made, the one way or the other.
    ObjectEdits undo();
    ObjectEdits redo();

    /// Whether it differs from what it was when it was last saved, at first from what was read.
    bool isChanged() const { return m_saved != m_done; }
    void setSaved() { m_saved = m_done; }

private:
    std::optional<std::size_t> indexOf(long long handle) const;
    Json& list();

    Json m_site;
    std::vector<ObjectEdits> m_steps;
    std::size_t m_done = 0;                 ///< steps that are not undone
    std::optional<std::size_t> m_saved = 0; ///< steps done when it was saved; nothing when those are gone
};

} // namespace firecheck
