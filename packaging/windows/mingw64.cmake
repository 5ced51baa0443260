# CMake toolchain file: builds 64-bit Windows programs on Linux with MinGW-w64
# (Debian: g++-mingw-w64-x86-64-posix). The posix variant has std::thread and
# std::mutex; the win32 variant lacks them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Qt for Windows, as build-qt.sh makes it: the folder that QUILLOR_WINDOWS_QT
# names, or the newest in the cache. Its moc and rcc are the build machine's own.
set(quillor_qt "$ENV{QUILLOR_WINDOWS_QT}")
if(NOT quillor_qt)
    set(quillor_cache "$ENV{XDG_CACHE_HOME}")
    if(NOT quillor_cache)
        set(quillor_cache "$ENV{HOME}/.cache")
    endif()
    file(GLOB quillor_found "${quillor_cache}/quillor/qt-windows-*/.complete")
    if(quillor_found)
        list(SORT quillor_found COMPARE NATURAL ORDER DESCENDING)
        list(GET quillor_found 0 quillor_qt)
        cmake_path(GET quillor_qt PARENT_PATH quillor_qt)
    endif()
endif()

# Libraries and headers of the build machine must never be found by accident.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
if(quillor_qt)
    list(PREPEND CMAKE_FIND_ROOT_PATH "${quillor_qt}")
    set(QT_HOST_PATH /usr CACHE PATH "The build machine's own Qt")
    file(GLOB quillor_host_cmake /usr/lib/*-linux-gnu/cmake/Qt6HostInfo)
    cmake_path(GET quillor_host_cmake PARENT_PATH quillor_host_cmake)
    set(QT_HOST_PATH_CMAKE_DIR "${quillor_host_cmake}" CACHE PATH "Its CMake packages")
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's own libraries go into the program: nothing to ship beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s -Wl,--gc-sections")
