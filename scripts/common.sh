# What the scripts in the root share. Sourced, not run; the caller has changed to the root.

cores=$(nproc)

# packages SECTION...: the names under these sections of packages.txt.
packages() {
  local section
  for section in "$@"; do
    sed -n "/^\[$section\]/,/^\[/p" scripts/packages.txt | sed -e '/^\[/d' -e 's/#.*//' | tr -s ' \n' '\n'
  done | sed '/^$/d'
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

# configure PRESET: sets up build/PRESET; a second call costs a second.
configure() {
  cmake --preset "$1" --log-level=WARNING
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
