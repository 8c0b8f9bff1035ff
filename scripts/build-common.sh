# Sourced by the other scripts: the project's folder and how a preset is configured and built.

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Without this ccache keeps nothing that was built with a precompiled header.
export CCACHE_SLOPPINESS=pch_defines,time_macros

# build_preset PRESET [CMAKE_OPTION...]: builds all, or the targets that SORVANE_TARGETS names
build_preset() {
    local preset=$1
    shift
    local log
    log=$(mktemp)
    if ! cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
    # shellcheck disable=SC2086 # names of targets hold no blanks
    cmake --build --preset "$preset" ${SORVANE_TARGETS:+--target $SORVANE_TARGETS}
}
