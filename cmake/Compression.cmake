# orvt_compress(file variable): the variable names a file of that name with ".gz", which
# is the same on every machine: neither name nor time stand in it.
find_program(ORVT_GZIP gzip REQUIRED)
function(orvt_compress file variable)
    get_filename_component(name ${file} NAME)
    set(packed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    execute_process(COMMAND ${ORVT_GZIP} -9nc ${file} OUTPUT_FILE ${packed}
        COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    set(${variable} ${packed} PARENT_SCOPE)
endfunction()
