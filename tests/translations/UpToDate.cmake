# Fails when lupdate would change a translation: a text was added,
# changed or removed and the translations do not know yet. Needs LUPDATE,
# OPTIONS, SOURCES, TS_FILES and FOLDER, where copies may be made.

file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})
foreach(ts_file IN LISTS TS_FILES)
    get_filename_component(name ${ts_file} NAME)
    set(copy ${FOLDER}/${name})
    file(COPY ${ts_file} DESTINATION ${FOLDER})
    execute_process(COMMAND ${LUPDATE} -silent ${OPTIONS} ${SOURCES} -ts ${copy}
        RESULT_VARIABLE failed)
    if(failed)
        message(FATAL_ERROR "lupdate failed on ${name}: ${failed}")
    endif()
    file(READ ${ts_file} before)
    file(READ ${copy} after)
    if(NOT before STREQUAL after)
        message(SEND_ERROR "${name} is out of date; build update_translations")
    endif()
endforeach()
