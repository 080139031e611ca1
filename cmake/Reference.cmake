# The target "reference" makes a site of the published headers, of what the tables of
# members know of them, and of the guide. A warning of Doxygen is an error.
find_program(DOXYGEN doxygen)
find_package(Python3 COMPONENTS Interpreter)
if(NOT DOXYGEN OR NOT Python3_FOUND)
    return()
endif()

# Doxygen loses the links between pages whose folder's name has a space: there it gets
# a copy.
set(reference_source ${PROJECT_SOURCE_DIR})
if(PROJECT_SOURCE_DIR MATCHES " ")
    string(SHA1 hash ${PROJECT_SOURCE_DIR})
    set(reference_source /tmp/orvtlistview-${hash})
    foreach(folder IN ITEMS docs examples src)
        list(APPEND make_copy COMMAND ${CMAKE_COMMAND} -E copy_directory
            ${PROJECT_SOURCE_DIR}/${folder} ${reference_source}/${folder})
    endforeach()
    set(remove_copy COMMAND ${CMAKE_COMMAND} -E rm -rf ${reference_source})
endif()

get_property(reference_headers GLOBAL PROPERTY ORVT_PUBLIC_HEADER_PATHS)
list(APPEND reference_headers
    ${PROJECT_SOURCE_DIR}/docs/guide
    ${PROJECT_SOURCE_DIR}/examples/README.md)
string(REPLACE "${PROJECT_SOURCE_DIR}/" "${reference_source}/"
    reference_headers "${reference_headers}")
list(JOIN reference_headers "\" \"" ORVT_REFERENCE_INPUT)
set(comments ${reference_source}/docs/reference/comments.py)
if(TARGET members_json)
    set(members_option "--members '${PROJECT_BINARY_DIR}/members.json'")
endif()
configure_file(docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/reference)

add_custom_target(reference
    ${remove_copy}
    ${make_copy}
    # Not here: it would look for the pages' "../../" from here, too.
    COMMAND ${CMAKE_COMMAND} -E chdir ${reference_source} ${DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile
    ${remove_copy}
    VERBATIM
    COMMENT "Making the reference in ${PROJECT_BINARY_DIR}/reference/html")
if(TARGET members_json)
    add_dependencies(reference members_json)
endif()
install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/html
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT doc
    OPTIONAL)
