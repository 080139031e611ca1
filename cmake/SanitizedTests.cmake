# The tests run a second time with the code of the libraries and of the workbench under
# the sanitizers of addresses and undefined behaviour. What is tested is compiled twice;
# the tests themselves are compiled once and linked twice.

option(ORVT_SANITIZED_TESTS "Run the tests under sanitizers, too" OFF)

set(orvt_sanitizers -fsanitize=address,undefined)

# NAMES with _sanitized behind each that has a sanitized one.
function(orvt_sanitized_names result)
    set(names)
    foreach(name IN LISTS ARGN)
        if(TARGET ${name}_sanitized)
            string(APPEND name _sanitized)
        endif()
        list(APPEND names ${name})
    endforeach()
    set(${result} ${names} PARENT_SCOPE)
endfunction()

# An object or static library's, in the folder of its files: what CMake knows of those
# holds for both.
function(orvt_sanitize_library library)
    if(NOT ORVT_SANITIZED_TESTS)
        return()
    endif()
    get_target_property(sources ${library} SOURCES)
    get_target_property(type ${library} TYPE)
    string(REPLACE _LIBRARY "" type ${type})
    add_library(${library}_sanitized ${type} ${sources})
    foreach(property IN ITEMS COMPILE_DEFINITIONS INCLUDE_DIRECTORIES LINK_LIBRARIES
            PRECOMPILE_HEADERS UNITY_BUILD UNITY_BUILD_MODE
            INTERFACE_INCLUDE_DIRECTORIES INTERFACE_LINK_LIBRARIES)
        get_target_property(value ${library} ${property})
        if(value)
            set_target_properties(${library}_sanitized PROPERTIES ${property} "${value}")
        endif()
    endforeach()
    # The toolkit's lists compare empty ones by memcmp() and null.
    target_compile_options(${library}_sanitized PRIVATE
        ${orvt_sanitizers} -fno-sanitize=nonnull-attribute
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
endfunction()

# That of an interface library whose sources are the objects of others.
function(orvt_sanitize_inside library)
    if(NOT ORVT_SANITIZED_TESTS)
        return()
    endif()
    get_target_property(objects ${library} INTERFACE_SOURCES)
    get_target_property(libraries ${library} INTERFACE_LINK_LIBRARIES)
    string(REPLACE "_objects>" "_objects_sanitized>" objects "${objects}")
    orvt_sanitized_names(libraries ${libraries})
    add_library(${library}_sanitized INTERFACE)
    target_sources(${library}_sanitized INTERFACE ${objects})
    target_link_libraries(${library}_sanitized INTERFACE ${libraries})
endfunction()

# A test program's, of the same objects.
function(orvt_sanitize_program program)
    if(NOT ORVT_SANITIZED_TESTS)
        return()
    endif()
    get_target_property(libraries ${program} LINK_LIBRARIES)
    orvt_sanitized_names(libraries ${libraries})
    # What is in several objects the linker takes from the first, which shall be a
    # sanitized one.
    set(inside $<TARGET_OBJECTS:orvt_core_objects_sanitized>)
    if("orvt_inside_sanitized" IN_LIST libraries)
        list(APPEND inside $<TARGET_OBJECTS:orvt_component_objects_sanitized>)
    endif()
    add_executable(${program}_sanitized ${inside} $<TARGET_OBJECTS:${program}>)
    set_target_properties(${program}_sanitized PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(${program}_sanitized PRIVATE ${libraries})
    target_link_options(${program}_sanitized PRIVATE ${orvt_sanitizers})
endfunction()

# The same at the end of the folder, when all is known that the program is made of.
function(orvt_sanitize_program_later program)
    cmake_language(EVAL CODE "cmake_language(DEFER CALL orvt_sanitize_program ${program})")
endfunction()
