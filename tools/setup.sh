# Installs what a fresh Debian 12 lacks for building and testing. To be sourced after common.sh; call set_up.
# shellcheck shell=bash

packages=(
  build-essential cmake ninja-build ccache python3     # the native build and its generators
  g++-mingw-w64-x86-64-posix                           # the cross compiler
  wine64-tools gettext librsvg2-bin imagemagick        # messages, templates, translations, pictures
  googletest                                           # its sources; each build compiles them with its own flags
  wine wine64 fonts-wine fp-utils                      # the tests' Windows; a compiler of help files
  xvfb                                                 # a screen for the scripted session and the gallery
)

# missing_packages PACKAGE...: those that are not installed, one a line.
missing_packages() {
  comm -23 <(printf '%s\n' "$@" | sort) \
    <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p' | sort -u)
}

# as_root COMMAND...: directly or by sudo.
as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

install_packages() {
  export DEBIAN_FRONTEND=noninteractive
  as_root apt-get -o DPkg::Lock::Timeout=300 update &&
    as_root apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "$@"
}

# set_up [PACKAGE...]: installs what is missing of the packages above, and of those that only the caller needs. Returns
# at once when all is there.
set_up() {
  local needed=("${packages[@]}" "$@")
  if ! command -v dpkg-query >/dev/null; then
    say "This is not Debian: the packages that are needed cannot be checked. Needed: ${needed[*]}"
    return
  fi
  local missing
  mapfile -t missing < <(missing_packages "${needed[@]}")
  [ ${#missing[@]} = 0 ] && return

  say "Missing packages: ${missing[*]}"
  if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
    say "FAILED: they cannot be installed, since this is not root and there is no sudo. As root:"
    say "  apt-get install --no-install-recommends ${missing[*]}"
    return 1
  fi
  say "installing them, some minutes on a fresh machine"
  step "installed" setup install_packages "${missing[@]}" || return
  mapfile -t missing < <(missing_packages "${needed[@]}")
  if [ ${#missing[@]} != 0 ]; then
    say "FAILED: still missing after the installation: ${missing[*]}"
    return 1
  fi
}
