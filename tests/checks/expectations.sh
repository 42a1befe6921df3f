# Sourced by the self-tests of checks. Each expectation makes a small tree in a folder of its own, runs "$check" on
# it and compares. "$check" is the check's path; conclude reports.

passed=0
failed=0
trees=$(mktemp -d)
trap 'rm -rf "$trees"' EXIT

# make_tree FILE TEXT [FILE TEXT]...: prints the new tree's folder.
make_tree()
{
    local tree
    tree=$(mktemp -d "$trees/XXXXXX")
    while [ $# -gt 0 ]; do
        mkdir -p "$tree/$(dirname "$1")"
        printf '%s\n' "$2" >"$tree/$1"
        shift 2
    done
    printf '%s' "$tree"
}

# note WHAT CONDITION...: counts one expectation.
note()
{
    local what=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAILED: %s\n' "$what"
    fi
}

# accepts WHAT FILE TEXT...: the check passes on this tree.
accepts()
{
    local what=$1 tree
    shift
    tree=$(make_tree "$@")
    note "$what" "$check" "$tree"
}

# rejects WHAT MESSAGE FILE TEXT...: the check fails on this tree and says MESSAGE.
rejects()
{
    local what=$1 message=$2 tree
    shift 2
    tree=$(make_tree "$@")
    note "$what" fails_saying "$message" "$tree"
}

fails_saying()
{
    local message=$1 output
    shift
    if output=$("$check" "$@" 2>&1); then
        echo "passed, but should have said: $message"
        return 1
    fi
    case $output in
    *"$message"*) return 0 ;;
    esac
    printf 'said:\n%s\nshould have said: %s\n' "$output" "$message"
    return 1
}

conclude()
{
    printf '%d passed, %d failed\n' "$passed" "$failed"
    [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
}
