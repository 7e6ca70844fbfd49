# shellcheck shell=bash
# Sourced by .ci/run and .ci/nightly: steps that tell their seconds, also when one fails.

steps=()
failed=()

record() { # SECONDS WORDS...
    steps+=("$(printf '%5d s  %s' "$1" "${*:2}")")
}

# Runs a command; the script ends where it fails.
step() {
    local start=$SECONDS
    "$@" || {
        record $((SECONDS - start)) "$@" ": FAILED"
        exit 1
    }
    record $((SECONDS - start)) "$@"
}

# Runs a command; what fails is told at the end, where `tell` exits with 1.
attempt() {
    local start=$SECONDS
    if "$@"; then
        record $((SECONDS - start)) "$@"
    else
        failed+=("$*")
        record $((SECONDS - start)) "$@" ": FAILED"
    fi
}

tell() {
    printf '%s\n' "${steps[@]}"
    ((${#failed[@]} == 0))
}
