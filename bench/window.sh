#!/usr/bin/env bash
# bench/window.sh ROOT
# bench_window on a display of its own: a window that nobody sees is up too soon.
exec xvfb-run --auto-servernum --server-args "-screen 0 1280x800x24" \
    "$1/build/release/bench/bench_window"
