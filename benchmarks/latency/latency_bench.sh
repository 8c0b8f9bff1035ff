#!/bin/bash
# latency_bench.sh BUILD_FOLDER PERIOD FILE ROUNDS BUSY: runs latency_bench with PipeWire's JACK library at periods
# of so many frames, beside so many busy threads.
set -eu
exec pw-jack -p "$2" "$1/benchmarks/latency/latency_bench" "${@:2}"
