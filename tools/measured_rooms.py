"""The rooms that tools/coverage and tools/mutate measure, with the native test programs of each.

Only the sources beside win/ count: they are built natively. The name of a room is that of its folder."""
import collections
import glob
import os

# target: the CMake target of the room's sources. main: the programs whose sources are compiled again
# for a changed header. covers: all programs that count for coverage. kills: the programs that run for
# each change, without and with sanitizers. tests: files whose change makes survivors run again.
# helper: the test source that makes the room's objects; empty: all tests that see the header.
Room = collections.namedtuple("Room", "target main covers kills tests helper")

ROOMS = {
    "menu": Room(
        target="menu", main=["test_menu"],
        covers=["test_menu", "test_menu_failures", "test_menu_fuzz", "test_containers", "test_qmn"],
        kills={"plain": ["test_menu", "test_menu_fuzz", "test_qmn", "test_menu_failures"],
               "sanitized": ["test_menu", "test_menu_fuzz", "test_menu_failures"]},
        tests=["tests/menu/*.*", "tests/qmn/*.*", "tests/fuzz/*.*"],
        helper="tests/menu/menu_testing.cpp"),
    "editor": Room(
        target="editor_logic", main=["test_editor", "test_editor_text", "test_editor_objects"],
        covers=["test_editor", "test_editor_text", "test_editor_objects",
                "test_filter_fuzz", "test_edit_fuzz"],
        kills={"plain": ["test_editor_text", "test_editor", "test_editor_objects",
                "test_filter_fuzz", "test_edit_fuzz"],
               "sanitized": ["test_editor", "test_editor_text", "test_editor_objects",
                "test_filter_fuzz", "test_edit_fuzz"]},
        tests=["tests/editor/*.*", "tests/fuzz/*.*"], helper=""),
    "doctabs": Room(
        target="doctabs_logic", main=["test_doctabs"],
        covers=["test_doctabs"],
        kills={"plain": ["test_doctabs"], "sanitized": ["test_doctabs"]},
        tests=["tests/doctabs/*.*"], helper=""),
}


def sources_of(room, root):
    """Paths from the root, of sources and headers."""
    found = glob.glob(f"{root}/{room}/*.cpp") + glob.glob(f"{root}/{room}/*.h")
    return sorted(os.path.relpath(path, root) for path in found)
