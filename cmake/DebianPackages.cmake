# "cpack -G DEB" in a build directory makes one Debian package of each component.
set(CPACK_PACKAGE_NAME orvtlistview)
set(CPACK_PACKAGE_VENDOR "ORVTListview")
set(CPACK_PACKAGE_CONTACT "ORVTListview developers <developers@orvtlistview.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL library dev designer tools workbench doc)
if(ORVT_PYTHON)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where the libraries are that are not installed yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)

# One line of what the package is, and one of what all of them are.
macro(describe component what)
    set(CPACK_COMPONENT_${component}_DESCRIPTION "\
ORVTListview: ${what}\n\
User-interface components for the desktop tools with which people program\n\
building-automation controllers: code editor, point tables, project tree.")
endmacro()

set(library_package liborvtlistview${PROJECT_VERSION_MAJOR})
set(this_library "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SUGGESTS "libqt6svg6") # hosts' own pictures
describe(LIBRARY "the libraries")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME liborvtlistview-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${this_library}, qt6-base-dev (>= ${ORVT_QT_VERSION})")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "orvtlistview-designer, orvtlistview-doc, cmake")
describe(DEV "headers")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME orvtlistview-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${this_library}")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_ENHANCES "designer-qt6")
describe(DESIGNER "plugin for Qt Designer")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME orvtlistview-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${this_library}")
describe(TOOLS "command-line tools")

set(CPACK_DEBIAN_WORKBENCH_PACKAGE_NAME orvtlistview-workbench)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_DEPENDS "${this_library}")
describe(WORKBENCH "the workbench")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME orvtlistview-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_PACKAGE_SHLIBDEPS OFF)
describe(DOC "documentation and examples")

# PyQt6 is under the GPL or a commercial licence; docs/guide/python.md tells it.
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-orvtlistview)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "${this_library}, python3 (>= 3.11), python3 (<< 3.12), python3-pyqt6 (>= 6.4), python3-pyqt6.sip")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "pyqt6-dev-tools, orvtlistview-designer, orvtlistview-doc")
describe(PYTHON "for Python, beside PyQt6 (GPL or commercial licence)")

# What Debian asks of every package.
string(TIMESTAMP ORVT_DAY_OF_PACKAGES "%a, %d %b %Y 00:00:00 +0000" UTC) # or SOURCE_DATE_EPOCH
configure_file(packaging/changelog.in ${PROJECT_BINARY_DIR}/packaging/changelog @ONLY)
orvt_compress(${PROJECT_BINARY_DIR}/packaging/changelog changelog_gz)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    install(FILES packaging/copyright ${changelog_gz}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
        COMPONENT ${component})
endforeach()
configure_file(packaging/lintian-overrides.in ${PROJECT_BINARY_DIR}/packaging/overrides @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME ${library_package}
    COMPONENT library)

include(CPack)
