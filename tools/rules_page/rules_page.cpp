#include "rules_page/rules_page.h"

#include "rules_page/case_plan.h"
#include "rules_page/family_section.h"
#include "rules_page/markdown.h"

#include <algorithm>

namespace firecheck {

namespace {

const char* const kIntroduction =
    "# Rules by example\n\n"
    "`rules-page cases docs` writes this page from the case files, which are also tests: "
    "what the tables say is what the checker finds. [rule-names.md](rule-names.md) lists every rule name, "
    "[site-classes.md](site-classes.md) the classes and keys of the objects.\n\n"
    "Each family has a base site, drawn and listed below its title. A case is that site, changed as its "
    "sentence says, and one rule; \"#11\" is the object of that handle. A word in *italics* stands for each "
    "of the values listed after the sentence. The second drawing of a family is a case that is found; its "
    "red numbers count the violations.\n\n";

const Case* firstDrawnViolation(const CaseFile& file) {
    const auto found = std::find_if(file.cases.begin(), file.cases.end(), [](const Case& one) {
        return !one.violations.empty() && one.violations.front().element != 0;
    });
    return found == file.cases.end() ? nullptr : &*found;
}

/// Adds the plans of a family to `page`, and answers the table that shows them.
std::string plans(const NamedCaseFile& file, std::vector<PageFile>& page) {
    const std::string path = "rules/" + file.name;
    std::vector<std::string> titles;
    std::vector<std::string> images;
    const auto add = [&](const std::string& title, const std::string& name, std::string svg) {
        if (svg.empty())
            return;
        titles.push_back(markdownText(title));
        images.push_back("![" + markdownText(title) + "](" + name + ")");
        page.push_back({name, std::move(svg)});
    };
    add("The base site", path + ".svg", basePlan(file.content));
    if (const Case* found = firstDrawnViolation(file.content))
        add("Found: " + found->sentence, path + "-found.svg", casePlan(*found));
    return tableHead(titles) + tableLine(images);
}

} // namespace

std::vector<PageFile> rulesPage(const std::vector<NamedCaseFile>& files) {
    std::vector<PageFile> page{{"rules.md", kIntroduction}};
    std::string sections;
    for (const NamedCaseFile& file : files) {
        const std::string& title = file.content.title;
        page.front().content += "- [" + markdownText(title) + "](#" + anchorOf(title) + ")\n";
        const std::string pictures = plans(file, page);
        sections += familySection(file.content, pictures);
    }
    page.front().content += sections;
    return page;
}

} // namespace firecheck
