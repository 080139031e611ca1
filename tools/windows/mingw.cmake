# Compiles for Windows with MinGW-w64 as Debian packs it. The toolkit's own programs
# (moc, rcc, …) are those of this machine.
#
#   cmake -DCMAKE_TOOLCHAIN_FILE=…/mingw.cmake -DORVT_WINDOWS_QT=<where the toolkit is>
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
if(ORVT_WINDOWS_QT)
    list(PREPEND CMAKE_FIND_ROOT_PATH ${ORVT_WINDOWS_QT})
    list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ORVT_WINDOWS_QT)
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(QT_HOST_PATH /usr)
execute_process(
    COMMAND dpkg-architecture -qDEB_HOST_MULTIARCH
    OUTPUT_VARIABLE multiarch
    OUTPUT_STRIP_TRAILING_WHITESPACE)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${multiarch}/cmake)
