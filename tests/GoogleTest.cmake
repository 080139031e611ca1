# Debian packs the sources of GoogleTest beside the library. Where what is built is for
# another system, they are built, too.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(GTest REQUIRED)
    return()
endif()

set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
foreach(library IN ITEMS gtest gtest_main)
    target_compile_options(${library} PRIVATE -w) # nobody here can mend them
    set_target_properties(${library} PROPERTIES AUTOMOC OFF)
endforeach()
