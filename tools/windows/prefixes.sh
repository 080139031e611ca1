# Sourced by ./windows: what stands for a Windows machine of its own each, a prefix of
# Wine's and a display, so that tests can run beside one another.

# Wine has none of the fonts that Windows always has, and serifs in their place.
name_fonts() {
    local key='HKCU\Software\Wine\Fonts\Replacements' name
    for name in "MS Shell Dlg" "MS Shell Dlg 2" "Segoe UI"; do
        wine reg add "$key" /v "$name" /d "DejaVu Sans" /f
    done
    wine reg add "$key" /v "Courier New" /d "DejaVu Sans Mono" /f
}

# In a shell of its own, whose Wine is that of the prefix.
make_prefix() (
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
    wine wineboot --init
    name_fonts
    wineserver --wait
)

# What the toolkit finds off screen: it would take any of a folder's, the serifs, too.
choose_fonts() {
    mkdir -p "$1/fonts"
    ln -sf /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold,Mono,Mono-Bold}.ttf "$1/fonts"
}

make_prefixes() {
    local folder=$1/prefixes number
    choose_fonts "$1"
    for number in $(seq "$2"); do
        [ -e "$folder/$number.complete" ] && continue
        rm -rf "${folder:?}/$number"
        mkdir -p "$folder"
        echo "Making a prefix for Wine"
        make_prefix "$folder/$number"
        touch "$folder/$number.complete"
    done
}

# Lets Wine's own programs live from test to test. Begun by a test, they would keep what
# it writes to open, and its end would wait for theirs.
keep_wine() (
    export WINEPREFIX=$1 DISPLAY=$2 WINEDEBUG=-all
    wineserver --kill || true # programs of the build, which had no display
    rm -f "$1.input"
    mkfifo "$1.input"
    wine cmd 0<>"$1.input" >/dev/null 2>&1 9>&- & # waits for a command
)

begin_displays() {
    local prefix
    for prefix in "$1"/prefixes/*/; do
        prefix=${prefix%/}
        Xvfb -displayfd 1 -screen 0 2560x1600x24 -nolisten tcp \
            >"$prefix.number" 2>/dev/null 9>&- &
        echo $! >"$prefix.process"
        until [ -s "$prefix.number" ]; do
            kill -0 $! || return # it ends where it cannot serve
            sleep 0.1
        done
        echo ":$(cat "$prefix.number")" >"$prefix.display"
        keep_wine "$prefix" ":$(cat "$prefix.number")"
    done
}

end_displays() {
    local prefix
    for prefix in "$1"/prefixes/*/; do
        prefix=${prefix%/}
        [ -e "$prefix.process" ] || continue
        WINEPREFIX=$prefix wineserver --kill || true
        kill "$(cat "$prefix.process")" || true
        rm -f "$prefix".{process,number,display,input}
    done
}
