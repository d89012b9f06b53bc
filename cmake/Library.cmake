# The check library twice: a shared one that exports its five public types, and one, static unless asked otherwise, that
# explains what it found as well and hides nothing, for hosts that report, the checker and the tests.
include(GenerateExportHeader)

set(library_sources
    engine/NUXCheck.cpp
    engine/NUXRule.cpp
    engine/NuxFireStandardCheck.cpp
    evaluators/CheckObserver.cpp
    evaluators/distant/DistanceCondition.cpp
    evaluators/distant/NUXRelElementTypeDistantRule.cpp
    evaluators/distant/pair_distance.cpp
    evaluators/distant/spacing_walk.cpp
    evaluators/position/NUXRelElementTypePositionRule.cpp
    evaluators/position/door_to_door.cpp
    evaluators/position/fire_extinguisher_box.cpp
    evaluators/position/fire_road_headroom.cpp
    evaluators/position/headroom_bodies.cpp
    evaluators/position/overhead_cable.cpp
    evaluators/rule_catalogue.cpp
    evaluators/self/NUXElementTypeRule.cpp
    evaluators/self/prefab_house.cpp
    evaluators/self/road_network.cpp
    evaluators/without/NUXWithoutElementTypeRule.cpp
    rules_config/NUXRuleConfigFile.cpp
    rules_config/NuxStandardCheckRule.cpp
    rules_config/read_rules.cpp
    rules_config/reader_bounds_qt${FIRECHECK_QT}.cpp
    rules_config/rule_file_bounds.cpp
    site/IdentifierField.cpp
    site/bodies.cpp
    site/current_model_space.cpp
    site/min_body_distance.cpp
    site/outlines.cpp)

set(explaining_sources
    explain/CheckRecorder.cpp
    explain/CheckReport.cpp
    explain/element_noun.cpp
    explain/explain_check.cpp
    explain/judged_rules.cpp
    explain/measure_of.cpp
    explain/measure_text.cpp
    explain/number_word.cpp
    explain/rule_text_fields.cpp
    explain/rule_wording.cpp
    explain/sentence.cpp
    explain/unjudged_reason.cpp)

get_filename_component(library_root ${CMAKE_CURRENT_LIST_DIR}/.. ABSOLUTE)
list(TRANSFORM library_sources PREPEND ${library_root}/)
list(TRANSFORM explaining_sources PREPEND ${library_root}/)

add_library(FireStandardCheck SHARED ${library_sources})
add_library(FireStandardCheck::FireStandardCheck ALIAS FireStandardCheck)
add_library(FireStandardCheckExplained ${FIRECHECK_EXPLAINED_TYPE} ${library_sources} ${explaining_sources})
add_library(FireStandardCheck::FireStandardCheckExplained ALIAS FireStandardCheckExplained)

generate_export_header(FireStandardCheck BASE_NAME firestandardcheck
                       EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/firestandardcheck_export.h)
set_target_properties(FireStandardCheck PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
target_compile_definitions(FireStandardCheckExplained PUBLIC FIRESTANDARDCHECK_STATIC_DEFINE)

foreach(library FireStandardCheck FireStandardCheckExplained)
    target_include_directories(${library} PUBLIC
        $<BUILD_INTERFACE:${library_root}> $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/firestandardcheck>)
    target_link_libraries(${library}
        PUBLIC Qt${FIRECHECK_QT}::Core
        PRIVATE Qt${FIRECHECK_QT}::Xml ${FIRECHECK_HOST_TARGET} $<BUILD_INTERFACE:firecheck_settings>)
endforeach()
# Its headers speak of host types.
target_link_libraries(FireStandardCheckExplained PUBLIC ${FIRECHECK_HOST_TARGET})
