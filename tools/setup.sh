# Sourced by run and test: installs missing packages for the builds, then configures. All messages
# go to standard error, so that the caller's standard output is not affected.

# Paths below the checkout count as relative, so that checkouts share the compiler cache.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

# Additional packages for bench/run.
qvx_bench_packages=(flex bison rapidjson-dev libbenchmark-dev)

# qvx_install_missing [PACKAGE...]: installs the packages for all builds and those named.
qvx_install_missing() {
  local packages=(g++ cmake ninja-build libgtest-dev wine wine64 g++-mingw-w64-x86-64-posix xvfb
                  xdotool x11-utils fonts-wqy-microhei fonts-wine imagemagick nlohmann-json3-dev
                  libcli11-dev zlib1g-dev libz-mingw-w64-dev python3 ccache clang clang-format
                  python3-clang-14 locales universal-ctags fp-utils "$@")
  local missing=() p
  for p in "${packages[@]}"; do
    [ "$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null)" = "install ok installed" ] || missing+=("$p")
  done
  local sudo=""; [ "$(id -u)" = 0 ] || sudo=sudo
  if [ ${#missing[@]} -gt 0 ]; then
    echo "installing: ${missing[*]}" >&2
    { $sudo apt-get update && $sudo env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"; } >&2 || return 1
  fi
  # Files with Chinese names need this locale. Code page 936 is available without it.
  locale -a | grep -qix 'zh_CN\.utf-\?8' || $sudo localedef -i zh_CN -f UTF-8 zh_CN.UTF-8 >&2
}

# qvx_configure PRESET: configures once.
qvx_configure() {
  local preset=$1
  local log="build/$preset.log"
  mkdir -p build
  [ ! -f "build/$preset/build.ninja" ] || return 0
  echo "configuring $preset" >&2
  cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

# qvx_build PRESET [TARGET...]: configures once and builds; prints the log only on failure.
qvx_build() {
  local preset=$1; shift
  local log="build/$preset.log"
  qvx_configure "$preset" || return 1
  echo "building $preset" >&2
  ninja -C "build/$preset" "$@" >"$log" 2>&1 || { tail -n 60 "$log" >&2; return 1; }
  # A warning does not stop the build, but makes ./test fail.
  if grep -q 'warning:' "$log"; then grep 'warning:' "$log" >>"build/$preset.warnings"; fi
}
