# What the project's commands share; sourced with `root` set to the folder of the project.

# What is fetched and made for this project alone lives here, out of the way of the machine. Several
# checkouts may share one such folder by setting BIGNUMBERVQZ_DEPS.
export BIGNUMBERVQZ_DEPS="${BIGNUMBERVQZ_DEPS:-$root/.deps}"
deps="$BIGNUMBERVQZ_DEPS"

# presets_for USE: the names of the presets that scripts/presets.txt lists for `run` or `test`; without
# USE all of them.
presets_for() {
    local name build start launcher suffix library package uses
    while IFS='|' read -r name build start launcher suffix library package uses; do
        [[ $name != "#"* ]] || continue
        [[ -n ${1:-} && " $uses " != *" $1 "* ]] || printf '%s\n' "${name%% *}"
    done <"$root/scripts/presets.txt"
}

# preset_field PRESET FIELD: one field of that preset's line in scripts/presets.txt, where `-` stands for
# an empty one. The names of the fields are those of its head line.
preset_field() {
    local -A fields
    local name build start launcher suffix library package uses
    while IFS='|' read -r name build start launcher suffix library package uses; do
        [[ ${name%% *} == "$1" ]] || continue
        fields=(
            [build]="$build" [start]="$start" [launcher]="$launcher" [suffix]="$suffix"
            [library]="$library" [package]="$package" [uses]="$uses")
        read -r name <<<"${fields[$2]}" || true
        [[ $name == - ]] || printf '%s\n' "$name"
        return
    done <"$root/scripts/presets.txt"
    fail "there is no preset $1; there are $(presets_for | tr '\n' ' ')"
}

# packaged_presets: the presets whose library goes into the package.
packaged_presets() {
    local preset
    for preset in $(presets_for); do
        [[ -z $(preset_field "$preset" package) ]] || printf '%s\n' "$preset"
    done
}

# say TEXT: a word of progress. Standard output belongs to the program that is run.
say() {
    printf '%s\n' "== $*" >&2
}

# fail TEXT: ends the command with a message.
fail() {
    printf '%s\n' "${0##*/}: $*" >&2
    exit 2
}

# show_progress TITLE: passes on the lines of a tool under a title. On a terminal each takes the place of
# the one before; no lines, no title.
show_progress() {
    local line title="$1" columns="${COLUMNS:-80}"
    while IFS= read -r line; do
        [[ -z $title ]] || say "$title"
        title=""
        if [[ -t 2 ]]; then
            printf '\r\e[K%.*s' "$((columns - 1))" "$line" >&2
        else
            printf '%s\n' "$line" >&2
        fi
    done
    [[ -n $title || ! -t 2 ]] || printf '\r\e[K' >&2
}

# with_progress TITLE COMMAND...: runs a command whose output is worth no more than a glance, unless it
# fails. Returns the command's status.
with_progress() {
    local log status=0
    log="$(mktemp)"
    "${@:2}" </dev/null 2>&1 | tee "$log" | show_progress "$1" || status=$?
    if ((status != 0)) && [[ -t 2 ]]; then
        grep -v '^\[[0-9]*/[0-9]*\]' "$log" >&2 || true
    fi
    rm -f "$log"
    return "$status"
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

# release_name: the name of the release, after the version's number.
release_name() {
    local number
    read -r number _ <"$root/VERSION"
    printf 'BigNumberVQZ-%s.zip\n' "$number"
}

# announce_package: says where the package lies, and the release where there is one.
announce_package() {
    local release
    release="build/$(release_name)"
    [[ ! -e $root/$release ]] || say "the release, with examples and help: $release"
    say "the package for your Plugins folder: build/BigNumberVQZ.xojo_plugin"
    touch "$root/build/announced"
}

# announce_new_package: says so once after each build of a package.
announce_new_package() {
    if [[ "$root/build/BigNumberVQZ.xojo_plugin" -nt "$root/build/announced" ]]; then
        announce_package
    fi
}
