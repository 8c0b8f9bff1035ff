# Sourced by the scripts that play the running program: an X server and a MIDI service of its own, the hand that clicks,
# types and plays, and the eye that waits for the picture. Wants build-common.sh, and $program. $step names the step in
# the message of one that fails; it ends the script.

ratio=2 # pixels of the screen for one of the stage's
width=952 height=480
patience=20 # seconds that a step may take
step="the start"
last=""      # the process that was started last
processes=() # all of them, the latest first

fail() {
    printf '%s: %s: %s\n' "${0##*/}" "$step" "$1" >&2
    [ ! -s "$scratch/sorvane.log" ] || tail -n 5 "$scratch/sorvane.log" >&2
    exit 1
}

clean_up() {
    local process
    for process in "${processes[@]}"; do
        kill -KILL "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}

# start NAME COMMAND...: its output goes to NAME.log
start() {
    local name=$1
    shift
    "$@" >"$scratch/$name.log" 2>&1 &
    last=$!
    disown "$last"
    processes=("$last" "${processes[@]}")
}

# await WHAT COMMAND...: until the command succeeds
await() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $end ] || fail "no $what within $patience seconds"
        sleep 0.05
    done
}

### The services

# Makes $scratch, a folder that is gone at the end, and all that Sorvane is to meet there instead of the user's own.
open_stage() {
    scratch=$(mktemp -d)
    trap clean_up EXIT
    mkdir "$scratch/home"
    export FONTCONFIG_FILE=$PWD/tools/pictures/fonts.conf
    export HOME=$scratch/home XDG_RUNTIME_DIR=$scratch XDG_DATA_HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home LC_ALL=C.UTF-8
    unset XDG_CURRENT_DESKTOP DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY PIPEWIRE_REMOTE
    unset QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME QT_SCREEN_SCALE_FACTORS QT_AUTO_SCREEN_SCALE_FACTOR
    start_screen
    start_midi
}

start_screen() {
    mkdir "$scratch/screen"
    start xserver Xvfb -displayfd 5 -screen 0 $((ratio * width))x$((ratio * height))x24 -dpi 96 -nocursor \
        -nolisten tcp -fbdir "$scratch/screen" 5>"$scratch/display"
    await "X server" test -s "$scratch/display"
    DISPLAY=:$(cat "$scratch/display")
    export DISPLAY
    screen=$scratch/screen/Xvfb_screen0
}

start_midi() {
    sed 's/default.clock.rate = 48000/& default.clock.quantum = 256/' tests/package/pipewire.conf >"$scratch/pipewire.conf"
    start midi pipewire -c "$scratch/pipewire.conf"
    await "PipeWire daemon" pw-link -io
}

# start_sorvane [OPTION...]: its window fills the screen
start_sorvane() {
    export QT_FONT_DPI=96 QT_SCALE_FACTOR=$ratio QT_QPA_PLATFORM=xcb
    start sorvane pw-jack "$program" --midi-api jack "$@"
    sorvane=$last
    await "window" xdotool search --onlyvisible --name '^Sorvane$' windowmove 0 0 windowfocus
    go_away
    settle
}

# midi_file NAME BYTES: a track of these bytes, in octal escapes
midi_file() {
    local size
    size=$(printf '%b' "$2\\0\\0377\\057\\0" | wc -c)
    printf '%b' "MThd\\0\\0\\0\\06\\0\\0\\0\\01\\0\\0140MTrk\\0\\0\\0\\0$(printf %o "$size")$2\\0\\0377\\057\\0" \
        >"$scratch/$1.mid"
}

# player NAME TEXT FILE: a MIDI output port of that name; it plays when it is connected
player() {
    start "$1" pw-midiplay -P "{ node.name = $1 node.description = \"$2\" application.name = \"$2\" }" "$scratch/$3.mid"
    await "MIDI port $2" port_is_there -o "$1:"
}

# synthesizer NAME: a MIDI input port
synthesizer() {
    start "$1" pw-midirecord -P "{ node.name = $1 node.description = $1 application.name = $1 }" "$scratch/$1.mid"
    await "MIDI port $1" port_is_there -i "$1:"
}

port_is_there() { pw-link "$1" | grep -q "$2"; }

# play NAME: connects that player's port
play() { pw-link "$1:out_0" "RtMidi Input Client:Sorvane MIDI In"; }

### The hand and the eye

frame() { cksum <"$screen"; }

# The hand's work is seen when the picture has stood still for a moment.
settle() {
    local now before="" still=0 end=$((SECONDS + patience))
    while [ $still -lt 3 ]; do
        [ $SECONDS -lt $end ] || fail "the picture does not come to rest"
        sleep 0.1
        now=$(frame)
        if [ "$now" = "$before" ]; then still=$((still + 1)); else still=0; fi
        before=$now
    done
}

differs_from() { [ "$(frame)" != "$1" ]; }

# act WHAT COMMAND...: a step that changes the picture
act() {
    local before
    step=$1
    before=$(frame)
    shift
    "$@" || fail "this could not be done: $*"
    await "change of the picture" differs_from "$before"
    settle
}

# Places are the stage's pixels. The pointer does not stay: its place would look different, and get a tool tip.
point() { xdotool mousemove $((ratio * $1)) $((ratio * $2)); }
go_away() { point 940 150; }
click() {
    point "$1" "$2"
    xdotool click "${3:-1}"
    go_away
}
key() { xdotool key "$@"; }
write() { xdotool type "$1"; }
# hold X Y X2 Y2: presses at the one place and moves to the other; let_go there
hold() {
    point "$1" "$2"
    xdotool mousedown 1
    local part
    for part in 1 2 3 4; do
        point $(($1 + ($3 - $1) * part / 4)) $(($2 + ($4 - $2) * part / 4))
        sleep 0.05 # a hand is slower than the program
    done
}
let_go() {
    point "$1" "$2"
    sleep 0.05
    xdotool mouseup 1
    go_away
}
