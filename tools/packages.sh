# Sourced by check, demo, packages and bench: installs the Debian packages that are missing.

build_packages=(
    ca-certificates ccache cmake g++ ninja-build pkg-config python3
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    qt6-translations-l10n
    libgl-dev zlib1g-dev fonts-dejavu-core)

# The package for Python and its tests.
python_packages=(
    python3-pyqt6 pyqt6-dev pyqt6-dev-tools sip-tools python3-dev python3-pytest)

# What makes the Debian packages.
packaging_packages=(doxygen dpkg-dev file)

# What works a window by real keys and mouse.
display_packages=(xvfb xauth xclip xdotool openbox x11-utils)

# What reads a window as a screen reader does.
reader_packages=(at-spi2-core dbus-daemon python3-gi)

test_packages=(
    libgtest-dev libgmock-dev qt6-base-private-dev libqt6opengl6-dev libqt6svg6
    abigail-tools lintian mypy libreoffice-writer-nogui
    clang-format clang-tidy lld locales valgrind
    "${packaging_packages[@]}" "${python_packages[@]}" "${display_packages[@]}" "${reader_packages[@]}")

# What fuzzes the core.
fuzz_packages=(clang libclang-rt-14-dev lld)

# What ./bench compares with.
bench_packages=(
    libqscintilla2-qt6-dev libkf5syntaxhighlighting-dev
    highlight python3-pygments
    "${python_packages[@]}" python3-pyqt6.qsci)

# What compiles for Windows, and what runs that.
mingw_packages=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev)
windows_packages=("${mingw_packages[@]}" dpkg-dev googletest wine wine64 xvfb)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

is_installed() {
    dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
}

install_packages() {
    local package missing=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing ${missing[*]}"
    as_root apt-get -qq update
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq install -y --no-install-recommends "${missing[@]}" >/dev/null
}
