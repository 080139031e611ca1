# The target "reference" makes a site of the published headers and of the guide. A
# warning of Doxygen is an error.
find_program(DOXYGEN doxygen)
if(NOT DOXYGEN)
    return()
endif()

get_property(reference_headers GLOBAL PROPERTY ORVT_PUBLIC_HEADER_PATHS)
list(APPEND reference_headers
    ${PROJECT_SOURCE_DIR}/docs/guide
    ${PROJECT_SOURCE_DIR}/examples/README.md)
list(JOIN reference_headers "\" \"" ORVT_REFERENCE_INPUT)
configure_file(docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/reference)

add_custom_target(reference
    COMMAND ${DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile
    COMMENT "Making the reference in ${PROJECT_BINARY_DIR}/reference/html")
install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/html
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT doc
    OPTIONAL)
