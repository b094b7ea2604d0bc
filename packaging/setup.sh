# Sourced by ./run, ./test, bench/run and .ci/run: makes the checkout the working directory, and gives
# install_packages and build.
# shellcheck shell=bash
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The web engine's sandbox cannot start as root; for everybody else it stays on.
if ((EUID == 0)); then
    export QTWEBENGINE_DISABLE_SANDBOX=1
fi

fail() {
    local status=$1
    shift
    printf '%s\n' "$*" >&2
    exit "$status"
}

# The packages of packaging/debian-packages.txt that are not installed, one a line.
missing_packages() {
    local wanted
    wanted=$(sed 's/#.*//; s/[[:space:]]//g; /^$/d' packaging/debian-packages.txt)
    # shellcheck disable=SC2016,SC2086 # dpkg-query's own placeholders; one word for each package
    comm -23 <(sort <<<"$wanted") \
        <({ dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' $wanted 2>/dev/null || true; } |
            sed -n 's/^.i. *//p' | sort)
}

# Installs what is missing; with everything there it costs one dpkg-query.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian system: taking the packages of packaging/debian-packages.txt for installed." >&2
        return
    fi
    local missing as_root=()
    mapfile -t missing < <(missing_packages)
    ((${#missing[@]})) || return 0

    echo "Brenix is built, run and tested with Debian packages that are missing here: ${missing[*]}" >&2
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null || { ! [[ -t 0 ]] && ! sudo -n true 2>/dev/null; }; then
            fail 2 "Cannot install them: not root, and no sudo to ask. As root:" \
                "apt-get install --no-install-recommends ${missing[*]}"
        fi
        echo "Installing them with sudo, which may ask for your password." >&2
        as_root=(sudo)
    fi
    # A new machine may be busy with its first upgrade: wait for the lock.
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update >&2 || echo "The package lists could not be brought up to date." >&2
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >&2 ||
        fail 2 "The packages could not be installed."
}

# build PRESET [TARGET...]: configures when the presets are newer than the build tree, then builds.
build() {
    local preset=$1
    shift
    if ! [[ build/$preset/build.ninja -nt CMakePresets.json ]]; then
        cmake --preset "$preset"
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
