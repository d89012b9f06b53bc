// Any bytes as a rule file: the store must survive them and file each rule under its key.

#include "base/rooted_file_name.h"
#include "require.h"
#include "rules_config/NUXRuleConfigFile.h"

#include <QFile>
#include <QTemporaryDir>

struct RuleStoreAccess {
    static NUXRuleConfigFile load() { return NUXRuleConfigFile(); }
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir root;
    setDriveRoot(root.path());
    QFile file(root.filePath("FireStandardCheck.xml"));
    require(file.open(QIODevice::WriteOnly), "the file can be written");
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();

    const NUXRuleConfigFile store = RuleStoreAccess::load();
    const auto& rules = store.getAllRuleMap();
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
