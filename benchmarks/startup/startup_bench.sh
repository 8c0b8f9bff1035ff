#!/bin/bash
# startup_bench.sh BUILD_FOLDER FILE [RUNS]: runs startup_bench on a private X server of the window's size.
set -eu
exec xvfb-run -a -s "-screen 0 952x480x24 -dpi 96 -br" \
    "$1/benchmarks/startup/startup_bench" "$1/app/sorvane" "${@:2}"
