# Sourced by ./test, ./run and tools/fuzz: gets the machine ready and builds.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
packages=(g++ cmake ninja-build libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev
    qt6-base-dev qt6-multimedia-dev libgl1-mesa-dev fonts-liberation)
fuzz_packages=(clang-14 libclang-rt-14-dev)
e2e_packages=(xvfb xdotool xclip imagemagick openbox x11-utils fonts-liberation)

# install_missing [PACKAGE...]: installs the Debian packages that are missing, with those named; asks nothing.
install_missing() {
    local package missing=() as_root=()
    command -v dpkg-query >/dev/null || return 0 # another system: what is missing shows when building
    for package in "${packages[@]}" "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    echo "Installing ${missing[*]}" >&2
    ((EUID == 0)) || as_root=(sudo -n)
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update >&2
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [TARGET...]: configures once, then builds what has changed. Talks on standard error, so that
# standard output is the program's own.
build() {
    local preset=$1 launcher=() target
    shift
    local targets=()
    for target in "$@"; do targets+=(--target "$target"); done
    cd "$root" || return
    if [[ ! build/$preset/build.ninja -nt CMakePresets.json ]]; then
        if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
        cmake --preset "$preset" "${launcher[@]}" >&2
    fi
    cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}" >&2
}
