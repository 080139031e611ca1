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

file(GLOB_RECURSE pages CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/docs/*.md ${PROJECT_SOURCE_DIR}/docs/*.png
    ${PROJECT_SOURCE_DIR}/docs/reference/* ${PROJECT_SOURCE_DIR}/examples/*)
get_property(read_headers GLOBAL PROPERTY ORVT_PUBLIC_HEADER_PATHS)
set(index ${PROJECT_BINARY_DIR}/reference/html/index.html)
add_custom_command(OUTPUT ${index}
    COMMAND ${CMAKE_COMMAND} -E rm -f ${index} # a failure leaves none
    ${remove_copy}
    ${make_copy}
    # Not here: it would look for the pages' "../../" from here, too.
    COMMAND ${CMAKE_COMMAND} -E chdir ${reference_source} ${DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile
    ${remove_copy}
    DEPENDS ${PROJECT_BINARY_DIR}/Doxyfile ${members_json} ${read_headers} ${pages}
    VERBATIM
    COMMENT "Making the reference in ${PROJECT_BINARY_DIR}/reference/html")
add_custom_target(reference DEPENDS ${index})
if(TARGET members_json)
    add_dependencies(reference members_json)
endif()
# Whoever installs the documents gets the reference, and one that is up to date.
install(CODE "
    execute_process(
        COMMAND \"${CMAKE_COMMAND}\" --build \"${PROJECT_BINARY_DIR}\" --target reference
        COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT doc)
install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/html
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT doc)
