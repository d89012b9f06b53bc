#pragma once

#include "report/plan/PlanShape.h"
#include "suggest/Change.h"
#include "suggest/SiteJudge.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace firecheck {

/// An object of the site as suggestions name and draw it.
struct TrialElement {
    long long handle = 0;
    std::string className;
    std::string phrase; ///< 'dormitory 413 "Dormitory 3"'
    PlanShape shape;    ///< without paths for what has no geometry or does not open
};

/// A copy of a site on which changes are tried. Whatever it says of them is the engine's word.
class TrialSite {
public:
    /// `site` has been read without errors. Refers to the judge.
    TrialSite(Json site, const SiteJudge& judge);

    const SiteJudge& judge() const { return *m_judge; }
    const Json& json() const { return m_site; }
    const Json& object(std::size_t index) const;
    std::size_t size() const { return m_elements.size(); }
    const TrialElement& element(std::size_t index) const { return m_elements[index]; }
    std::optional<std::size_t> indexOf(long long handle) const;

    /// Of the site as it stands.
    const Verdict& verdict() const { return m_verdict; }
    /// Of the whole site with the change. Throws RefusedJson for one that makes it no site.
    Verdict verdictWith(const Change& change, const std::set<Offence>& asked) const;

    /// `verdict` is that of the site with the change.
    void apply(const Change& change, Verdict verdict);

    /// What an object of the site would be named and drawn as. A wall's doors are left out.
    TrialElement elementOf(const Json& object) const;

    /// The first handle that no object has, above all of them where there is one.
    long long freeHandle() const;

    /// Whether rules may relate the object to others by where they stand: not so walls, doors and most
    /// models.
    bool isJudgedByPlace(std::size_t index) const;

    /// The largest distance that any rule asks for, mm.
    double farthestLimit() const { return m_farthestLimit; }

    /// Puts the change into a list of objects: new ones before the last, which a rule looks at alone.
    static void put(const Change& change, Json& objects);

private:
    void readElements();

    const SiteJudge* m_judge;
    mutable Json m_site; ///< changed while a change is judged
    Verdict m_verdict;
    std::vector<TrialElement> m_elements;
    std::map<long long, std::size_t> m_indices;
    double m_farthestLimit = 0.0;
    std::set<std::string> m_firstTypes; ///< identifiers that rules judge elements of
};

/// A part of a trial site in which many changes of one element are tried quickly. What it says is a guess:
/// objects far from the place, and rules that look at all of a drawing, are not in it.
class Neighbourhood {
public:
    /// All that may matter to what stands in the region, mm, and the objects of these handles.
    Neighbourhood(const TrialSite& site, const hrx::CBox2d& region, const std::set<long long>& handles);

    /// `change` is about the site; what it changes is in the neighbourhood.
    OffenceDifference differenceWith(const Change& change);

private:
    const TrialSite& m_site;
    Json m_part;
    std::map<std::size_t, std::size_t> m_slots; ///< by index in the site
    Offences m_before;
};

} // namespace firecheck
