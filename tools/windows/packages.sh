# Sourced by ./windows: the folders that users and hosts get, and their archives.

# The toolkit's and the compiler's libraries that a program needs beside it.
copy_runtime() {
    local qt=$1/qt folder=$2 name
    for name in Core Gui Widgets PrintSupport; do
        cp "$qt/bin/Qt6$name.dll" "$folder"
    done
    for name in libstdc++-6 libgcc_s_seh-1 libwinpthread-1; do
        cp "$(x86_64-w64-mingw32-g++-posix -print-file-name=$name.dll)" "$folder"
    done
    cp /usr/x86_64-w64-mingw32/lib/zlib1.dll "$folder"
    mkdir -p "$folder"/{platforms,styles,translations}
    cp "$qt/plugins/platforms/qwindows.dll" "$folder/platforms"
    cp "$qt/plugins/styles/qwindowsvistastyle.dll" "$folder/styles"
    cp /usr/share/qt6/translations/qtbase_{de,es,fr}.qm "$folder/translations"
    printf '[Paths]\nPrefix = .\nPlugins = .\n' >"$folder/qt.conf"
}

copy_licences() {
    local folder=$1/licences
    mkdir -p "$folder"
    cp LICENSE "$folder/ORVTListview.txt"
    cp /usr/share/doc/libqt6core6/copyright "$folder/Qt.txt"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$folder/GCC.txt"
    cp /usr/share/doc/mingw-w64-common/copyright "$folder/MinGW-w64.txt"
    cp /usr/share/doc/libz-mingw-w64/copyright "$folder/zlib.txt"
}

# What starts by a double click, wherever the folder is put. The program has the
# library within.
pack_workbench() {
    local out=$1 cache=$2 folder
    rm -rf "$out/stage"
    cmake --install build/windows --component workbench --prefix "$out/stage" --strip
    folder=$out/ORVTListview-workbench
    rm -rf "$folder"
    mv "$out/stage/workbench" "$folder"
    copy_runtime "$cache" "$folder"
    copy_licences "$folder"
}

# Headers, import libraries and the CMake package, for hosts that MinGW-w64 compiles.
pack_library() {
    local folder=$1/ORVTListview
    rm -rf "$folder"
    for component in library dev tools; do
        cmake --install build/windows --component $component --prefix "$folder" --strip
    done
    copy_licences "$folder"
}

# The examples are built with the packed library and run, as any host is.
try_examples() {
    local out=$1 cache=$2 example program
    for example in minimal whole latebound; do
        cmake -G Ninja -S examples/$example -B "$out/examples/$example" \
            -DCMAKE_TOOLCHAIN_FILE="$PWD/tools/windows/mingw.cmake" \
            "-DORVT_WINDOWS_QT=$cache/qt;$out/ORVTListview" \
            "-DCMAKE_CXX_STANDARD_LIBRARIES=$PWD/build/windows/quit_soon.o $cache/qt/lib/libQt6Core.a" \
            >/dev/null
        cmake --build "$out/examples/$example"
        program=$out/examples/$example/$example.exe
        cp "$out"/ORVTListview/bin/*.dll "$out/examples/$example"
        QT_QPA_PLATFORM=offscreen tools/windows/wine "$cache" "$program" |
            tr -d '\r' | diff - "tests/packaging/expected/$example.txt"
    done
}

# The archive holds all that the program needs: unpacked elsewhere, it opens its sample
# and finds nothing that it cannot connect.
try_workbench() {
    local out=$1 cache=$2 place program picture told
    place=$(mktemp -d)
    (cd "$place" && cmake -E tar xf "$out/ORVTListview-workbench.zip")
    program=$place/ORVTListview-workbench/workbench.exe
    picture=$out/workbench.png
    rm -f "$picture"
    told=$(WINEPATH= ORVT_SETTINGS_FILE=/dev/null/none QT_FORCE_STDERR_LOGGING=1 \
        tools/windows/wine "$cache" "$program" --screenshot "$picture" 2>&1)
    [ -s "$picture" ]
    grep QObject:: <<<"$told" && return 1
    rm -rf "$place"
}

pack() {
    local cache=$1 out=$PWD/build/windows/packages name
    mkdir -p "$out"
    pack_workbench "$out" "$cache"
    pack_library "$out"
    x86_64-w64-mingw32-g++-posix -std=c++20 -c tests/docs/QuitSoon.cpp \
        -I "$cache/qt/include" -I "$cache/qt/include/QtCore" -o build/windows/quit_soon.o
    try_examples "$out" "$cache"
    for name in ORVTListview-workbench ORVTListview; do
        (cd "$out" && cmake -E tar cf "$name.zip" --format=zip "$name")
    done
    try_workbench "$out" "$cache"
    ls -l "$out"/*.zip
}
