# Translations on Qt's conventions: a .ts file per language, edited with Qt
# Linguist, compiled at build time, installed and built into the target as
# :/<name>/translations. The target update_translations runs lupdate.

find_package(Qt6 6.4 QUIET COMPONENTS LinguistTools)
if(NOT Qt6LinguistTools_FOUND)
    message(FATAL_ERROR
        "Qt's lupdate and lrelease are needed for the translations. "
        "On Debian: apt install qt6-tools-dev qt6-l10n-tools qt6-tools-dev-tools")
endif()

# No line numbers, so that only a changed text changes the files.
set(ORVT_LUPDATE_OPTIONS -no-obsolete -locations none)

# SOURCES are the files whose texts are translated, TS_FILES the translations. Compiled,
# they are built in under NAME, and installed for those who look for them.
function(orvt_add_translations target name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "INSTALLED_IN;COMPONENT" "SOURCES;TS_FILES")
    qt_add_lupdate(${target}
        SOURCES ${arg_SOURCES}
        TS_FILES ${arg_TS_FILES}
        OPTIONS ${ORVT_LUPDATE_OPTIONS})
    qt_add_lrelease(${target}
        TS_FILES ${arg_TS_FILES}
        QM_FILES_OUTPUT_VARIABLE qm_files
        OPTIONS -silent -nounfinished)
    qt_add_resources(${target} ${target}_translations
        PREFIX /${name}/translations
        BASE ${CMAKE_CURRENT_BINARY_DIR}
        FILES ${qm_files})
    install(FILES ${qm_files}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/${arg_INSTALLED_IN}/translations
        COMPONENT ${arg_COMPONENT})
endfunction()
