#include "report/judgement_text.h"

namespace {

std::string offendersText(const JudgedRule& judged) {
    if (judged.offending > 0)
        return std::to_string(judged.offending) + (judged.offending == 1 ? " offends" : " offend");
    return judged.violations > 0 ? "the site as a whole offends" : "none offends";
}

std::string verdictText(const JudgedRule& judged) {
    switch (judged.verdict) {
    case JudgedRule::Verdict::NoEvaluator:
        return "no evaluator knows this rule";
    case JudgedRule::Verdict::NothingToJudge:
        return judged.found == 0
                   ? "nothing to judge"
                   : "nothing to judge: " + std::to_string(judged.found) + " found, nothing to compare with";
    case JudgedRule::Verdict::Judged:
        break;
    }
    if (judged.rule.type == QLatin1String("without"))
        return judged.violations > 0 ? "looked for, missing" : "looked for, present";
    return std::to_string(judged.found) + " found, " + offendersText(judged);
}

} // namespace

std::string judgementText(const JudgedRule& judged) {
    return verdictText(judged) + (judged.note.empty() ? "" : " (" + judged.note + ")");
}
