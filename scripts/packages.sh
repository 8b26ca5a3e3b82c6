# The Debian packages the project needs, and how they get onto the machine. Sourced after common.sh.
# shellcheck shell=bash disable=SC2034

# g++-mingw-w64-x86-64-posix brings windres and dlltool; libx11-dev is for the library Wine is started with;
# librsvg2-bin and imagemagick make the pictures; the build is not configured without GoogleTest. Wine loads the libx*
# libraries at run time, so it only recommends them.
QV_RUN_PACKAGES=(
    cmake ninja-build gcc libc6-dev g++ g++-mingw-w64-x86-64-posix libx11-dev
    librsvg2-bin imagemagick googletest libgtest-dev
    wine64 fonts-wine fonts-dejavu-core fonts-dejavu-extra xvfb x11-utils
    libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1
    util-linux
)
# mingw-w64-common has the Windows headers that the device's executable is compiled with too.
QV_DEVICE_PACKAGES=(
    cmake ninja-build gcc libc6-dev g++ binutils-mingw-w64-x86-64 mingw-w64-common gcc-arm-none-eabi
    g++-mingw-w64-x86-64-posix librsvg2-bin imagemagick
)
# clang-tools brings clang-query and clang++.
QV_TEST_PACKAGES=(clang-format clang-tidy clang-tools file)
# What the packages are made, signed and checked with.
QV_PACKAGE_PACKAGES=(gcab cabextract osslsigncode openssl zip unzip)

# package_missing <name>: not installed.
package_missing()
{
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) != installed ]]
}

# install_packages <name...>: installs what is missing and runs no package manager when all is there.
install_packages()
{
    local package as_root=()
    local missing=()
    command -v dpkg-query >/dev/null ||
        fail "this system has no Debian packages; provide what these contain and try again: $*"
    for package in "$@"; do
        if package_missing "$package"; then
            missing+=("$package")
        fi
    done
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            fail "these packages are missing, and neither root nor sudo is there to install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${#missing[@]} missing packages: ${missing[*]}"
    if ! "${as_root[@]}" apt-get update -qq >&2; then
        say "The package lists could not be updated; trying with the ones that are there."
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2 ||
        fail "apt-get could not install these packages: ${missing[*]}"
    for package in "${missing[@]}"; do
        if package_missing "$package"; then
            fail "apt-get ended without installing $package"
        fi
    done
}
