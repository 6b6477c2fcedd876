# shellcheck shell=bash
# What the scripts of this folder share. They source it with "set -euo pipefail" in force.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

# step TEXT: one line of progress, with the seconds since the script started.
step()
{
    printf '[%4d s] %s\n' "$SECONDS" "$1"
}

# die TEXT: ends the script.
die()
{
    printf '%s\n' "$1" >&2
    exit 1
}

# quietly NAME COMMAND...: runs the command with its output in build/NAME.log, and shows the end of that when it fails.
quietly()
{
    local log="$root/build/$1.log" status=0
    shift
    mkdir -p "$root/build"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if ((status)); then
        printf '%s\n' "Failed with status $status: $*" "The end of $log:" >&2
        tail -n 60 "$log" | sed 's/^/    /' >&2
    fi
    return "$status"
}

# packages GROUP...: the names that packages.txt lists for these groups.
packages()
{
    local line group='' wanted=" $* "
    while read -r line; do
        case $line in
            '' | '#'*) ;;
            '['*) group=${line//[][]/} ;;
            *) [[ $wanted != *" $group "* ]] || printf '%s\n' "$line" ;;
        esac
    done <"$root/scripts/packages.txt"
}

is_installed()
{
    dpkg-query --show --showformat '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# install_packages GROUP...: installs what is missing. Where that cannot be done it says what is missing and goes on,
# because the system may have the same things under other names.
install_packages()
{
    local name wanted missing=() become_root=()
    mapfile -t wanted < <(packages "$@")
    if ! command -v dpkg-query >/dev/null; then
        step "This system does not use Debian packages; it needs what Debian calls: ${wanted[*]}"
        return 0
    fi
    for name in "${wanted[@]}"; do
        is_installed "$name" || missing+=("$name")
    done
    ((${#missing[@]})) || return 0

    if ! command -v apt-get >/dev/null; then
        step "Missing, and without apt-get to be installed by hand: ${missing[*]}"
        return 0
    fi
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            step "Missing, to be installed as root with apt-get install: ${missing[*]}"
            return 0
        fi
        # Without a terminal nobody could type the password.
        become_root=(sudo)
        [[ -t 2 ]] || become_root+=(--non-interactive)
    fi
    step "Installing packages: ${missing[*]}"
    local apt=("${become_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes
        -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
    if ! quietly apt-update "${apt[@]}" update \
        || ! quietly apt-install "${apt[@]}" install --no-install-recommends "${missing[@]}"; then
        step "Could not be installed: ${missing[*]}. Going on without."
    fi
}

# configure_and_build PRESET [TARGET...]: everything, or just the targets.
configure_and_build()
{
    local preset=$1
    shift
    command -v cmake >/dev/null || die "cmake is missing; scripts/packages.txt lists what is needed."
    step "Configuring the preset $preset"
    quietly "configure-$preset" cmake -S "$root" --preset "$preset"
    step "Building ${*:-everything} in build/$preset with $jobs jobs"
    quietly "build-$preset" cmake --build "$root/build/$preset" --parallel "$jobs" ${1:+--target "$@"}
}

# without_desktop: the same surroundings on every machine, whatever the desktop has set, and no display.
without_desktop()
{
    local name
    # What Qt and its platform plugins read. With a session bus a test could talk to the desktop that it runs on.
    for name in $(compgen -e); do
        case $name in
            QT_* | QML_* | QML2_* | XDG_CURRENT_DESKTOP | DESKTOP_SESSION | DISPLAY | WAYLAND_DISPLAY | \
                DBUS_SESSION_BUS_ADDRESS | SESSION_MANAGER) unset "$name" ;;
        esac
    done
    export QT_QPA_PLATFORM=offscreen LANG=C.UTF-8 LC_ALL=C.UTF-8 TZ=UTC
    if [[ ! -d ${XDG_RUNTIME_DIR:-} ]]; then
        XDG_RUNTIME_DIR=$(mktemp -d)
        export XDG_RUNTIME_DIR
        trap 'rm -rf -- "$XDG_RUNTIME_DIR"' EXIT
    fi
}
