# Functions of ./test: run test programs, plays and checks, and count the results.
passed=0
failed=0
failures=()
fail() { failed=$((failed + 1)); failures+=("$1"); echo "FAILED: $1"; }
pass() { passed=$((passed + 1)); }

# beside NAME FUNCTION ARGS: runs it in the background with its own counts. `join NAME` waits,
# prints its output and adds its counts.
beside() {
  local name=$1; shift
  (
    passed=0 failed=0 failures=()
    trap qvx_wine_stop EXIT
    "$@"
    declare -p passed failed failures >"build/$name.counts"
  ) >"build/$name.out" 2>&1 &
  declare -g "job_$name=$!"
}
join() {
  local job=job_$1 seen=$passed missed=$failed earlier=("${failures[@]}")
  wait "${!job}"
  cat "build/$1.out"
  passed=0 failed=1 failures=("$1 came to no end")
  # shellcheck disable=SC1090
  [ ! -f "build/$1.counts" ] || . <(sed 's/^declare -[^ ]*/declare -g/' "build/$1.counts")
  passed=$((passed + seen)) failed=$((failed + missed)) failures=("${earlier[@]}" "${failures[@]}")
}

# Runs one test program. The count comes from its closing lines; a program that ends without them,
# or runs longer than five minutes, counts as one failure, reported by its name.
run_program() {
  local build=$1 program=$2 name log rc=0
  name=$(basename "$program"); log="build/$build/$name.log"
  if [ "$build" = windows ]; then
    LC_ALL=zh_CN.UTF-8 timeout 300 wine "$program" --gtest_color=no >"$log" 2>&1 || rc=$?
  else
    timeout 300 "$program" --gtest_color=no >"$log" 2>&1 || rc=$?
  fi
  tr -d '\r' <"$log" >"$log.unix" && mv "$log.unix" "$log"
  local ok bad
  ok=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) test.*/\1/p' "$log" | tail -n 1)
  bad=$(sed -n 's/^\[  FAILED  \] \([0-9]*\) test.*listed below.*/\1/p' "$log" | tail -n 1)
  passed=$((passed + ${ok:-0}))
  if [ -n "$bad" ]; then
    failed=$((failed + bad))
    failures+=("$build $name: $(sed -n 's/^\[  FAILED  \] \([^ ]*\).*/\1/p' "$log" | sort -u | tr '\n' ' ')")
    grep -B 12 '^\[  FAILED  \]' "$log" | head -n 120
  elif [ "$rc" -ne 0 ] || [ -z "$ok" ]; then
    fail "$build $name ended with $rc after: $(grep '^\[ RUN' "$log" | tail -n 1)"
    tail -n 30 "$log"
  fi
  printf '%-8s %-28s %5s passed %4s failed\n' "$build" "$name" "${ok:-0}" "${bad:-0}"
}

run_programs() {
  local build=$1 only=$2 program
  for program in build/"$build"/bin/test_*; do
    case $program in *.log|*.dll) continue ;; esac
    [ -f "$program" ] && [ -x "$program" ] || continue
    case $(basename "$program") in *"$only"*) run_program "$build" "$program" ;; esac
  done
}

# The native test programs whose name contains $1, or, where GTEST_FILTER names a suite, those that
# contain it.
native_programs() {
  local suite objects
  suite=${GTEST_FILTER%%.*}
  objects=$(ninja -C build/native -t targets all | sed -n 's#^tests/.*/\(test_[a-z0-9_]*\)\.dir/\(.*\)\.o: .*#\1 \2#p')
  if [ "$suite" = "$GTEST_FILTER" ] || [ "${suite#*"*"}" != "$suite" ]; then
    printf '%s\n' "$objects" | cut -d' ' -f1 | sort -u | grep -F -- "$1"
    return
  fi
  git grep -lE "^TEST(_F|_P)?\\($suite," -- tests | sed 's#.*/##' | while read -r source; do
    printf '%s\n' "$objects" | grep -E "[ /]$source\$" | cut -d' ' -f1
  done | sort -u
}

run_native() {
  local programs program
  qvx_configure native || { fail "native build"; return; }
  mapfile -t programs < <(native_programs "$1")
  [ ${#programs[@]} -gt 0 ] || { fail "no native test program for: $1$GTEST_FILTER"; return; }
  qvx_build native "${programs[@]}" || { fail "native build"; return; }
  for program in "${programs[@]}"; do run_program native "build/native/bin/$program"; done
}

run_windows_programs() {
  qvx_wine_start build/windows 0
  run_programs windows "$1"
}

# Runs a play. Lines in its head set options: `# args: ...` further arguments; `# product: NAME`
# copies tests/plays/products/NAME over a copy of the product; `# without: FILE...` removes files
# from that copy; `# exit: N` the expected exit code (0); `# output: TEXT` text that the output must
# contain; `# tips: shown` keeps the tip of the day, which is otherwise disabled. A play also fails
# when the host leaves a message waiting for more than half a second. Load on the machine can delay a
# message too: a play that fails for that alone is run once more, and its second result counts.
run_play() {
  local name waited
  name=$(basename "$1" .script)
  play_once "$1"
  waited=$(sed -n 's/.*longest wait \(.*\), which is longer than the play allows.*/\1/p' "build/plays/$name/output.txt")
  if [ "$play_met" = 0 ] && [ -n "$waited" ] && ! grep -q '^play\.script:[0-9]' "build/plays/$name/output.txt"; then
    printf 'play     %-28s again: waited %s\n' "$name" "$waited"
    play_once "$1"
  fi
  if [ "$play_met" = 1 ]; then pass; printf 'play     %-28s ok\n' "$name"; return; fi
  fail "play $name ended with $play_rc"; tail -n 15 "build/plays/$name/output.txt"
  tail -n 5 "build/plays/$name/journal.jsonl" 2>/dev/null
}

# Sets play_rc to the exit code, or to `crash`, and play_met to 1 if the play did what its head says.
play_once() {
  local script=$1 name want args overlay without output
  name=$(basename "$script" .script)
  head_value() { sed -n "s/^# $1: *//p" "$script" | head -n 1; }
  want=$(head_value exit); args=$(head_value args); overlay=$(head_value product)
  without=$(head_value without); output=$(head_value output)
  local work="build/plays/$name"
  rm -rf "$work"; mkdir -p "$work/product"
  cp -r build/windows/bin/product/. "$work/product/"
  [ -z "$overlay" ] || cp -r "tests/plays/products/$overlay/." "$work/product/"
  local f; for f in $without; do rm -f "$work/product/"$f; done
  cp product/*.dxf "$work/"
  cp "$script" "$work/play.script"
  qvx_forget_settings
  [ "$(head_value tips)" = shown ] || qvx_leave_out_tips
  # Without the browser control, whose start asks another process and can take ten seconds, the help
  # viewer opens no window; its calls are recorded all the same.
  play_rc=0
  # shellcheck disable=SC2086
  (cd "$work" && WINEDLLOVERRIDES="$WINEDLLOVERRIDES;ieframe=" LC_ALL=zh_CN.UTF-8 timeout 90 wine ../../windows/bin/devhost.exe --product product \
     --play play.script --journal journal.jsonl --longest-wait 0.5 $args) >"$work/output.txt" 2>&1 || play_rc=$?
  # A host that crashed ends with 0 after the debugger's report.
  if grep -qa '^wine: Unhandled' "$work/output.txt"; then play_rc=crash; fi
  play_met=0
  if [ "$play_rc" = "${want:-0}" ] && { [ -z "$output" ] || grep -qF -- "$output" "$work/output.txt"; }; then
    play_met=1
  fi
}

run_plays() {
  local script
  qvx_wine_start build/plays 1
  for script in tests/plays/*.script; do
    case $(basename "$script") in *"$1"*) run_play "$script" ;; esac
  done
  qvx_forget_settings
}

# Runs each executable in tools/checks/ on the tree and reports its output on failure.
run_checks() {
  local check out
  for check in tools/checks/*; do
    [ -x "$check" ] || continue
    if out=$("$check" 2>&1); then pass; printf 'check    %-28s ok\n' "$(basename "$check")"
    else fail "check $(basename "$check")"; printf '%s\n' "$out" | head -n 40; fi
  done
  if compgen -G 'build/*.warnings' >/dev/null; then fail "compiler warnings"; cat build/*.warnings | head -n 20; else pass; fi
}

report() {
  local f
  for f in "${failures[@]:-}"; do [ -n "$f" ] && echo "  failed: $f"; done
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
}
