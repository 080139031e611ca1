# Most of the time of a build goes into the toolkit's headers, again for every file.
# Compiling files in groups takes a third of it, but one changed file compiles its
# group again. So only what builds everything once does that: releases and `./check`.

option(ORVT_GROUPED_SOURCES "Compile files in groups" OFF)
if(ORVT_GROUPED_SOURCES)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

# The .cpp files of a target of this folder, those with definitions of their own
# excepted. Files with a local name in common are in different groups.
function(orvt_group_sources target)
    if(NOT ORVT_GROUPED_SOURCES)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    execute_process(
        COMMAND ${Python3_EXECUTABLE} -I ${PROJECT_SOURCE_DIR}/tools/together.py 12 ${sources}
        WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}
        OUTPUT_VARIABLE lines
        OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" lines "${lines}")
    set(number 0)
    foreach(line IN LISTS lines)
        string(REPLACE "|" ";" members "${line}")
        set_source_files_properties(${members} PROPERTIES UNITY_GROUP ${target}_${number})
        math(EXPR number "${number} + 1")
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL EXECUTABLE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # To gcc, a test's file in a group is a header, and what it keeps to itself a risk.
        target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    endif()
endfunction()
