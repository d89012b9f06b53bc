#include "suggest/SiteJudge.h"

#include "cad/UdDbObject.h"
#include "check/CurrentDocument.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "site_file/site_reader.h"

#include <algorithm>
#include <limits>

namespace firecheck {

using firestandard::Comparison;
using firestandard::NotJudged;
using firestandard::Quantity;

namespace {

long long handleOf(const UdDbObject& object) {
    return object.Handle().GetID();
}

/// Keeps the values of a check as long as it lives.
class ValueObserver : public firestandard::CheckObserver {
public:
    ValueObserver(const SiteJudge& judge, const std::set<Offence>& asked, Verdict& verdict)
        : m_judge(judge), m_asked(asked), m_verdict(verdict) {
        firestandard::setCheckObserver(this);
    }
    ~ValueObserver() override { firestandard::setCheckObserver(nullptr); }
    ValueObserver(const ValueObserver&) = delete;
    ValueObserver& operator=(const ValueObserver&) = delete;

    void beginRule(const NuxStandardCheckRule& rule) override {
        m_rule = m_judge.numberOf(rule);
        m_isBoxRule = m_judge.isBoxRule(m_rule);
    }
    void endRule() override {}

    void compared(const Comparison& comparison) override {
        if (!comparison.measurement)
            return;
        const bool isPair = comparison.other && comparison.measurement->quantity == Quantity::Distance;
        const Offence offence{m_rule, handleOf(comparison.element),
                              isPair && !m_isBoxRule ? handleOf(*comparison.other) : 0, false};
        if (comparison.offends || isAsked(offence))
            keep(offence,
                 {*comparison.measurement, isPair ? handleOf(*comparison.other) : 0, comparison.contact});
    }

    void notJudged(const UdDbObject& element, NotJudged why) override {
        if (why == NotJudged::NoBoxMeasurable || why == NotJudged::RuleEndedBefore)
            m_verdict.unreached.insert({m_rule, handleOf(element)});
    }
    void pairNotJudged(const UdDbObject&, const UdDbObject&, NotJudged) override {}

private:
    bool isAsked(const Offence& offence) const {
        if (m_asked.empty())
            return false;
        Offence touched = offence;
        touched.isTouched = true;
        return m_asked.count(offence) > 0 || m_asked.count(touched) > 0;
    }

    /// The nearest box, and the largest room.
    void keep(const Offence& offence, const JudgedValue& value) {
        const auto [known, isNew] = m_verdict.values.try_emplace(offence, value);
        const double kept = known->second.measurement.value;
        const double told = value.measurement.value;
        if (!isNew && (m_isBoxRule ? told < kept : told > kept))
            known->second = value;
    }

    const SiteJudge& m_judge;
    const std::set<Offence>& m_asked;
    Verdict& m_verdict;
    std::size_t m_rule = 0;
    bool m_isBoxRule = false;
};

double excessOf(const firestandard::Measurement& measured) {
    if (measured.minimum && measured.value < *measured.minimum)
        return *measured.minimum - measured.value;
    return measured.maximum ? std::max(0.0, measured.value - *measured.maximum) : 0.0;
}

} // namespace

SiteJudge::SiteJudge(const RuleMap& rulesInUse) {
    for (const auto& sharingKey : rulesInUse)
        m_rules.insert(m_rules.end(), sharingKey.begin(), sharingKey.end());
    // Numbers are those of the first of equal rules.
    std::vector<NuxStandardCheckRule> distinct;
    firestandard::RuleNumbers known;
    for (const NuxStandardCheckRule& rule : m_rules)
        if (known.add(rule) == distinct.size())
            distinct.push_back(rule);
    m_rules = std::move(distinct);
    for (const NuxStandardCheckRule& rule : m_rules) {
        m_numbers.add(rule);
        m_rows.push_back(firestandard::findRule(rule.name, rule.type));
    }
}

std::optional<firestandard::RuleTest> SiteJudge::test(const Offence& offence) const {
    if (rule(offence).type == QLatin1String("distant"))
        return firestandard::RuleTest::Distance;
    const firestandard::RuleRow* known = row(offence);
    return known ? std::optional(known->test) : std::nullopt;
}

bool SiteJudge::isBoxRule(std::size_t rule) const {
    return rule < m_rows.size() && m_rows[rule] &&
           m_rows[rule]->test == firestandard::RuleTest::FireExtinguisherBox;
}

Verdict SiteJudge::judge(const Json& site, const std::set<Offence>& asked) const {
    const CurrentDocument document(readSite(site).document);
    Verdict verdict;
    NuxFireStandardCheck& engine = *NUXCheck::instance();
    {
        const ValueObserver observer(*this, asked, verdict);
        engine.DoCheck();
    }
    for (const auto& filed : engine.getMapRules())
        for (const NuxStandardCheckRule& record : filed)
            for (const Offence& offence : offencesOf(record, verdict)) {
                Offence measured = offence;
                measured.isTouched = false;
                const auto value = verdict.values.find(measured);
                // Without any box an element is as far from one as can be.
                const double unmeasured =
                    isBoxRule(offence.rule) ? std::numeric_limits<double>::infinity() : 0.0;
                verdict.offences[offence] =
                    value == verdict.values.end() ? unmeasured : excessOf(value->second.measurement);
            }
    return verdict;
}

std::vector<Offence> SiteJudge::offencesOf(const NuxStandardCheckRule& record, const Verdict& verdict) const {
    const std::size_t number = numberOf(record);
    Offence offence{number, record.handle, 0, false};
    if (isBoxRule(number)) {
        const auto nearest = verdict.values.find(offence);
        offence.isTouched = nearest != verdict.values.end() && nearest->second.measurement.value <= 0.0;
        return {offence};
    }
    std::vector<Offence> offences;
    for (const qint64 other : record.relatedHandles) {
        offence.other = other;
        offences.push_back(offence);
    }
    return offences.empty() ? std::vector<Offence>{offence} : offences;
}

} // namespace firecheck
