#include "rules/rule_families.h"

namespace {

struct Subject {
    std::string name; ///< as part of a rule name
    std::string elementType;
    std::string text;
};

// "Eletrical" is deliberate, and so is that only the names of workshops have it.
const std::vector<Subject> kYards = {
    {"WoodYard", "NUX_EDO_TYPE_WOODYARD", "wood yard"},
    {"TemplateYard", "NUX_EDO_TYPE_TEMPLATEYARD", "formwork yard"},
    {"ElectricalMechanicalYard", "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD", "electrical and mechanical yard"},
};
const std::vector<Subject> kWorkshops = {
    {"WoodFactory", "NUX_ELEMENT_TYPE_OPENHOUSE", "open shed of use 2"},
    {"WoodWorkingFactory", "NUX_ELEMENT_TYPE_OPENHOUSE", "open shed of use 3"},
    {"EletricalMechanicalFactory", "NUX_ELEMENT_TYPE_OPENHOUSE", "open shed of use 4"},
};
const std::vector<Subject> kHouses = {
    {"PrefabHouse", "NUX_ELEMENT_TYPE_PREFABHOUSE", "prefab house, stairs included,"},
    {"CloseHouse", "NUX_ELEMENT_TYPE_CLOSEHOUSE", "closed house"},
    {"TransformerSubstation", "NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION", "transformer substation"},
};

RuleName wireRule(const Subject& area, const std::string& judges, const std::string& peculiarity) {
    return {"Position_WireTo" + area.name,
            "position",
            "NUX_EDO_TYPE_SERVICECABLE",
            area.elementType,
            {},
            judges,
            "In plan; a cable that reaches down to the ground is not judged.",
            peculiarity};
}

RuleName boxRule(const Subject& subject, const std::string& peculiarity) {
    return {"Position_FireExtinguisherBoxTo" + subject.name,
            "position",
            subject.elementType,
            "NUX_EDO_TYPE_FIREEXTINGUISHERBOX",
            {"ElementType"},
            "Each " + subject.text + " has a fire extinguisher box close by.",
            "The nearest box more than 0 and at most 3000 mm away.",
            peculiarity};
}

} // namespace

std::vector<RuleName> positionRuleNames() {
    std::vector<RuleName> rules = {
        {"Position_FireRoad",
         "position",
         "NUX_EDO_TYPE_ROAD",
         "",
         {},
         "Nothing reaches into the space above a fire road.",
         "4000 mm high; touching counts.",
         "Only what the last object of the model space does is reported; roads, doors, washing pools, "
         "vehicles and "
         "construction machines are allowed."},
        {"Position_DoorToDoor",
         "position",
         "NUX_EDO_TYPE_DOOR",
         "NUX_EDO_TYPE_DOOR",
         {},
         "No wall has two doors, and no two walls with a door each meet at more than a right angle.",
         "Wall ends at most 100 mm apart meet.",
         "Walls that meet at less than a right angle are reported as well when they turn to one side; of two "
         "doors or more on one wall the first two are named."},
    };
    for (const Subject& yard : kYards)
        rules.push_back(
            wireRule(yard, "No overhead cable runs over a wood, formwork, or electrical and mechanical yard.",
                     "All three kinds of yard are judged, whichever the name says."));
    for (const Subject& workshop : kWorkshops)
        rules.push_back(wireRule(workshop,
                                 "No overhead cable runs over an " + workshop.text + ", nor over a yard.",
                                 "Wood, formwork, and electrical and mechanical yards are judged as well."));

    const std::string earlyEnd =
        "With boxes on the site, the first element without a body that can be measured ends "
        "the rule, and those after it are not looked at";
    for (const auto* subjects : {&kHouses, &kYards})
        for (const Subject& subject : *subjects)
            rules.push_back(boxRule(subject, earlyEnd + "."));
    for (const Subject& workshop : kWorkshops)
        rules.push_back(boxRule(workshop, earlyEnd + "; a shed of another use is such an element."));
    return rules;
}
