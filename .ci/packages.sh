# What has to be installed, and how. Sourced by run, test and the scripts beside this file; the one place to edit
# when a dependency comes or goes.

readonly BUILD_PACKAGES=(cmake g++ ninja-build pkg-config libpugixml-dev libzip-dev zlib1g-dev libcli11-dev nlohmann-json3-dev)
readonly TEST_PACKAGES=(libgtest-dev libgmock-dev python3)
readonly DESKTOP_PACKAGES=(qt6-base-dev qt6-svg-dev qt6-translations-l10n)
readonly CHECK_PACKAGES=(clang clang-tidy clang-format cppcheck libclang-rt-14-dev)
readonly FUZZ_PACKAGES=(clang libclang-rt-14-dev)
readonly BENCH_PACKAGES=(libbenchmark-dev qt6-base-dev libglib2.0-dev valgrind python3 python3-matplotlib)
readonly COVERAGE_PACKAGES=(gcovr)
readonly DOCUMENTATION_PACKAGES=(doxygen)
# What the installed tree and the packages are tried with.
readonly INSTALL_PACKAGES=(debootstrap dpkg-dev file desktop-file-utils bash-completion fish zsh python3)

# as_root COMMAND...: runs it with the rights that a package manager needs.
as_root()
{
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# install_missing PACKAGE...: installs those that are not there; silent when none is missing. Elsewhere than on
# Debian and its relatives it does nothing, and the configure step names what it cannot find.
install_missing()
{
    command -v apt-get >/dev/null && command -v dpkg-query >/dev/null || return 0

    local package missing=()
    for package in "$@"; do
        # shellcheck disable=SC2016 # dpkg-query's own placeholder
        if [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    printf 'Installing: %s\n' "${missing[*]}" >&2
    local log
    log=$(mktemp)
    if ! { as_root apt-get update -qq &&
           as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
         } >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        rm -f "$log"
        printf 'Could not install: %s. Install them by hand, then try again.\n' "${missing[*]}" >&2
        return 1
    fi
    rm -f "$log"
}
