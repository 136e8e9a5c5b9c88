"""Reads every product file with a second compiler as the Windows build compiles it, and answers what it
said and which kernel names the file uses. Both checks that read this share one pass; a file is
compiled again only when it, its command or one of its headers changed.

A kernel name counts as used where the compiler sees a use: each declaration in a copy of the kernel's
headers is marked as deprecated under its own name, so overloads, implicit conversions and operators
count too. What only the C++ library calls on a kernel class, inside its own headers, does not.
"""
import concurrent.futures
import hashlib
import json
import os
import re
import shlex
import subprocess

import clang.cindex as ci

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
PRODUCT = ["frame", "ground", "menu", "screenmenu", "popup", "statusbar", "doctabs", "editor", "dialogs", "resources"]
BUILD = "build/clang"
MARKED = BUILD + "/include"
GCC = "/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include"
TARGET = ["--target=x86_64-w64-mingw32", "-std=c++20", "-nostdinc++"]
SYSTEM = [GCC + "/c++", GCC + "/c++/x86_64-w64-mingw32", GCC + "/c++/backward",
          "/usr/x86_64-w64-mingw32/include"]
# The vendors' headers, as they would be after an exchange: their own warnings are not ours.
VENDOR = ["standins/platform/afx", "standins/platform/arx"]
USE = re.compile(r"^(?:\./)?([^:]+):(\d+):\d+: warning: '[^\n]*' is deprecated: kernel name (\S+) ")


def product_files(suffixes=(".cpp",)):
    found = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", *PRODUCT],
                           cwd=ROOT, capture_output=True, text=True, check=True).stdout.split("\n")
    return sorted(f for f in found if f.endswith(suffixes) and os.path.exists(os.path.join(ROOT, f)))


def digest(path):
    with open(os.path.join(ROOT, path), "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()


# ---- the kernel's headers with every name marked

FUNCTIONS = {ci.CursorKind.FUNCTION_DECL, ci.CursorKind.CXX_METHOD, ci.CursorKind.CONSTRUCTOR,
             ci.CursorKind.CONVERSION_FUNCTION, ci.CursorKind.FUNCTION_TEMPLATE}
RECORDS = {ci.CursorKind.CLASS_DECL, ci.CursorKind.STRUCT_DECL, ci.CursorKind.CLASS_TEMPLATE,
           ci.CursorKind.ENUM_DECL}
OTHERS = {ci.CursorKind.VAR_DECL, ci.CursorKind.FIELD_DECL, ci.CursorKind.TYPE_ALIAS_DECL}


def qualified(cursor):
    names = []
    while cursor is not None and cursor.kind != ci.CursorKind.TRANSLATION_UNIT:
        if cursor.spelling:
            names.append(re.sub(r"<.*", "", cursor.spelling) if cursor.kind in (
                ci.CursorKind.CONSTRUCTOR, ci.CursorKind.CLASS_TEMPLATE) else cursor.spelling)
        cursor = cursor.semantic_parent
    return "::".join(reversed(names)).replace(" ", "_")


def marks_of(cursor, path, source, marks):
    """Collects (offset, text) to be put into the header, and the names they stand for."""
    for child in cursor.get_children():
        if not child.location.file or os.path.realpath(child.location.file.name) != path:
            continue
        kind = child.kind
        if kind in (ci.CursorKind.NAMESPACE, ci.CursorKind.LINKAGE_SPEC, ci.CursorKind.UNEXPOSED_DECL):
            marks_of(child, path, source, marks)
            continue
        hidden = child.access_specifier == ci.AccessSpecifier.PRIVATE
        name = qualified(child)
        text = f'kernel name {name} '
        if kind in RECORDS:
            if child.is_definition() and child.spelling and not hidden and not made_by_macro(child, source):
                marks.append((child.location.offset, f'[[deprecated("{text}")]] ', name))
            if kind == ci.CursorKind.ENUM_DECL:
                for value in child.get_children():
                    if value.kind == ci.CursorKind.ENUM_CONSTANT_DECL and not hidden:
                        name = qualified(value)
                        end = value.location.offset + len(value.spelling)
                        marks.append((end, f' [[deprecated("kernel name {name} ")]]', name))
            else:
                marks_of(child, path, source, marks)
            continue
        if not child.spelling or hidden or made_by_macro(child, source):
            continue
        if kind in FUNCTIONS:
            marks.append((function_start(child, source), f'[[deprecated("{text}")]] ', name))
        elif kind in OTHERS:
            end = child.location.offset + len(child.spelling)
            marks.append((end, f' [[deprecated("{text}")]]', name))


def made_by_macro(cursor, source):
    """What a macro of the host's interface declares has no place of its own to be marked at."""
    name = re.sub(r"<.*", "", cursor.spelling).split(" ")[0]
    return not source.startswith(name.encode(), cursor.location.offset)


def function_start(cursor, source):
    """Where an attribute of a function stands: ahead of it, but behind the head of a template."""
    start = cursor.extent.start.offset
    if cursor.kind != ci.CursorKind.FUNCTION_TEMPLATE:
        return start
    depth, at = 0, source.index(b"<", start)
    while True:
        depth += {b"<": 1, b">": -1}.get(source[at:at + 1], 0)
        at += 1
        if depth == 0:
            return at


def mark_kernel():
    """Writes the marked copies under build/ and answers all names of the kernel's headers."""
    headers = sorted(f for f in subprocess.run(
        ["git", "ls-files", "standins/kernel"], cwd=ROOT, capture_output=True, text=True,
        check=True).stdout.split() if f.endswith(".h"))
    names = {}
    flags = TARGET + ["-DUNICODE", "-D_UNICODE", "-DNOMINMAX", "-DWIN32_LEAN_AND_MEAN", "-x", "c++"]
    flags += ["-resource-dir", subprocess.run(["clang++", "-print-resource-dir"], capture_output=True,
                                              text=True, check=True).stdout.strip()]
    for folder in SYSTEM + [os.path.join(ROOT, v) for v in VENDOR]:
        flags += ["-isystem", folder]
    flags += ["-I", ROOT, "-I", os.path.join(ROOT, "standins")]
    key = hashlib.sha256(("".join(digest(h) for h in headers) + digest(os.path.relpath(__file__, ROOT)))
                         .encode()).hexdigest()
    index_file = os.path.join(ROOT, BUILD, "kernel.json")
    if os.path.exists(index_file):
        known = json.load(open(index_file, encoding="utf-8"))
        if known["key"] == key:
            return known["names"]
    index = ci.Index.create()
    for header in headers:
        path = os.path.realpath(os.path.join(ROOT, header))
        with open(path, "rb") as file:
            source = file.read()
        unit = index.parse(path, args=flags, options=ci.TranslationUnit.PARSE_SKIP_FUNCTION_BODIES)
        errors = [str(d) for d in unit.diagnostics if d.severity >= ci.Diagnostic.Error]
        if errors:
            raise SystemExit(f"{header}: " + "\n".join(errors))
        marks = []
        marks_of(unit.cursor, path, source, marks)
        for offset, text, name in sorted(marks, reverse=True):
            names.setdefault(name, header)
            source = source[:offset] + text.encode() + source[offset:]
        target = os.path.join(ROOT, MARKED, header[len("standins/"):])
        os.makedirs(os.path.dirname(target), exist_ok=True)
        with open(target, "wb") as file:
            file.write(source)
    with open(index_file, "w", encoding="utf-8") as file:
        json.dump({"key": key, "names": names}, file)
    return names


# ---- one pass over the product

def commands():
    """Product file -> the defines the Windows build gives it."""
    text = subprocess.run(["ninja", "-C", "build/windows", "-t", "compdb"], cwd=ROOT, capture_output=True,
                          text=True, check=True).stdout
    defines = {}
    for entry in json.loads(text):
        path = os.path.relpath(os.path.join(entry["directory"], entry["file"]), os.path.realpath(ROOT))
        defines.setdefault(path, [w for w in shlex.split(entry["command"]) if w.startswith("-D")])
    return defines


def command_for(path, defines):
    words = ["clang++", *TARGET, "-fsyntax-only", "-ferror-limit=0", "-Wall", "-Wextra", "-fno-caret-diagnostics",
             "-fno-color-diagnostics", *defines, "-I."]
    for folder in [MARKED, *VENDOR, "standins", *SYSTEM]:
        words += ["-isystem", folder]
    return words + ["-MD", "-MF", "-", path]


def compile_one(path, defines):
    store = os.path.join(ROOT, BUILD, path.replace("/", "_") + ".json")
    command = command_for(path, defines) + [digest(os.path.relpath(__file__, ROOT))]
    if os.path.exists(store):
        known = json.load(open(store, encoding="utf-8"))
        if known["command"] == command and all(
                os.path.exists(os.path.join(ROOT, f)) and digest(f) == h for f, h in known["files"].items()):
            return known
    done = subprocess.run(command[:-1], cwd=ROOT, capture_output=True, text=True, errors="replace")
    uses, said = set(), []
    for line in done.stderr.splitlines():
        use = USE.match(line)
        if use:
            uses.add((use[1], use[3]))
        elif not re.search(r": note: |^\d+ (warning|error)s? |^In file included from", line) and line.strip():
            said.append(line)
    if done.returncode and not said:
        said = [f"{path}: the compiler failed with {done.returncode}"]
    files = [f for f in done.stdout.replace("\\\n", " ").split()[1:] if not os.path.isabs(f)]
    known = {"command": command, "files": {f: digest(f) for f in files}, "uses": sorted(uses),
             "said": said}
    if files and not done.returncode:
        with open(store, "w", encoding="utf-8") as file:
            json.dump(known, file)
    return known


def run():
    """File -> what the compiler said and the kernel names used; and all names of the kernel."""
    if not os.path.exists(os.path.join(ROOT, "build/windows/build.ninja")):
        raise SystemExit("build/windows is not configured: cmake --preset windows")
    os.makedirs(os.path.join(ROOT, BUILD), exist_ok=True)
    names = mark_kernel()
    defines = commands()
    files = product_files()
    missing = [f for f in files if f not in defines]
    results = {f: {"said": [f"{f}: not in the Windows build"], "uses": []} for f in missing}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        work = {f: pool.submit(compile_one, f, defines[f]) for f in files if f not in missing}
        results.update((f, w.result()) for f, w in work.items())
    return results, names
