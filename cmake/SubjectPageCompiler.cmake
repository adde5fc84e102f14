# Language level, warnings and sanitizers for every target of the project.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # The sloppiness lets precompiled headers be cached too.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -fpch-preprocess)
if(SUBJECTPAGE_WERROR)
    add_compile_options(-Werror)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_MESSAGELOGCONTEXT)

if(SUBJECTPAGE_SANITIZE)
    # -O1 keeps the sanitized suite quick; frame pointers keep its stacks readable.
    add_compile_options(-fsanitize=${SUBJECTPAGE_SANITIZE} -fno-omit-frame-pointer -O1 -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${SUBJECTPAGE_SANITIZE})
endif()

find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM AND NOT SUBJECTPAGE_SANITIZE)
    add_link_options(-fuse-ld=mold)
endif()

# subjectpage_pch(<target> <header>...)
# Precompiles the given headers for one target; the toolkit's headers are most of the build time.
function(subjectpage_pch target)
    target_precompile_headers(${target} PRIVATE ${ARGN})
endfunction()
