# What makes the program one of Windows' own: icon, version record, sounds and
# manifest inside it. Expects the targets quillor and quillor_shell.
set_target_properties(quillor PROPERTIES OUTPUT_NAME Quillor)
target_link_libraries(quillor_shell PRIVATE shell32 ole32)

# The version record wants its numbers with commas.
string(REPLACE "." "," commas ${PROJECT_VERSION})
file(CONFIGURE OUTPUT quillor_version.h @ONLY CONTENT
"#include \"config/version.h\"
#define QUILLOR_VERSION_NUMBERS @commas@,0
")
set_source_files_properties(system/quillor.rc PROPERTIES OBJECT_DEPENDS
    "${PROJECT_SOURCE_DIR}/resources/icon/quillor.ico;${carried_sounds}")
target_include_directories(quillor PRIVATE ${PROJECT_SOURCE_DIR}/resources
                           ${CMAKE_CURRENT_BINARY_DIR} ${PROJECT_BINARY_DIR})
target_sources(quillor PRIVATE system/quillor.rc)

# Microsoft's linker merges a manifest with its own; other linkers know of none.
if(MSVC)
    target_sources(quillor PRIVATE system/quillor.manifest)
else()
    target_sources(quillor PRIVATE system/manifest.rc)
endif()

# A Qt that is linked in whole brings only what is named here.
qt_import_plugins(quillor
    INCLUDE Qt6::QWindowsIntegrationPlugin Qt6::QWindowsVistaStylePlugin Qt6::QJpegPlugin
            Qt6::QICOPlugin
    EXCLUDE_BY_TYPE imageformats)
