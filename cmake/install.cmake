# Where everything goes: into one folder that is the player's own, or over the folders
# that a system has for programs, data and icons.
if(WIN32)
    set(QUILLOR_PORTABLE ON)
endif()
set(QUILLOR_ID org.quillor.quillor)
set(share ${CMAKE_INSTALL_DATADIR})
set(resources ${PROJECT_SOURCE_DIR}/resources)

# Fonts, packs and manual go below QUILLOR_SHARED_DIR, what the program loads while it runs
# into QUILLOR_MODULES_DIR.
if(QUILLOR_PORTABLE)
    set(QUILLOR_PROGRAM_DIR .)
    set(QUILLOR_MODULES_DIR .)
    set(QUILLOR_SHARED_DIR .)
else()
    set(QUILLOR_PROGRAM_DIR ${CMAKE_INSTALL_BINDIR})
    set(QUILLOR_MODULES_DIR ${CMAKE_INSTALL_LIBDIR}/quillor)
    set(QUILLOR_SHARED_DIR ${share}/quillor)
endif()

# Made whatever is installed, so that it can be checked.
set(QUILLOR_HOMEPAGE https://quillor.example CACHE STRING
    "Where the project is at home; AppStream's pictures are in pictures/ there")
include(${CMAKE_CURRENT_LIST_DIR}/releases.cmake)
quillor_releases(${PROJECT_SOURCE_DIR}/CHANGELOG.md)

set(linux ${PROJECT_SOURCE_DIR}/packaging/linux)
set(made ${PROJECT_BINARY_DIR}/linux)
configure_file(${linux}/${QUILLOR_ID}.metainfo.xml.in ${made}/${QUILLOR_ID}.metainfo.xml @ONLY)
configure_file(${linux}/quillor.6 ${made}/quillor.6 @ONLY)
configure_file(${linux}/quillor.es.6 ${made}/quillor.es.6 @ONLY)
if(QUILLOR_PORTABLE)
    return()
endif()

foreach(size 16 24 32 48 64 128 256 512)
    install(FILES ${resources}/icon/quillor-${size}.png RENAME ${QUILLOR_ID}.png
            DESTINATION ${share}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${resources}/icon/quillor.svg RENAME ${QUILLOR_ID}.svg
        DESTINATION ${share}/icons/hicolor/scalable/apps)
install(FILES ${made}/${QUILLOR_ID}.metainfo.xml DESTINATION ${share}/metainfo)
install(FILES ${linux}/${QUILLOR_ID}.desktop DESTINATION ${share}/applications)
install(FILES ${made}/quillor.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${made}/quillor.es.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/es/man6 RENAME quillor.6)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md
        DESTINATION ${share}/doc/quillor)
