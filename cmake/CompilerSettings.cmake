# Flags for the project's own targets; linked by each of them, never exported.
add_library(firecheck_settings INTERFACE)
target_compile_options(firecheck_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                       -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
if(FIRECHECK_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(firecheck_settings INTERFACE ${sanitizers})
    target_link_options(firecheck_settings INTERFACE ${sanitizers})
endif()
if(FIRECHECK_BUILD_FUZZERS)
    target_compile_options(firecheck_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
