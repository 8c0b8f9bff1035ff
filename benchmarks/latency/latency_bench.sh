#!/bin/bash
# latency_bench.sh BUILD_FOLDER [ROUNDS]: runs latency_bench with PipeWire's JACK library, at periods of 256 frames.
set -eu
exec pw-jack -p 256 "$1/benchmarks/latency/latency_bench" "${2:-4000}"
