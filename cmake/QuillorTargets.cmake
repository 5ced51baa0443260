# How every library of the project is built.

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_EXTENSIONS OFF)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release or RelWithDebInfo" FORCE)
endif()

# What all of our own code is compiled with; third-party code is not.
add_library(quillor_options INTERFACE)
target_compile_features(quillor_options INTERFACE cxx_std_20)
target_include_directories(quillor_options INTERFACE ${PROJECT_SOURCE_DIR})
if(MSVC)
    target_compile_options(quillor_options INTERFACE /W4 /utf-8 $<$<BOOL:${QUILLOR_WERROR}>:/WX>)
else()
    target_compile_options(quillor_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                           -Wnon-virtual-dtor $<$<BOOL:${QUILLOR_WERROR}>:-Werror>)
    # GCC 12 and 13 see overlapping copies in inlined std::basic_string assignments
    # that cannot be (GCC bug 105651).
    target_compile_options(quillor_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endif()
if(UNIX AND NOT APPLE AND NOT EMSCRIPTEN)
    # What a library has and the program never calls stays out of it.
    target_compile_options(quillor_options INTERFACE -ffunction-sections -fdata-sections)
    target_link_options(quillor_options INTERFACE -Wl,--gc-sections)
endif()
if(QUILLOR_SANITIZE)
    target_compile_options(quillor_options INTERFACE -fsanitize=${QUILLOR_SANITIZERS}
                           -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillor_options INTERFACE -fsanitize=${QUILLOR_SANITIZERS})
endif()
if(QUILLOR_FUZZ)
    target_compile_options(quillor_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(QUILLOR_ASSERTIONS)
    # Indices, iterators and optionals of the standard library are checked.
    target_compile_definitions(quillor_options INTERFACE _GLIBCXX_ASSERTIONS)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Beside the checks GCC 12 and 13 see overruns that cannot be in inlined
        # std::basic_string operations (GCC bug 105329).
        target_compile_options(quillor_options INTERFACE -Wno-array-bounds
                               -Wno-stringop-overflow -Wno-stringop-overread)
    endif()
endif()

# The version for whoever shows it: "config/version.h", from the one number in
# the project's CMakeLists.txt.
configure_file(${CMAKE_CURRENT_LIST_DIR}/version.h.in ${PROJECT_BINARY_DIR}/config/version.h @ONLY)
target_include_directories(quillor_options INTERFACE ${PROJECT_BINARY_DIR})

# What the rules, and what the shell, include most, for quillor_precompile.
set(QUILLOR_STANDARD_HEADERS <algorithm> <array> <cmath> <cstdint> <filesystem> <fstream>
    <functional> <map> <memory> <optional> <set> <span> <stdexcept> <string> <string_view>
    <utility> <variant> <vector>)
set(QUILLOR_QT_HEADERS <QApplication> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow>
    <QPainter> <QPushButton> <QScreen> <QString> <QTimer> <QUrl>)

# quillor_precompile(NAME header...): parses these once for all files of a target.
# quillor_precompile(NAME REUSE other): takes what another target has parsed with the
# same options. Headers from outside only: ours change while they are worked on.
function(quillor_precompile name)
    cmake_parse_arguments(ARG "" "REUSE" "" ${ARGN})
    if(NOT QUILLOR_PRECOMPILE)
        return()
    elseif(ARG_REUSE)
        target_precompile_headers(${name} REUSE_FROM ${ARG_REUSE})
    else()
        target_precompile_headers(${name} PRIVATE ${ARG_UNPARSED_ARGUMENTS})
    endif()
endfunction()

# quillor_library(NAME [SMALL] [DEPENDS library...] [SOURCES file...] [PRECOMPILE header...]):
# the static library of the current folder, from the named files or from all of its
# .cpp files. Without PRECOMPILE it takes what quillor_core has precompiled; NOTHING
# is for those whose options are different. SMALL is for those whose own speed nobody feels:
# a released program has them a third smaller.
function(quillor_library name)
    cmake_parse_arguments(ARG "SMALL" "" "DEPENDS;SOURCES;PRECOMPILE" ${ARGN})
    if(NOT ARG_SOURCES)
        file(GLOB ARG_SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    endif()
    if(NOT ARG_PRECOMPILE)
        set(ARG_PRECOMPILE REUSE quillor_core)
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE quillor_options)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    if(ARG_SMALL AND NOT MSVC)
        target_compile_options(${name} PRIVATE
                               $<$<NOT:$<CONFIG:Debug,RelWithDebInfo,MinSizeRel>>:-Os>)
    endif()
    if(NOT ARG_PRECOMPILE STREQUAL "NOTHING")
        quillor_precompile(${name} ${ARG_PRECOMPILE})
    endif()
endfunction()
