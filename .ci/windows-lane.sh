#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Windows lane: cross-builds the library, its tests and nckit.exe with mingw-w64, runs every test under wine,
# installs the build and links a consumer against the installed package, and runs `nckit.exe info` on the
# bundled samples. With --linux-build DIR the nckit output is compared with DIR/bin/nckit's.
#
#   .ci/windows-lane.sh [--linux-build] [build/dev] [--sample samples/<file>]   (the sample from the source root)
#
# Installs the cross compiler, wine and the GoogleTest sources with apt-get when they are missing. Exits
# non-zero when the build, any test, the consumer or the nckit comparison fails, or when a program needs a
# MinGW runtime DLL.
set -euo pipefail

lane_start=$(date +%s)

linux_build=""
sample=""
while [[ $# -gt 0 ]]; do
  case "$1" in
    --linux-build) linux_build=$2; shift 2 ;;
    --sample) sample=$2; shift 2 ;;
    -h | --help) sed -n '2,10p' "$0"; exit 0 ;;
    -*) echo "windows-lane: unknown option '$1'" >&2; exit 2 ;;
    *) linux_build=$1; shift ;;  # the Linux build directory may also be given on its own
  esac
done
if [[ -n "$linux_build" ]]; then
  linux_build=$(cd "$linux_build" && pwd)  # named from the caller's directory
fi
cd "$(dirname "${BASH_SOURCE[0]}")/.."
root=$PWD

step() { printf '\n== windows lane: %s (%ds)\n' "$1" $(($(date +%s) - lane_start)); }

# --- tools ------------------------------------------------------------------------------------------------
step "tools"
missing=()
command -v x86_64-w64-mingw32-g++-posix >/dev/null || missing+=(g++-mingw-w64-x86-64-posix)
command -v x86_64-w64-mingw32-windres >/dev/null || missing+=(binutils-mingw-w64-x86-64)
command -v wine >/dev/null || missing+=(wine)
command -v wine64 >/dev/null || [[ -x /usr/lib/wine/wine64 ]] || missing+=(wine64)
[[ -f /usr/src/googletest/CMakeLists.txt ]] || missing+=(googletest)
if [[ ${#missing[@]} -gt 0 ]]; then
  echo "installing: ${missing[*]}"
  sudo=()
  [[ $(id -u) -eq 0 ]] || sudo=(sudo)
  "${sudo[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
x86_64-w64-mingw32-g++-posix --version | sed -n 1p  # sed reads to the end: no broken pipe
wine --version 2>/dev/null

# --- wine -------------------------------------------------------------------------------------------------
# The same settings the toolchain's test runner uses: a private prefix, no debug chatter, no Mono/Gecko
# installers, and no display, so that nothing can ever open a window.
export WINEPREFIX="$root/build/windows-wine/prefix"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY WAYLAND_DISPLAY
mkdir -p "$(dirname "$WINEPREFIX")"
if [[ ! -f "$WINEPREFIX/system.reg" ]]; then
  step "creating the wine prefix"
  wineboot --init >/dev/null 2>&1 || true
  wineserver --wait
fi
# One wine server for the whole lane instead of one per test program; stopped on every way out.
# (A server that is already running for this prefix stays in charge.)
wineserver --persistent 2>/dev/null || true
trap 'wineserver --kill >/dev/null 2>&1 || true' EXIT

# --- build ------------------------------------------------------------------------------------------------
step "configure"
cmake --preset windows >/dev/null
step "build"
cmake --build --preset windows --parallel 2
bin="$root/build/windows/bin"

# The programs carry their GCC runtime inside (static libgcc, libstdc++, winpthread): they may import system
# DLLs and libncappkit.dll only, so they run on a Windows machine without MinGW.
step "runtime DLLs"
runtime_ok=1
for module in "$bin"/*.exe "$bin"/*.dll; do
  imports=$(x86_64-w64-mingw32-objdump -p "$module" | sed -n 's/^[[:space:]]*DLL Name: //p' | tr '\n' ' ')
  echo "$(basename "$module"): $imports"
  if grep -qiE 'libstdc\+\+|libgcc|libwinpthread' <<<"$imports"; then
    echo "windows lane: $(basename "$module") needs a MinGW runtime DLL" >&2
    runtime_ok=0
  fi
done

# --- tests ------------------------------------------------------------------------------------------------
# ctest lists each test program's tests by running it under wine with a 5-second limit. Listing every program
# once beforehand starts wine's services and brings the programs into the page cache, which keeps those
# listings well inside the limit on a busy machine; a program that cannot start at all shows up here.
for test_exe in "$bin"/ncappkit_*_tests.exe; do
  if ! wine "$test_exe" --gtest_list_tests >/dev/null 2>&1; then
    echo "windows lane: $(basename "$test_exe") does not start under wine" >&2
  fi
done

step "tests under wine"
junit="$root/build/windows/ctest-junit.xml"
tests_ok=1
ctest --preset windows --output-junit "$junit" || tests_ok=0

# Failed tests from the JUnit file: "silent NAME" for a run that ended at once without printing a line (wine
# failed to start the program, which happens about once in a few thousand starts on a busy machine), "loud
# NAME" for everything else.
failed_tests() {
  awk '/<testcase name="/ { name = $0; sub(/.*<testcase name="/, "", name); sub(/".*/, "", name);
                             failed = ($0 ~ /status="fail"/); silent = 0 }
       /<system-out><\/system-out>/ { silent = 1 }
       /<\/testcase>/ { if (failed) print (silent ? "silent " : "loud ") name; failed = 0 }' "$1"
}
failures=$(failed_tests "$junit")
silent=$(sed -n 's/^silent //p' <<<"$failures")
loud=$(sed -n 's/^loud //p' <<<"$failures")
if [[ $tests_ok -eq 0 && -n "$silent" ]]; then
  # Silent failures are run exactly once more, whatever else failed; a test that fails again fails the lane,
  # and so does any test that failed with output (those are never run again).
  echo "windows lane: running again the tests that failed without printing anything:" $silent
  # Names of parameterised tests carry their parameter ("  # GetParam() = 12", or a byte dump in angle
  # brackets), so the JUnit entities are decoded and every regular-expression character is escaped.
  pattern=$(sed -e 's/&lt;/</g; s/&gt;/>/g; s/&quot;/"/g; s/&apos;/'"'"'/g; s/&amp;/\&/g' \
                -e 's/[][\\.^$*+?(){}|]/\\&/g' <<<"$silent" | paste -sd '|' -)
  if ctest --preset windows -R "^($pattern)\$" && [[ -z "$loud" ]]; then
    tests_ok=1
  fi
fi
if [[ -n "$loud" ]]; then
  echo "windows lane: tests that failed with output:" $loud
fi

skipped=$(sed -n 's/^[[:space:]]*skipped="\([0-9]*\)".*/\1/p' "$junit" | head -n 1)
total=$(sed -n 's/^[[:space:]]*tests="\([0-9]*\)".*/\1/p' "$junit" | head -n 1)
disabled=$(sed -n 's/^[[:space:]]*disabled="\([0-9]*\)".*/\1/p' "$junit" | head -n 1)
echo "windows lane: ${skipped:-?} of ${total:-?} tests skipped (and ${disabled:-?} disabled on every system)"
grep -o '<testcase name="[^"]*"[^>]*status="notrun"' "$junit" | sed 's/<testcase name="\([^"]*\)".*/  skipped: \1/' || true

# --- install tree and consumer ------------------------------------------------------------------------------
# The consumer project of tests/consumer, cross-built against the installed package and run under wine.
step "install and consumer"
install_dir="$root/build/windows-install"
consumer_build="$root/build/windows-consumer"
rm -rf "$install_dir" "$consumer_build"
cmake --install "$root/build/windows" --prefix "$install_dir" >/dev/null
consumer_ok=1
# The toolchain looks for packages in the target's sysroot only, so the package is named by its directory.
if cmake -S tests/consumer/find_package -B "$consumer_build" -G Ninja \
     -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchains/mingw-w64-x86_64.cmake" \
     -Dncappkit_DIR="$install_dir/lib/cmake/ncappkit" >/dev/null &&
   cmake --build "$consumer_build" >/dev/null; then
  # The DLL stays in the install tree; wine finds it through WINEPATH as Windows would through PATH.
  if ! WINEPATH="$(winepath -w "$install_dir/bin")" wine "$consumer_build/consumer.exe"; then
    echo "windows lane: the consumer of the installed package failed" >&2
    consumer_ok=0
  fi
else
  echo "windows lane: the consumer of the installed package failed to build" >&2
  consumer_ok=0
fi

# --- nckit info on the bundled samples ----------------------------------------------------------------------
step "nckit.exe info"
nckit_ok=1
samples=()
if [[ -n "$sample" ]]; then
  samples=("$sample")
else
  while IFS= read -r found; do samples+=("$found"); done < <(
    find samples -maxdepth 1 -type f \( -iname '*.nc' -o -iname '*.mpf' -o -iname '*.spf' \) | sort)
fi
if [[ ${#samples[@]} -eq 0 ]]; then
  echo "windows lane: no bundled sample NC file under samples/" >&2
  nckit_ok=0
fi
for sample in "${samples[@]}"; do
  # The sample is named relative to the source tree, so the table shows the same file name on both systems.
  name=$(basename "$sample")
  win_out="$root/build/windows/nckit-info-$name.txt"
  win_rc=0
  wine "$bin/nckit.exe" info "$sample" >"$win_out.raw" 2>&1 || win_rc=$?
  # Console output of a Windows program ends its lines with CR LF.
  tr -d '\r' <"$win_out.raw" >"$win_out"
  cat "$win_out"
  echo "(nckit.exe info $sample exited with $win_rc)"
  [[ $win_rc -eq 0 ]] || nckit_ok=0
  if [[ -n "$linux_build" ]]; then
    linux_out="$root/build/windows/nckit-info-$name.linux.txt"
    linux_rc=0
    "$linux_build/bin/nckit" info "$sample" >"$linux_out" 2>&1 || linux_rc=$?
    if [[ $linux_rc -eq $win_rc ]] && diff -u "$linux_out" "$win_out"; then
      echo "windows lane: nckit info $sample prints the same table as the Linux build"
    else
      echo "windows lane: nckit info $sample differs from the Linux build (exit $linux_rc there, $win_rc here)" >&2
      nckit_ok=0
    fi
  fi
  echo
done

# --- result -----------------------------------------------------------------------------------------------
elapsed=$(($(date +%s) - lane_start))
echo
echo "windows lane: runtime $([[ $runtime_ok -eq 1 ]] && echo static || echo FAILED)," \
  "tests $([[ $tests_ok -eq 1 ]] && echo passed || echo FAILED)," \
  "skipped ${skipped:-?} of ${total:-?}," \
  "consumer $([[ $consumer_ok -eq 1 ]] && echo ok || echo FAILED)," \
  "nckit info $([[ $nckit_ok -eq 1 ]] && echo ok || echo FAILED), ${elapsed}s"
[[ $runtime_ok -eq 1 && $tests_ok -eq 1 && $consumer_ok -eq 1 && $nckit_ok -eq 1 ]]
