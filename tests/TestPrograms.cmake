# How tests are told to ctest: by the name of a widget test's class or of a core
# test's suite, whatever program holds it.

# Every test is run by this script, which sees to its environment.
set(run_test ${Python3_EXECUTABLE} -I -S ${CMAKE_CURRENT_LIST_DIR}/support/run_test.py)
if(orvt_left_out)
    list(APPEND run_test --left-out ${orvt_left_out_file})
endif()
# What is built for another system runs in its emulator; random tests take a part of their
# steps there.
set(emulator)
set(part_of_steps 1)
if(CMAKE_CROSSCOMPILING)
    set(emulator ${CMAKE_CROSSCOMPILING_EMULATOR})
    set(part_of_steps 10)
endif()
set(test_folders ${PROJECT_BINARY_DIR}/test_folders)
set(seconds_for_a_test 300)
set(seconds_under_sanitizers 1200)

# NAME [DISPLAY] [ENVIRONMENT NAME=VALUE...] COMMAND ...
function(orvt_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "DISPLAY" "" "ENVIRONMENT;COMMAND")
    set(options --name ${name} --folder ${test_folders}/${name}
        --set ORVT_TEST_PART=${part_of_steps})
    if(test_DISPLAY AND WIN32)
        if(name MATCHES "^System")
            list(APPEND options --set QT_QPA_PLATFORM=windows)
        else() # drags that follow the test's mouse, not the system's
            list(APPEND options --set QT_QPA_PLATFORM=minimal:enable_fonts
                --set QT_STYLE_OVERRIDE=fusion) # the system's needs its platform
        endif()
    elseif(test_DISPLAY)
        list(APPEND options --display)
    endif()
    foreach(setting IN LISTS test_ENVIRONMENT)
        list(APPEND options --set ${setting})
    endforeach()
    if(test_COMMAND MATCHES "^\\$<TARGET_FILE")
        list(PREPEND test_COMMAND ${emulator})
    endif()
    add_test(NAME ${name} COMMAND ${run_test} ${options} -- ${test_COMMAND})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${seconds_for_a_test}
        SKIP_REGULAR_EXPRESSION "^Left out")
endfunction()

# PROGRAM NAME [DISPLAY]: the widget test again, with what it tests under sanitizers.
function(orvt_add_sanitized_test program name)
    if(ORVT_SANITIZED_TESTS)
        orvt_add_test(${name}.sanitized ${ARGN}
            ENVIRONMENT ORVT_TEST_PART=4 QTEST_FUNCTION_TIMEOUT=${seconds_under_sanitizers}000
            COMMAND $<TARGET_FILE:${program}_sanitized> ${name})
        set_tests_properties(${name}.sanitized PROPERTIES
            TIMEOUT ${seconds_under_sanitizers})
    endif()
endfunction()

# What is laid out, drawn or dragged is tested in other places, too: another scale,
# style and country, whose numbers and letters differ.
set(large_screen ${CMAKE_CURRENT_LIST_DIR}/support/large_screen.json)
set(two_screens ${CMAKE_CURRENT_LIST_DIR}/support/two_screens.json)
set(locales_dir ${PROJECT_BINARY_DIR}/locales)
find_program(LOCALEDEF localedef)
file(MAKE_DIRECTORY ${locales_dir})
foreach(country IN ITEMS de_DE tr_TR)
    if(LOCALEDEF AND EXISTS /usr/share/i18n/locales/${country}
            AND NOT EXISTS ${locales_dir}/${country}.UTF-8)
        execute_process(COMMAND ${LOCALEDEF} --no-archive -i ${country} -f UTF-8
            ${locales_dir}/${country}.UTF-8)
    endif()
endforeach()

function(orvt_add_test_elsewhere name program)
    if(CMAKE_CROSSCOMPILING) # an emulator has this system's locales and no screens of ours
        return()
    endif()
    foreach(place IN ITEMS "150 windows tr_TR" "200 fusion de_DE")
        separate_arguments(place)
        list(GET place 0 percent)
        list(GET place 1 style)
        list(GET place 2 country)
        math(EXPR whole "${percent} / 100")
        math(EXPR rest "${percent} % 100")
        set(screen) # the offscreen platform's own, of 800 pixels, is small for these scales
        if(NOT ARGN)
            set(screen QT_QPA_PLATFORM=offscreen:configfile=${large_screen})
        endif()
        orvt_add_test(${name}.${percent}.${style}.${country} ${ARGN}
            ENVIRONMENT ${screen} QT_SCALE_FACTOR=${whole}.${rest} QT_STYLE_OVERRIDE=${style}
                LOCPATH=${locales_dir} LC_ALL=${country}.UTF-8
            COMMAND $<TARGET_FILE:${program}> ${name})
    endforeach()
endfunction()

# One program of several ...Test.cpp, each of which announces its class.
function(orvt_add_widget_tests program)
    add_executable(${program} ${ARGN})
    target_link_libraries(${program} PRIVATE widget_test_support orvt_inside)
    orvt_group_sources(${program})
    # Elsewhere QtTest's definitions, which name the folder, differ.
    if(CMAKE_CURRENT_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR/tests)
        orvt_precompiled_as(${program} widget_test_support)
    endif()
    orvt_sanitize_program_later(${program})
    list(FILTER ARGN INCLUDE REGEX "Test(Windows)?\\.cpp$")
    foreach(source IN LISTS ARGN)
        get_filename_component(name ${source} NAME_WE)
        string(REGEX REPLACE "Windows$" "" name ${name})
        set(display)
        if(name MATCHES "(Drag|^System[A-Z][a-z]+)Test$") # what the offscreen platform cannot do
            set(display DISPLAY)
        endif()
        set(screens)
        if(name MATCHES "^(Find|Table|Tree)MonkeyTest$") # whose windows change their screen
            set(screens ENVIRONMENT QT_QPA_PLATFORM=offscreen:configfile=${two_screens})
        endif()
        orvt_add_test(${name} ${display} ${screens}
            COMMAND $<TARGET_FILE:${program}> ${name})
        orvt_add_sanitized_test(${program} ${name} ${display})
        if(name MATCHES "(CaptionLine|Drag|Layout|Look|Widths|Window)Test$")
            orvt_add_test_elsewhere(${name} ${program} ${display})
        endif()
    endforeach()
endfunction()

# A program that has no more of the library than any host.
function(orvt_add_host_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE ORVTListview)
    orvt_add_test(${name} COMMAND $<TARGET_FILE:${name}>)
endfunction()

# The suites of a program of core tests, each a process of its own.
function(orvt_add_suites program)
    orvt_add_suites_of(${program} "" ${seconds_for_a_test} "^$" ${part_of_steps})
    if(ORVT_SANITIZED_TESTS AND NOT "PLAIN" IN_LIST ARGN)
        orvt_sanitize_program_later(${program})
        # Under a limit of memory there is no room for the sanitizers' own tables.
        orvt_add_suites_of(${program}_sanitized ".sanitized" ${seconds_under_sanitizers}
            "DeathTest$" 4)
    endif()
endfunction()

# ctest asks the program for them.
function(orvt_add_suites_of program behind seconds without part)
    set(launcher "\"${run_test};--set;ORVT_TEST_PART=${part}\"")
    string(REPLACE ";" "\" \"" launcher "${launcher}")
    list(JOIN emulator " " emulator_words)
    set(ask ${CMAKE_CURRENT_BINARY_DIR}/${program}_suites.cmake)
    file(CONFIGURE OUTPUT ${ask}.in CONTENT [[
if(NOT EXISTS "$<TARGET_FILE:@program@>")
    add_test("@program@_NOT_BUILT" "@program@_NOT_BUILT")
    return()
endif()
execute_process(COMMAND @emulator_words@ "$<TARGET_FILE:@program@>" --gtest_list_tests
    OUTPUT_VARIABLE lines
    COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" lines "${lines}")
string(REGEX MATCHALL "(^|\n)[^ \n]+\\." suites "${lines}")
foreach(suite IN LISTS suites)
    string(STRIP "${suite}" suite)
    string(REGEX REPLACE "\\.$" "" suite "${suite}")
    if("${suite}" MATCHES "@without@")
        continue()
    endif()
    string(REPLACE "/" "_" folder "${suite}")
    add_test("${suite}@behind@" @launcher@ --name "${suite}"
        --folder "@test_folders@/${folder}@behind@"
        -- @emulator_words@ "$<TARGET_FILE:@program@>" "--gtest_filter=${suite}.*")
    set_tests_properties("${suite}@behind@" PROPERTIES
        TIMEOUT @seconds@
        SKIP_REGULAR_EXPRESSION "^Left out")
endforeach()
]] @ONLY)
    file(GENERATE OUTPUT ${ask} INPUT ${ask}.in)
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${ask})
endfunction()
