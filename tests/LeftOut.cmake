# The names of left_out_on_windows.txt, the reasons cut off; none on other systems.
set(orvt_left_out)
if(WIN32)
    set(orvt_left_out_file ${CMAKE_CURRENT_LIST_DIR}/left_out_on_windows.txt)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${orvt_left_out_file})
    file(STRINGS ${orvt_left_out_file} orvt_left_out REGEX "^[^# ]")
    list(TRANSFORM orvt_left_out REPLACE "[ ].*" "")
endif()

# Takes from the list of files, which lie in the folder below tests/, those left out.
function(orvt_leave_out variable folder)
    set(kept)
    foreach(file IN LISTS ${variable})
        if(NOT "${folder}${file}" IN_LIST orvt_left_out)
            list(APPEND kept "${file}")
        endif()
    endforeach()
    set(${variable} ${kept} PARENT_SCOPE)
endfunction()
