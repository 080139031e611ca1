# What every target of this project shares: the language, the strict flags and
# the way public headers are published.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
# Installed programs and libraries find each other wherever the prefix stands.
file(RELATIVE_PATH libraries_from_programs /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${libraries_from_programs}")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

if(MSVC)
    add_compile_options(/W4 /utf-8)
else()
    add_compile_options(-Wall -Wextra -Wshadow -Wconversion)
endif()
if(ORVT_WARNINGS_AS_ERRORS)
    add_compile_options($<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()

if(ORVT_FUZZ)
    add_compile_options(-fsanitize=address,undefined,fuzzer-no-link
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
find_program(LLD_PROGRAM ld.lld)
if(ORVT_FAST_LINKER AND LLD_PROGRAM)
    add_link_options(-fuse-ld=lld)
endif()

# Of two files NAME.cpp and NAMEWindows.cpp each system takes its own.
function(orvt_take_own_system variable)
    set(kept ${${variable}})
    set(others ${kept})
    list(FILTER others INCLUDE REGEX "Windows\\.cpp$")
    if(WIN32)
        list(TRANSFORM others REPLACE "Windows\\.cpp$" ".cpp")
    endif()
    if(others)
        list(REMOVE_ITEM kept ${others})
    endif()
    set(${variable} ${kept} PARENT_SCOPE)
endfunction()

# For a static library that programs link with the libraries and tests with their
# objects: MinGW's linker finds either, if the compiler does not ask for an import.
function(orvt_import_nothing target)
    if(MINGW)
        target_compile_definitions(${target} PRIVATE ORVT_CORE_STATIC_DEFINE ORVT_STATIC_DEFINE)
    endif()
endfunction()

add_compile_definitions(
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Headers are written beside their sources and included by hosts as
# <ORVTListview/Name.h>. In the build tree that name is a forwarding header.
set(ORVT_PUBLIC_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)
define_property(GLOBAL PROPERTY ORVT_PUBLIC_HEADERS
    BRIEF_DOCS "Every published header" FULL_DOCS "Every published header")

function(orvt_publish_headers)
    foreach(header IN LISTS ARGN)
        get_filename_component(name ${header} NAME)
        get_filename_component(path ${header} ABSOLUTE)
        set(forwarding ${ORVT_PUBLIC_INCLUDE_DIR}/ORVTListview/${name})
        file(CONFIGURE OUTPUT ${forwarding} CONTENT "#include \"${path}\"\n")
        install(FILES ${header}
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ORVTListview
            COMPONENT dev)
        set_property(GLOBAL APPEND PROPERTY ORVT_PUBLIC_HEADERS ${name})
        set_property(GLOBAL APPEND PROPERTY ORVT_PUBLIC_HEADER_PATHS ${path})
    endforeach()
endfunction()
