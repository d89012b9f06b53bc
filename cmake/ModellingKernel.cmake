# Open CASCADE, a second opinion in tests and a peer in benchmarks where it is installed (on Debian
# libocct-modeling-algorithms-dev, libocct-visualization-dev and libtbb-dev). Not under sanitizers, which would report
# leaks of its own.
if(NOT FIRECHECK_SANITIZE)
    find_package(OpenCASCADE QUIET)
    find_library(OCCT_TBB tbb)
endif()
if(OpenCASCADE_FOUND AND OCCT_TBB)
    add_library(kernel_solids STATIC bench/geometry/kernel_solids.cpp)
    target_include_directories(kernel_solids PUBLIC bench/geometry tests/geometry)
    target_include_directories(kernel_solids SYSTEM PUBLIC ${OpenCASCADE_INCLUDE_DIR})
    target_link_libraries(kernel_solids PRIVATE firecheck_settings PUBLIC ReferenceHost TKPrim TKTopAlgo)
endif()
