# The set-up of ./run, ./test and the scripts beside this file, which source it: packages, configuration and build.
# The caller sets `root` (the source tree) and `step` (the word before each printed line). POSIX sh.

build_packages="build-essential cmake ninja-build ccache qt6-base-dev qt6-tools-dev
pkgconf libgl-dev libglib2.0-dev libx11-dev librsvg2-bin qt6-webengine-dev"
# Qt's plug-in for SVG pictures. Debian 12 has it in the package of the library.
svg_plugin=qt6-svg-plugins
[ "$(. /etc/os-release 2>/dev/null && echo "$VERSION_ID")" != 12 ] || svg_plugin=libqt6svg6
runtime_packages="$svg_plugin qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core xdg-utils"
test_packages="libgtest-dev libbenchmark-dev python3 xvfb openbox xdotool wmctrl x11-utils
imagemagick cups-daemon cups-client lintian dpkg-dev appstream desktop-file-utils fakeroot poppler-utils
weston qt6-wayland"
fuzz_packages="clang libclang-rt-dev"
check_packages="$fuzz_packages clang-format clang-tidy git"

tell() {
  printf '%s: %s\n' "$step" "$*" >&2
}

# Installs the missing ones of the given packages. Doesn't use the network if all are installed.
install_missing() {
  if ! command -v dpkg-query >/dev/null; then
    tell "no Debian packages here; going on with what is installed (needed: $(echo $*))"
    return 0
  fi
  installed=$(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "$@" 2>/dev/null | sed -n 's/^.i *//p')
  missing=
  for package in "$@"; do
    printf '%s\n' "$installed" | grep -qx "$package" || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0

  as_root=
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      tell "these packages are missing, and only root or sudo can install them:$missing"
      return 1
    fi
    as_root=sudo
  fi
  tell "installing missing packages:$missing"
  apt="$as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0"
  $apt update >&2 && $apt install -y --no-install-recommends $missing >&2 || {
    tell "the packages could not be installed"
    return 1
  }
}

# configure_and_build PRESET [OPTION ...] [TARGET ...]
# Configures the preset unless this tree is already configured with these options of cmake (-D...). Then builds the
# targets, by default all.
configure_and_build() {
  preset=$1
  shift
  build=$root/build/$preset
  options= targets= configured=yes
  for word in "$@"; do
    case $word in
      -*)
        options="$options $word"
        name=${word#-D}
        grep -qxF "${name%%=*}:BOOL=${name#*=}" "$build/CMakeCache.txt" 2>/dev/null || configured=
        ;;
      *) targets="$targets $word" ;;
    esac
  done
  if ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$build/CMakeCache.txt" 2>/dev/null; then
    rm -f "$build/CMakeCache.txt" "$build/build.ninja"
  fi
  if [ -z "$configured" ] || ! [ -f "$build/build.ninja" ]; then
    tell "configuring build/$preset"
    (cd "$root" && cmake --log-level=WARNING --preset "$preset" $options >&2) || return 1
  fi
  tell "building what changed in build/$preset"
  # On a terminal ninja shows its progress in one line. A log gets only errors and warnings.
  quiet=--quiet
  [ -t 2 ] && quiet=
  ninja -C "$build" -j "$(nproc)" $quiet $targets >&2
}
