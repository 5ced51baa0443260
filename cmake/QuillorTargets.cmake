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
if(QUILLOR_SANITIZE)
    target_compile_options(quillor_options INTERFACE -fsanitize=address,undefined
                           -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillor_options INTERFACE -fsanitize=address,undefined)
endif()

# The version for whoever shows it: "config/version.h", from the one number in
# the project's CMakeLists.txt.
configure_file(${CMAKE_CURRENT_LIST_DIR}/version.h.in ${PROJECT_BINARY_DIR}/config/version.h @ONLY)
target_include_directories(quillor_options INTERFACE ${PROJECT_BINARY_DIR})

# quillor_library(NAME [DEPENDS library...] [SOURCES file...]): the static library of
# the current folder, from the named files or from all of its .cpp files.
function(quillor_library name)
    cmake_parse_arguments(ARG "" "" "DEPENDS;SOURCES" ${ARGN})
    if(NOT ARG_SOURCES)
        file(GLOB ARG_SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE quillor_options)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
endfunction()
