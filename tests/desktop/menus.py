#!/usr/bin/python3
"""The menu bar: every item does what it says or is disabled; each window has a bar of its own."""

import os
import urllib.parse
from pathlib import Path

from fixture import EditorTest, main, move, step, write_demo

KINDS = {
    "Move to": "1, Move", "Click": "1, Click", "Right-click": "1, Right-click",
    "Hold (mouse down)": "1, Hold", "Release (mouse up)": "1, Release", "Type": "1, Type",
    "Keyboard shortcut": "1, Shortcut", "Wait": "1, Wait", "Switch app": "1, Switch",
    "Section": "Section",
}
BAR = {
    "File": ["New", "Open…", "Open Recent", "Close", "Save", "Save As…", "Export to Video…",
             "Quit"],
    "Edit": ["Undo", "Redo", "Cut", "Copy", "Paste", "Duplicate", "Select All"],
    "View": ["Live Backdrop", "Freeze", "Recording Backdrop", "Zoom 4×"],
    "Demo": ["Run Live", "Screen Recording", "Play", "Go to Start"],
    "Step": ["Add Step", "Record Actions", "Pick Location on Screen…", "Delete Step"],
    "Window": ["Minimize"],
    "Help": ["Velvane Help", "About Velvane", "Check for Updates…"],
}


def is_enabled(item):
    return item.has("enabled")


class Items(EditorTest):
    def wait_enabled(self, editor, *path, window=None):
        editor.wait(lambda: is_enabled(editor.item(*path, window=window)), f"{path} enabled")

    def wait_disabled(self, editor, *path, window=None):
        editor.wait(lambda: not is_enabled(editor.item(*path, window=window)), f"{path} disabled")

    def test_the_menus_have_their_items_in_order(self):
        editor = self.open(step("click"))
        bar = next(child for child in editor.window.children if child.role == "menu bar")
        self.assertEqual([menu.name for menu in bar.children], list(BAR))
        for menu, items in BAR.items():
            with self.subTest(menu=menu):
                shown = [item.name for item in editor.open_menu(menu)]
                self.assertEqual(shown[:len(items)], items)
                editor.close_menu()
        self.assertEqual([i.name for i in editor.open_menu("Demo", "Screen Recording")],
                         ["Don't Record", "Record Screen", "Record Active Window",
                          "Show Mouse Cursor"])
        editor.close_menu()
        self.assertEqual([i.name for i in editor.open_menu("Step", "Add Step")], list(KINDS))
        editor.close_menu()

    def test_every_kind_of_step_is_added_from_the_menu_and_deleted_again(self):
        editor = self.open()
        self.wait_disabled(editor, "Step", "Delete Step")
        for kind, row in KINDS.items():
            editor.choose_item("Step", "Add Step", kind)
            editor.wait_rows(row)
            editor.choose_item("Step", "Delete Step")
            editor.wait_rows()
            self.wait_disabled(editor, "Step", "Delete Step")

    def test_the_edit_menu_works_on_steps_and_names_what_it_undoes(self):
        editor = self.open(step("click"), step("hold"))
        for item in ("Undo", "Redo", "Cut", "Copy", "Duplicate"):
            self.assertFalse(is_enabled(editor.item("Edit", item)), item)
        editor.click(editor.row("1"))
        self.wait_enabled(editor, "Edit", "Cut")
        editor.choose_item("Edit", "Cut")
        editor.wait_rows("1, Hold")
        editor.choose_item("Edit", "Undo Cut Steps")
        editor.wait_rows("1, Click", "2, Hold")
        editor.choose_item("Edit", "Redo Cut Steps")
        editor.wait_rows("1, Hold")
        editor.choose_item("Edit", "Paste")
        editor.wait(lambda: len(editor.rows) == 2, "the pasted step")
        editor.choose_item("Edit", "Copy")
        editor.choose_item("Edit", "Duplicate")
        editor.wait(lambda: len(editor.rows) == 3, "the duplicate")
        editor.choose_item("Edit", "Select All")
        editor.choose_item("Step", "Delete Step")
        editor.wait_rows()

    def test_playing_and_going_to_the_start(self):
        editor = self.open(step("wait", pauseAfter=600.0))
        self.assertFalse(is_enabled(editor.item("Demo", "Go to Start")))
        editor.choose_item("Demo", "Play")
        editor.wait(lambda: editor.item("Demo", "Pause"), "Pause")
        editor.wait(lambda: editor.find("slider", "Time").value > 0, "time to pass")
        editor.choose_item("Demo", "Pause")
        editor.wait(lambda: editor.item("Demo", "Play"), "Play")
        editor.choose_item("Demo", "Go to Start")
        editor.wait(lambda: editor.find("slider", "Time").value == 0, "the start")
        self.wait_disabled(editor, "Demo", "Go to Start")

    def test_the_view_menu_shows_and_turns_the_magnifier(self):
        editor = self.open(move(3, 4))
        zoom = editor.item("View", "Zoom 4×")
        self.assertFalse(zoom.has("checked"))
        for checked in (True, False):
            editor.choose_item("View", "Zoom 4×")
            editor.wait(lambda: zoom.has("checked") == checked, f"checked: {checked}")
            button = editor.find("check box", "Magnify the canvas 4× (Z)")
            editor.wait(lambda: button.has("checked") == checked, "the tool bar to follow")
        editor.key("ctrl+8")
        editor.wait(lambda: zoom.has("checked"), "the check after the key")

    def test_recording_the_window_is_offered_for_one_application_only(self):
        editor = self.open(step("switchApp", text="Atlas"), step("switchApp", text="Bell"))
        items = [i.name for i in editor.open_menu("Demo", "Screen Recording") if i.showing]
        self.assertEqual(items, ["Don't Record", "Record Screen", "Show Mouse Cursor"])
        editor.close_menu()

    def test_disabled_items_do_nothing(self):
        editor = self.open(step("wait"))
        disabled = [(menu, item.name) for menu in BAR
                    for item in editor.item(menu).children[0].children
                    if item.name and not is_enabled(item)]
        self.assertIn(("Edit", "Undo"), disabled)
        self.assertIn(("Step", "Delete Step"), disabled)
        for menu, name in disabled:
            with self.subTest(item=name):
                editor.open_menu(menu)
                editor.click(editor.item(menu, name))
                editor.close_menu()
                editor.wait_rows("1, Wait")
        editor.wait_titles("demo")

    def test_the_help_menu_tells_versions_updates_and_where_the_help_is(self):
        # No browser is there to open the help.
        editor = self.open(step("click"), PATH=str(self.folder))
        editor.choose_item("Help", "About Velvane")
        editor.wait_question("Velvane 0.")
        editor.answer("OK")
        editor.choose_item("Help", "Check for Updates…")
        editor.wait_question("No update feed is configured")
        editor.answer("OK")
        for ask in (lambda: editor.choose_item("Help", "Velvane Help"),
                    lambda: editor.key("ctrl+question")):
            ask()
            editor.wait_question("The documentation could not be opened.")
            editor.answer("OK")

    def help_opened(self, **environment):
        """The page that opens where there is no network."""
        opened = self.folder / "opened"
        browser = self.folder / "xdg-open"
        browser.write_text(f'#!/bin/sh\nprintf "%s\\n" "$1" >>"{opened}"\n')
        browser.chmod(0o755)
        write_demo(self.demo, step("click"))
        editor = self.run_editor(PATH=f"{self.folder}:{os.environ['PATH']}", **environment)
        editor.key("ctrl+question")
        editor.wait(lambda: opened.exists() and opened.read_text(), "the page to be opened")
        page = urllib.parse.urlparse(opened.read_text().strip())
        self.assertEqual(page.scheme, "file")
        return Path(page.path).read_text()

    def test_without_a_network_the_help_that_came_with_the_program_opens(self):
        self.assertIn("<title>Velvane Help</title>", self.help_opened())

    def test_that_help_is_in_the_programs_language(self):
        page = self.help_opened(LANGUAGE="zh_CN:en")
        self.assertIn('<html lang="zh-CN">', page)
        self.assertIn("<title>Velvane 帮助</title>", page)


class TwoWindows(EditorTest):
    def open_two(self):
        editor = self.open(step("click"), step("hold"))
        editor.choose_item("File", "New")
        editor.wait_titles("demo", "Untitled")
        return editor, editor.window_of("demo"), editor.window_of("Untitled")

    def checked(self, editor, window, *path):
        return editor.item("Demo", "Screen Recording", *path, window=window).has("checked")

    def test_each_menu_bar_acts_on_its_own_window(self):
        editor, demo, untitled = self.open_two()
        editor.activate(untitled)
        editor.choose_item("Step", "Add Step", "Wait", window=untitled)
        editor.wait_titles("demo", "Untitled*")
        self.assertTrue(is_enabled(editor.item("Edit", "Undo Add Wait", window=untitled)))
        self.assertFalse(is_enabled(editor.item("Edit", "Undo", window=demo)))
        # A shortcut goes to the window that has the focus.
        editor.activate(demo)
        editor.key("ctrl+8")
        zooms = [editor.item("View", "Zoom 4×", window=window) for window in (demo, untitled)]
        editor.wait(lambda: zooms[0].has("checked"), "the magnifier of the focused window")
        self.assertFalse(zooms[1].has("checked"))

    def test_the_recording_mode_changes_in_both_at_once(self):
        editor, demo, untitled = self.open_two()
        for window in (demo, untitled):
            self.assertTrue(self.checked(editor, window, "Don't Record"))
            self.assertFalse(is_enabled(
                editor.item("Demo", "Screen Recording", "Show Mouse Cursor", window=window)))
        editor.activate(untitled)
        editor.choose_item("Demo", "Screen Recording", "Record Screen", window=untitled)
        for window in (demo, untitled):
            editor.wait(lambda: self.checked(editor, window, "Record Screen"), "the new mode")
            self.assertFalse(self.checked(editor, window, "Don't Record"))
        editor.choose_item("Demo", "Screen Recording", "Show Mouse Cursor", window=untitled)
        for window in (demo, untitled):
            editor.wait(lambda: not self.checked(editor, window, "Show Mouse Cursor"), "no cursor")

    def test_the_window_menu_leads_to_the_other_window(self):
        editor, demo, untitled = self.open_two()
        editor.activate(untitled)
        items = editor.open_menu("Window", window=untitled)
        self.assertEqual([(i.name, i.has("checked")) for i in items[1:]],
                         [("demo", False), ("Untitled", True)])
        editor.click(items[1])
        editor.wait(lambda: demo.has("active"), "the other window")
        editor.choose_item("Window", "Minimize", window=demo)
        editor.wait(lambda: not demo.has("active"), "the window to go")
        editor.activate(untitled)
        editor.click(editor.open_menu("Window", window=untitled)[1])
        editor.wait(lambda: demo.has("active"), "the minimized window")


if __name__ == "__main__":
    main()
