# The steps that the commands at the root share. They read this file with `.` once they have set
# $root, the folder of the project. A step says what it does in one line, and prints nothing where
# there is nothing to do.

say() { printf 'Quendrel: %s\n' "$*"; }

fail() {
    say "$@" >&2
    exit 1
}

# packages_with WORDS: the packages that have one of the words in packages.list, one a line.
packages_with() {
    awk -v wanted="$1" '/^[^#]/ && ("," $2 "," ~ ",(" wanted "),") {print $1}' \
        "$root/packaging/packages.list"
}

# packages_for WHAT: the packages that the art or a command needs, one a line.
packages_for() {
    case $1 in
        art) packages_with art ;;
        *) packages_with "art|play|run|$1" ;;
    esac
}

# only_missing PACKAGE...: those that are not installed, one a line.
only_missing() {
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        sed -n 's/ installed$//p')
    printf '%s\n' "$@" | grep -vxF "$installed" || true
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 "$@"
}

# install_packages WHAT: installs what the art or a command needs and the machine lacks.
install_packages() {
    missing=$(only_missing $(packages_for "$1") | xargs)
    [ -n "$missing" ] || return 0
    by_hand="apt-get install --no-install-recommends $missing"
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        fail "packages are missing, and only root may install them. Run as root: $by_hand"
    fi
    say "installing $missing"
    apt_get update || say "the package lists could not be renewed; trying with the old ones"
    apt_get install -y --no-install-recommends $missing ||
        fail "the packages could not be installed. Try as root: $by_hand"
}

# build PRESET: configures where that was not done for this folder, and builds what has changed.
build() {
    folder=$root/build/$1
    if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt" ||
        [ ! "$folder/build.ninja" -nt "$root/CMakePresets.json" ]; then
        say "configuring $1"
        cmake --fresh -S "$root" --preset "$1" >/dev/null || fail "configuring $1 failed"
    fi
    if ! ninja -C "$folder" -n | grep -q 'no work to do'; then
        say "building $1"
        cmake --build "$folder" --parallel "$(nproc)" || fail "building $1 failed"
    fi
}
