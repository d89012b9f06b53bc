# What `cmake --install` lays down, the CMake and pkg-config files by which others find it, and the Debian package.
include(CMakePackageConfigHelpers)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/FireStandardCheck)
set(header_directory ${CMAKE_INSTALL_INCLUDEDIR}/firestandardcheck)

install(TARGETS FireStandardCheck FireStandardCheckExplained ReferenceHost EXPORT FireStandardCheckTargets)
install(EXPORT FireStandardCheckTargets NAMESPACE FireStandardCheck:: DESTINATION ${package_directory})

foreach(header
        engine/NUXCheck.h
        engine/NUXRule.h
        engine/NuxFireStandardCheck.h
        rules_config/NUXRuleConfigFile.h
        rules_config/NuxStandardCheckRule.h
        # Of the library that explains alone:
        evaluators/CheckObserver.h
        explain/CheckReport.h
        explain/Finding.h
        explain/explain_check.h
        rules_config/RuleFileStatus.h
        site/min_body_distance.h
        site/outlines.h)
    get_filename_component(directory ${header} DIRECTORY)
    install(FILES ${header} DESTINATION ${header_directory}/${directory})
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/include/firestandardcheck_export.h DESTINATION ${header_directory})
# The host's public face; the inner rooms of its geometry stay inside.
install(DIRECTORY host/ DESTINATION ${header_directory}/host FILES_MATCHING PATTERN "*.h"
        PATTERN "geometry/plan" EXCLUDE PATTERN "geometry/solids" EXCLUDE PATTERN "geometry/network" EXCLUDE)
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/firestandardcheck PATTERN "*.ts" EXCLUDE)
install(FILES docs/firecheck.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)

configure_package_config_file(cmake/FireStandardCheckConfig.cmake.in
    ${PROJECT_BINARY_DIR}/FireStandardCheckConfig.cmake INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FireStandardCheckConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FireStandardCheckConfig.cmake
              ${PROJECT_BINARY_DIR}/FireStandardCheckConfigVersion.cmake
        DESTINATION ${package_directory})

# Relative, so that the package can be installed anywhere.
file(RELATIVE_PATH prefix_from_here /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(package firestandardcheck firestandardcheck-explained)
    configure_file(cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME firestandardcheck)
set(CPACK_PACKAGE_CONTACT "${PROJECT_NAME} maintainers <maintainers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Checks construction-site layouts against fire-safety rules")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_STRIP_FILES ON)
include(CPack)
