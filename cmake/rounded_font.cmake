# Finds the free rounded font that goes with the program, for systems that lack
# Arial Rounded MT Bold. Sets QUILLOR_ROUNDED_FONTS, unless it names files already.
# The packages are those that scripts/packages.sh names.
if(NOT QUILLOR_ROUNDED_FONTS)
    file(GLOB rounded_fonts
         /usr/share/fonts/truetype/quicksand/Quicksand-Bold.ttf                # Debian, Ubuntu
         /usr/share/fonts/aajohan-comfortaa-fonts/Comfortaa-Bold.*             # Fedora
         /usr/share/fonts/*/Nunito-Bold.* /usr/share/fonts/*/Nunito?wght?.ttf  # Arch
         $ENV{HOME}/Library/Fonts/Quicksand*.ttf)                              # macOS
    if(rounded_fonts)
        list(GET rounded_fonts 0 rounded_fonts)
    endif()
    set(QUILLOR_ROUNDED_FONTS "${rounded_fonts}" CACHE STRING
        "Files of the rounded font for fonts/" FORCE)
endif()

set(missing_fonts ${QUILLOR_ROUNDED_FONTS})
foreach(font IN LISTS QUILLOR_ROUNDED_FONTS)
    if(EXISTS "${font}")
        list(REMOVE_ITEM missing_fonts "${font}")
    endif()
endforeach()
if(missing_fonts OR NOT QUILLOR_ROUNDED_FONTS)
    message(WARNING
        "No rounded font was found, so the game will stop at its start and ask for one "
        "where Arial Rounded MT Bold is not installed. Install one and configure anew:\n"
        "  Debian, Ubuntu: fonts-quicksand\n"
        "  Fedora:         aajohan-comfortaa-fonts\n"
        "  Arch:           ttf-nunito\n"
        "  macOS:          font-quicksand (brew install --cask)\n"
        "or name a file of your own: -DQUILLOR_ROUNDED_FONTS=/path/to/font.ttf")
endif()
