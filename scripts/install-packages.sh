#!/usr/bin/env bash
# Installs the Debian packages that a piece of work needs, as far as they are missing.
#
#   scripts/install-packages.sh [build] [check] [fuzz] [coverage]
#
# build: compile, test and run. check: formatting and clang-tidy. fuzz: clang with libFuzzer. coverage: the report.
# Does nothing, and needs no rights, when all of them are there.
set -euo pipefail

build=(g++ binutils cmake ninja-build ccache nlohmann-json3-dev libcli11-dev libgtest-dev libbenchmark-dev
  qt6-base-dev qt6-tools-dev libqt6opengl6-dev libsqlite3-dev fonts-dejavu-core fonts-droid-fallback
  xvfb xauth xdotool openbox sqlite3 python3)
check=(clang clang-format clang-tidy git)
fuzz=(clang libclang-rt-14-dev)
coverage=(python3)

wanted=()
for piece in "${@:-build}"; do
  case "$piece" in
    build | check | fuzz | coverage)
      declare -n packages="$piece"
      wanted+=("${packages[@]}")
      ;;
    *)
      echo "install-packages: '$piece' is none of build, check, fuzz, coverage" >&2
      exit 2
      ;;
  esac
done

if ! command -v dpkg >/dev/null; then
  echo "install-packages: this is no Debian system. Please install what corresponds to: ${wanted[*]}" >&2
  exit 1
fi

missing=()
for package in "${wanted[@]}"; do
  if ! dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed$'; then
    missing+=("$package")
  fi
done
if [[ ${#missing[@]} -eq 0 ]]; then
  exit 0
fi

as_root=()
if [[ $(id -u) -ne 0 ]]; then
  if ! command -v sudo >/dev/null; then
    echo "install-packages: these packages are missing: ${missing[*]}" >&2
    echo "Installing them takes root or sudo, and neither is at hand. Please have them installed, then start again." >&2
    exit 1
  fi
  as_root=(sudo)
  # Without a terminal nobody can type a password, so sudo has to say no instead of waiting.
  [[ -t 0 ]] || as_root+=(-n)
fi

echo "Installing missing Debian packages: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
  >/dev/null
echo "Packages installed."
