#pragma once

#include "edit/SiteDraft.h"
#include "edit/SiteFileOnDisk.h"
#include "report/SiteReport.h"
#include "rules/rule_file.h"
#include "site_file/site_reader.h"
#include "site_lint/SiteDoubts.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// What is doubtful of a site, and the object that it is about.
struct JudgedDoubt {
    std::string handle; ///< decimal; empty for none
    std::string text;
};

/// What the checker says of a site.
struct Judgement {
    SiteReport report;
    std::vector<JudgedDoubt> doubts;
    std::chrono::nanoseconds time{0}; ///< that judging took
};

/// A distance that a rule asks for between an element and another one.
struct RequiredDistance {
    std::string rule;
    long long other = 0;
    bool isLeast = true;   ///< else the greatest one
    double distance = 0.0; ///< mm
    double measured = 0.0; ///< mm
};

/// A change of a site, suggested and judged.
struct SuggestedChanges {
    struct Step {
        std::string sentence;
        std::vector<RequestedChange> changes; ///< on top of those of the steps before
    };
    std::vector<Step> steps;
    std::string obstacle; ///< where nothing helps, what stands in the way
};

/// One site that somebody lays out, judged at every step by the checker itself. Not for several threads at
/// once: the check engine has one current document.
class EditSession {
public:
    /// `file` was read under the name `fileName` and is saved to `target`.
    EditSession(SiteFile file, std::string fileName, SiteFileOnDisk target, const RuleMap& rulesInUse);

    const SiteDraft& draft() const { return m_draft; }
    /// Of the draft as it stands.
    const Judgement& judgement() const { return m_judgement; }
    /// Goes up with everything that changes the draft.
    long long revision() const { return m_revision; }
    const std::string& fileName() const { return m_fileName; }

    /// Judges the draft with the changes, which are not kept. Throws RefusedChange.
    struct Tried {
        ObjectEdits edits;
        Judgement judgement;
    };
    Tried attempt(const std::vector<RequestedChange>& changes);

    // Each answers the edits that led to the draft as it stands.
    /// Keeps the changes as one step, unless they change nothing, or throws RefusedChange and leaves all as
    /// it was.
    ObjectEdits change(const std::vector<RequestedChange>& changes);
    /// Does nothing when there is nothing to undo.
    ObjectEdits undo();
    ObjectEdits redo();

    /// What would remove a finding of the judgement.
    SuggestedChanges suggest(std::size_t finding) const;

    /// What rules ask of the element's distance to others, by its pairs as the engine compares them.
    std::vector<RequiredDistance> requiredDistances(long long handle) const;

    /// Throws ChangedOnDisk or InputError, and leaves the file as it was.
    void save();

private:
    Judgement judge() const;
    void setJudgement(Judgement judgement);

    SiteDraft m_draft;
    std::string m_fileName;
    SiteFileOnDisk m_target;
    const RuleMap& m_rules;
    std::string m_readText; ///< which each save changes anew; empty for what is no JSON
    Json m_readSite;        ///< which was parsed from it
    Judgement m_judgement;
    long long m_revision = 1;
};

} // namespace firecheck
