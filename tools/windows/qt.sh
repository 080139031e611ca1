# Sourced by ./windows: the toolkit for Windows, from Debian's own sources, built once
# into the cache and taken up again where it was interrupted.

# What neither the library nor the workbench uses, or what Debian's sources lack a part
# of (the tablet's header).
qt_options=(
    -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DBUILD_SHARED_LIBS=ON
    -DCMAKE_BUILD_TYPE=Release -DFEATURE_tabletevent=OFF -DFEATURE_pkg_config=OFF
    -DINPUT_opengl=no -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_network=OFF
    -DFEATURE_vulkan=OFF -DFEATURE_androiddeployqt=OFF
    -DFEATURE_system_zlib=OFF -DFEATURE_zstd=OFF -DFEATURE_glib=OFF -DFEATURE_icu=OFF)

# A list of sources of its own: what this machine installs from stays as it is.
fetch_qt() {
    local folder=$1 name
    [ -d "$folder/source" ] && return
    mkdir -p "$folder/apt/lists/partial" "$folder/apt/cache/archives/partial"
    . /etc/os-release
    echo "deb-src http://deb.debian.org/debian $VERSION_CODENAME main" >"$folder/apt/sources.list"
    local options=(-q -o "Dir::Etc::SourceList=$folder/apt/sources.list"
        -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$folder/apt/lists"
        -o "Dir::Cache=$folder/apt/cache")
    apt-get "${options[@]}" update
    (cd "$folder" && apt-get "${options[@]}" source --download-only qt6-base)
    name=$(ls "$folder"/qt6-base_*.dsc)
    rm -rf "$folder/unpacked"
    dpkg-source -x "$name" "$folder/unpacked"
    mv "$folder/unpacked" "$folder/source"
}

build_qt() {
    local folder=$1 toolchain=$2
    [ -e "$folder/qt/complete" ] && return
    fetch_qt "$folder"
    cmake -G Ninja -S "$folder/source" -B "$folder/build" "${qt_options[@]}" \
        -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_INSTALL_PREFIX="$folder/qt"
    cmake --build "$folder/build"
    cmake --install "$folder/build"
    touch "$folder/qt/complete"
}
