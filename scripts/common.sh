# What the project's commands share; sourced with `root` set to the folder of the project.

# What is fetched and made for this project alone lives here, out of the way of the machine. Several
# checkouts may share one such folder by setting BIGNUMBERVQZ_DEPS.
export BIGNUMBERVQZ_DEPS="${BIGNUMBERVQZ_DEPS:-$root/.deps}"
deps="$BIGNUMBERVQZ_DEPS"

# say TEXT: a word of progress. Standard output belongs to the program that is run.
say() {
    printf '%s\n' "== $*" >&2
}

# fail TEXT: ends the command with a message.
fail() {
    printf '%s\n' "${0##*/}: $*" >&2
    exit 2
}

# under_lock FILE COMMAND...: runs a command while no other holder of the lock is at work. What the
# command leaves running does not keep the lock.
under_lock() {
    local file="$1"
    shift
    mkdir -p "$(dirname "$file")"
    (
        if ! flock --nonblock 9; then
            say "waiting for another run to finish its set-up or build"
            flock 9
        fi
        "$@" 9>&-
    ) 9>"$file"
}
