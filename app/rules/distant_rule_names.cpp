#include "rules/rule_families.h"

namespace {

const char* const kOpenShed = "NUX_ELEMENT_TYPE_OPENHOUSE";

RuleName shedRule(const std::string& name, const std::string& elementType, const std::string& element,
                  const std::string& sheds, const std::string& peculiarity) {
    return {name,
            "distant",
            elementType,
            kOpenShed,
            attributesRead("distant"),
            "Each " + element + " keeps its distance from open sheds of " + sheds + ".",
            "",
            peculiarity};
}

/// `names` are those for the uses 2, 3 and 4.
std::vector<RuleName> workshopRules(const std::vector<std::string>& names, const std::string& elementType,
                                    const std::string& element) {
    const std::string otherUses = "Sheds of another use are passed over; ";
    return {
        shedRule(names[0], elementType, element, "use 2",
                 otherUses + "absence rules call use 2 TemplateFactory."),
        shedRule(names[1], elementType, element, "use 3",
                 otherUses + "absence rules call use 3 WoodFactory."),
        shedRule(names[2], elementType, element, "use 4",
                 otherUses + "the name has \"Eletrical\" for electrical."),
    };
}

std::vector<RuleName> boxRules() {
    const std::string box = "NUX_EDO_TYPE_FIREEXTINGUISHERBOX";
    std::vector<RuleName> rules;
    for (const char* workshop : {"WoodFactory", "WoodWorkingFactory", "EletricalMechanicalFactory"})
        rules.push_back(shedRule(
            "Distant_FireExtinguisherBoxTo" + std::string(workshop), box, "fire extinguisher box", "any use",
            "Boxes are 3-D models and count as 0 m away: a positive minimum reports every box "
            "against every open shed, a minimum of 0 none."));
    return rules;
}

} // namespace

std::vector<RuleName> distantRuleNames() {
    const std::string futureHouse = "NUX_ELEMENT_TYPE_FUTUREHOUSE";
    std::vector<RuleName> rules =
        workshopRules({"Distant_PrefabHouseToWoodFactory", "Distant_PrefabHouseToWoodWorkingFactory",
                       "Distant_PrefabHouseToEletricalMechanicalFactory"},
                      "NUX_ELEMENT_TYPE_PREFABHOUSE", "prefab house, stairs included,");
    const auto append = [&rules](const std::vector<RuleName>& more) {
        rules.insert(rules.end(), more.begin(), more.end());
    };
    // "Futureouse" is deliberate.
    append(workshopRules({"Distant_FutureouseToWoodFactory", "Distant_FutureHouseToWoodWorkingFactory",
                          "Distant_FutureHouseToEletricalMechanicalFactory"},
                         futureHouse, "building under construction"));
    append({shedRule("Distant_FutureHouseToOpenHouse", futureHouse, "building under construction",
                     "any use but 2, 3 and 4", "Sheds of the uses 2, 3 and 4 have names of their own.")});
    append(workshopRules({"Distant_TransformerSubstationToWoodFactory",
                          "Distant_TransformerSubstationToWoodWorkingFactory",
                          "Distant_TransformerSubstationToEletricalMechanicalFactory"},
                         "NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION", "transformer substation"));
    append(boxRules());
    return rules;
}
