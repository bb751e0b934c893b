# For the scripts that run the built command: SCRIPT COMMAND CITIES.
set -uo pipefail
zrproj=$1 cities=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

fail() {
    printf 'FAILED: %s\n%s\n' "$1" "$2"
    failed=1
}

# check NAME STATUS OUTPUT ERRORS ARGUMENT...: runs the command on standard input. OUTPUT is exact, but for one line end at
# its end; ERRORS is a pattern that standard error matches as a whole; "" is nothing at all.
check() {
    local name=$1 status=$2 output=$3 errors=$4
    shift 4
    "$zrproj" "$@" >"$work/out" 2>"$work/err"
    local got=$? printed said
    printed=$(cat "$work/out" && printf x)
    printed=${printed%x}
    said=$(<"$work/err")
    ((got == status)) || fail "$name" "status $got, not $status; $said"
    [[ $printed == "$output" || $printed == "$output"$'\n' ]] || fail "$name" "printed: $printed"
    # shellcheck disable=SC2053
    [[ $said == $errors ]] || fail "$name" "said: $said"
}
