# How the scripts that check everything run their stages, and tell what came of them. Sourced from the top of the tree.

logs=build/ci
mkdir -p "$logs"
failures=()

# finish NAME STARTED STATUS: the closing line of a stage.
finish()
{
    local outcome=passed
    [ "$3" -eq 0 ] || { outcome=FAILED; failures+=("$1"); }
    printf '== %s: %s in %d s (%d s since the start)\n\n' "$1" "$outcome" $((SECONDS - $2)) "$SECONDS"
}

# stage NAME COMMAND...: shows all that the command prints.
stage()
{
    local name=$1 started=$SECONDS status=0
    shift
    printf '== %s\n' "$name"
    "$@" </dev/null || status=$?
    finish "$name" "$started" "$status"
}

# brief_stage NAME COMMAND...: shows the last lines of what the command prints, and more when it fails.
brief_stage()
{
    local name=$1 started=$SECONDS status=0 log="$logs/${1// /-}.log"
    shift
    printf '== %s\n' "$name"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if [ "$status" -eq 0 ]; then
        tail -n 3 "$log"
    else
        grep -nE 'error:|FAILED|warning:' "$log" | head -n 50 || true
        tail -n 200 "$log"
    fi
    finish "$name" "$started" "$status"
}

# tell_outcome: the closing line of all; fails when a stage did.
tell_outcome()
{
    if [ ${#failures[@]} -gt 0 ]; then
        printf 'FAILED after %d s:' "$SECONDS"
        printf ' %s;' "${failures[@]}"
        printf '\n'
        return 1
    fi
    printf 'All stages passed in %d s.\n' "$SECONDS"
}
