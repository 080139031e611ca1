find_package(Python3 REQUIRED COMPONENTS Interpreter)

# orvt_add_drawings(target folder): compiles the SVG files of the folder into the target.
function(orvt_add_drawings target folder)
    file(GLOB drawings CONFIGURE_DEPENDS ${folder}/*.svg)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/DrawingTables.cpp)
    add_custom_command(
        OUTPUT ${made}
        COMMAND ${Python3_EXECUTABLE} -I ${PROJECT_SOURCE_DIR}/cmake/drawings.py ${made} ${drawings}
        DEPENDS ${PROJECT_SOURCE_DIR}/cmake/drawings.py ${drawings}
        COMMENT "Compiling the drawings"
        VERBATIM)
    target_sources(${target} PRIVATE ${made})
endfunction()
