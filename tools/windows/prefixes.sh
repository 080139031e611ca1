# Sourced by ./windows: what stands for a Windows machine of its own each, a prefix of
# Wine's and a display, so that tests can run beside one another.

make_prefixes() {
    local folder=$1/prefixes number
    for number in $(seq "$2"); do
        [ -e "$folder/$number.complete" ] && continue
        rm -rf "${folder:?}/$number"
        mkdir -p "$folder"
        echo "Making a prefix for Wine"
        WINEPREFIX=$folder/$number WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' \
            wine wineboot --init
        WINEPREFIX=$folder/$number wineserver --wait
        touch "$folder/$number.complete"
    done
}

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
    done
}

end_displays() {
    local prefix
    for prefix in "$1"/prefixes/*/; do
        prefix=${prefix%/}
        [ -e "$prefix.process" ] || continue
        WINEPREFIX=$prefix wineserver --kill || true
        kill "$(cat "$prefix.process")" || true
        rm -f "$prefix.process" "$prefix.number" "$prefix.display"
    done
}
