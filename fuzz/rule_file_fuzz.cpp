// Any bytes as a rule file: reading must survive them and file each rule under its key.

#include "RuleFileInPlace.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const RuleFileInPlace ruleFile;
    const auto rules =
        ruleFile.rulesOf(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    for (auto entry = rules.cbegin(); entry != rules.cend(); ++entry) {
        require(!entry->empty(), "an entry has rules");
        for (const NuxStandardCheckRule& rule : *entry) {
            const bool isAbsence = rule.type == QLatin1String("without");
            require(entry.key() == (isAbsence ? rule.elementType + rule.propertyType : rule.name),
                    "rule key");
        }
    }
    return 0;
}
