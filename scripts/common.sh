# What the scripts in the root share. Sourced, not run; the caller has changed to the root.

cores=$(nproc)

# The code name of the machine's release, as "bookworm".
release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)

# named_releases: those that packages.txt names, in its order.
named_releases() {
  sed -n 's/^[^#[][^#]*\[\([^]]*\)\].*/\1/p' scripts/packages.txt | tr -s ' ' '\n'
}

# release_in_list: the release whose names hold on this machine.
release_in_list() {
  if named_releases | grep -qx "$release"; then
    echo "$release"
  else
    named_releases | tail -n 1
  fi
}

# packages SECTION...: the names under these sections of packages.txt that this release has.
packages() {
  awk -v sections=" $* " -v release="$(release_in_list)" '
    { sub(/#.*/, "") }
    /^\[/ { gsub(/[][ ]/, ""); inside = index(sections, " " $0 " "); next }
    !inside || NF == 0 { next }
    NF > 1 { named = $0; gsub(/[][]/, " ", named); if (!index(named " ", " " release " ")) next }
    { print $1 }' scripts/packages.txt
}

# clang_version: that of the clang tools which this release has.
clang_version() {
  packages check | sed -n 's/^clang-\([0-9]*\)$/\1/p'
}

# is_installed PACKAGE
is_installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# as_root COMMAND...: through sudo only where it is needed.
as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "Packages are missing and neither root nor sudo is at hand. As root: $*" >&2
    return 1
  fi
}

# install_packages SECTION...: asks the package mirror only when something is missing.
install_packages() {
  local name missing=()
  for name in $(packages "$@"); do
    is_installed "$name" || missing+=("$name")
  done
  [ ${#missing[@]} = 0 ] && return 0
  echo "installing: ${missing[*]}"
  as_root apt-get update -q
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# configure PRESET: sets up build/PRESET; a second call costs a second. Only clang has fuzzing.
configure() {
  local compiler=()
  [ "$1" = fuzz ] && compiler=(-DCMAKE_CXX_COMPILER="clang++-$(clang_version)")
  cmake --preset "$1" --log-level=WARNING "${compiler[@]}"
}

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  ninja -C "build/$preset" -j "$cores" "$@"
}

# sources: all our C++ files, one a line.
sources() {
  find src tests benchmarks samples -name '*.h' -o -name '*.cpp' | sort
}
