#!/bin/sh
# Tries the last commit on a Debian release: packaging/on_release.sh RELEASE [FROM]
#
# 1. Makes a system of the release (bookworm, trixie) in a temporary folder, from the package sources of this machine.
#    from_nothing.sh builds, tests and packs a clone in that system.
# 2. Installs the packages in a fresh system of the release.
# 3. With an earlier release FROM, which this script must have tried before: installs the packages of FROM in a fresh
#    system of FROM, then upgrades that system to RELEASE.
# Packages, a log and a summary with times stay in build/on_release/RELEASE. The systems are removed. CXX=clang++ builds
# with clang.
root=$(dirname "$(dirname "$(readlink -f "$0")")")
step=on_release
. "$root/packaging/setup.sh"
release=${1:?usage: packaging/on_release.sh RELEASE [FROM]}
from=${2-}
results=$root/build/on_release/$release
old=$root/build/on_release/$from/packages

# Prints the lines of sources.list for the release $1: those of this machine, with the name of its release replaced.
sources_of() {
  apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Identifier: Packages' |
    sed -n "s/^\(deb [^ ]* \)$(. /etc/os-release && echo "$VERSION_CODENAME")\([^ ]* .*\)/\1$1\2/p" | sort -u
}

# Makes a system of the release $1, runs the other arguments as options (hooks) of mmdebstrap, and removes the system.
on_system() {
  made=$1
  shift
  sources_of "$made" | mmdebstrap --variant=apt --format=null --include=ca-certificates "$@" "$made" /dev/null -
}

# Runs a command after its name $1. Adds the name, the result and the time to the summary.
timed() {
  what=$1
  shift
  begin=$(date +%s)
  ended=passed
  "$@" >>"$results/log" 2>&1 || ended=FAILED
  took=$(($(date +%s) - begin))
  echo "$release: $what: $ended in $((took / 60)) min $((took % 60)) s" | tee -a "$results/summary" >&2
  [ $ended = passed ] || tell "the log: $results/log"
  [ $ended = passed ]
}

# Shows that the installed program and its modules find all libraries.
runs='pelmar-vex --version && ! ldd /usr/bin/pelmar-vex /usr/lib/*/pelmar-vex/*.so | grep "not found"'

install_missing mmdebstrap git || exit 1
rm -rf "$results"
mkdir -p "$results"
sources_of "$release" >"$results/sources"
git clone -q "file://$root" "$results/pelmar-vex" || exit 1
timed "build, test and pack" on_system "$release" ${CXX:+--include=clang} \
  --customize-hook="copy-in '$results/pelmar-vex' /" \
  --customize-hook="chroot \"\$1\" env ${CXX:+CXX=$CXX} /pelmar-vex/packaging/from_nothing.sh" \
  --customize-hook="copy-out /pelmar-vex/build/release/packages '$results'" || exit 1
grep '^from_nothing: ' "$results/log" | tee -a "$results/summary" >&2
rm -rf "$results/pelmar-vex"
timed "install" on_system "$release" --customize-hook="copy-in '$results/packages' /" \
  --customize-hook="chroot \"\$1\" sh -c 'apt-get -qq install /packages/*.deb && $runs'" || exit 1
[ -n "$from" ] || exit 0
timed "upgrade from $from" on_system "$from" --customize-hook="copy-in '$old' /" \
  --customize-hook="chroot \"\$1\" sh -c 'apt-get -qq install /packages/*.deb && $runs && rm -r /packages'" \
  --customize-hook="copy-in '$results/packages' /" --customize-hook="upload '$results/sources' /etc/apt/sources.list" \
  --customize-hook="chroot \"\$1\" sh -c 'apt-get -qq update && apt-get -qq full-upgrade && apt-get -qq install /packages/*.deb && $runs'"
