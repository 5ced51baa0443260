# The releases in CHANGELOG.md, in the forms that packages want.
#
# quillor_releases(FILE) sets
#   QUILLOR_RELEASES      AppStream's <release> elements, newest first
#   QUILLOR_DEBIAN_LOG    debian/changelog
#   QUILLOR_RELEASE_DATE  of the newest, YYYY-MM-DD
# and fails where the newest is not the version of the project, or a line is of no form.
#
# cmake -DOUTPUT=FILE -P releases.cmake   writes debian/changelog there.
function(quillor_releases file)
    file(STRINGS ${file} lines ENCODING UTF-8)
    set(releases "")
    set(log "")
    set(date "")
    set(closing "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^## ([0-9.]+) \\(([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])\\)$")
            set(version ${CMAKE_MATCH_1})
            set(day ${CMAKE_MATCH_2})
            if(NOT date)
                set(date ${day})
                set(newest ${version})
            endif()
            string(APPEND releases "${closing_release}    <release version=\"${version}\" date=\"${day}\">\n"
                   "      <description>\n        <ul>\n")
            set(closing_release "        </ul>\n      </description>\n    </release>\n")
            quillor_debian_date(${day} signed)
            string(APPEND log "${closing_log}quillor (${version}) unstable; urgency=medium\n\n")
            set(closing_log "\n -- Quillor developers <developers@quillor.example>  ${signed}\n\n")
        elseif(line MATCHES "^- (.+)$" AND date)
            set(change ${CMAKE_MATCH_1})
            quillor_wrapped("${change}" wrapped)
            string(APPEND log "  * ${wrapped}\n")
            string(REPLACE "&" "&amp;" change "${change}")
            string(REPLACE "<" "&lt;" change "${change}")
            string(APPEND releases "          <li>${change}</li>\n")
        elseif(line MATCHES "^  (.+)$" AND date)
            message(FATAL_ERROR "${file}: a change takes one line: ${line}")
        elseif(date AND NOT line STREQUAL "")
            message(FATAL_ERROR "${file}: neither a release nor a change: ${line}")
        endif()
    endforeach()
    if(DEFINED PROJECT_VERSION AND NOT newest STREQUAL PROJECT_VERSION)
        message(FATAL_ERROR "${file}: the newest release is not ${PROJECT_VERSION}")
    endif()
    set(QUILLOR_RELEASES "${releases}${closing_release}" PARENT_SCOPE)
    set(QUILLOR_DEBIAN_LOG "${log}${closing_log}" PARENT_SCOPE)
    set(QUILLOR_RELEASE_DATE ${date} PARENT_SCOPE)
endfunction()

# Broken at spaces into lines of at most 72, all but the first indented below it.
function(quillor_wrapped change result)
    set(lines "")
    set(line "")
    string(REPLACE ";" "\\;" words "${change}")
    string(REPLACE " " ";" words "${words}")
    foreach(word IN LISTS words)
        string(LENGTH "${line} ${word}" length)
        if(line AND length GREATER 72)
            string(APPEND lines "${line}\n    ")
            set(line "${word}")
        elseif(line)
            string(APPEND line " ${word}")
        else()
            set(line "${word}")
        endif()
    endforeach()
    set(${result} "${lines}${line}" PARENT_SCOPE)
endfunction()

# As Debian signs: noon, in the form of mail.
function(quillor_debian_date day result)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -u -R -d "${day} 12:00"
                    OUTPUT_VARIABLE signed OUTPUT_STRIP_TRAILING_WHITESPACE
                    ERROR_QUIET)
    set(${result} ${signed} PARENT_SCOPE)
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    quillor_releases(${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)
    file(WRITE ${OUTPUT} "${QUILLOR_DEBIAN_LOG}")
endif()
