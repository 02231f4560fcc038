# shellcheck shell=bash
#
# A Windows of its own for who changes it, has other files on its drive, or another screen, and the commands
# that documents have for it. Sourced, behind scripts/setup.sh.

# own_windows DIRECTORY: makes windows/run take a Windows in DIRECTORY, an empty folder, with the
# system of the one that scripts/windows keeps. Its drive C is $drive.
own_windows() {
    local kept=$XML2RYK_CACHE
    [ -d "$kept/wine" ] || give_up "there is no $kept/wine yet, which scripts/windows makes"
    export XML2RYK_CACHE=$1
    drive=$1/wine/drive_c
    mkdir -p "$drive" "$1/wine/dosdevices"
    ln -s "$kept/locale" "$1/locale"
    ln -s "$kept/wine/drive_c/windows" "$drive/windows"
    cp -R --no-dereference "$kept/wine/drive_c/users" "$drive/users"
    ln -s ../drive_c "$1/wine/dosdevices/c:"
    cp "$kept"/wine/{*.reg,.update-timestamp} "$1/wine"
}

# end_windows DIRECTORY: whatever still runs on it.
end_windows() { WINEPREFIX=$1/wine wineserver --kill || true; }

# make_blocks NAME: the blocks of commands in the document that it reads, as the batch files NAME1.bat
# and so on.
make_blocks() {
    awk -v name="$1" '/^ *```bat$/ { to = name (++count) ".bat"; next } /^ *```$/ { to = "" }
        to { sub(/^   /, ""); print $0 "\r" >to }'
}
