#!/bin/bash
# inside.sh: runs in a clean system that has the package installed and a MIDI service, beside its player: starts the program
# without a window, plays a note through it and ends it. Ends with 0 if the note came out mapped.
set -u
here=$(dirname "$0")
export HOME=$here/home XDG_RUNTIME_DIR=$here/runtime
mkdir -p "$HOME"
mkdir -m 700 -p "$XDG_RUNTIME_DIR"

pipewire -c "$here/pipewire.conf" >"$here/pipewire.log" 2>&1 &
for ((tenths = 0; tenths < 100; ++tenths)); do
    [ -S "$XDG_RUNTIME_DIR/pipewire-0" ] && break
    sleep 0.1
done
pw-jack -p 256 sorvane --headless --midi-api jack --power on --tonic D >"$here/sorvane.log" 2>&1 &
program=$!
LD_LIBRARY_PATH="" pw-jack -p 256 "$here/note_player" "RtMidi Input Client:Sorvane MIDI In" \
    "RtMidi Output Client:Sorvane MIDI Out" 60 62
played=$?
kill -TERM $program
wait $program
ended=$?
if [ $played != 0 ] || [ $ended != 0 ]; then
    echo "the player ended with $played, the program with $ended:"
    tail -n 5 "$here"/*.log
    exit 1
fi
