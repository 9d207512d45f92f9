# shellcheck shell=bash
# Sourced by ./check and ./demo: runs long commands with their output in a log and a line that shows how far they are.

# The last "[12/345]" that the builder, or "12/345 Test", that the test runner has written to a log.
progress_of() {
    tail -c 4000 "$1" 2>/dev/null | grep -aoE '^\[[0-9]+/[0-9]+\]|^ *[0-9]+/[0-9]+ Test' | tail -n 1 | grep -aoE '[0-9]+/[0-9]+'
}

# with_progress NAME LOG COMMAND...: on a terminal one line that is overwritten, else a line each minute.
with_progress() {
    local name=$1 log=$2 start=$SECONDS shown=0 line pid
    shift 2
    "$@" >"$log" 2>&1 </dev/null &
    pid=$!
    while kill -0 "$pid" 2>/dev/null; do
        sleep 0.2
        line="    $name: $((SECONDS - start)) s $(progress_of "$log" || true)"
        if [ -t 1 ]; then
            printf '\r\033[K%s' "$line"
        elif [ $((SECONDS - start)) -ge $((shown + 60)) ]; then
            shown=$((SECONDS - start))
            echo "$line"
        fi
    done
    [ ! -t 1 ] || printf '\r\033[K'
    wait "$pid"
}
