#!/bin/bash
# startup_bench.sh BUILD_FOLDER [RUNS]: runs startup_bench on a private X server of the window's size.
set -eu
build=$1
runs=${2:-21}
exec xvfb-run -a -s "-screen 0 952x480x24 -dpi 96 -br" \
    "$build/benchmarks/startup/startup_bench" "$build/app/sorvane" "$runs"
