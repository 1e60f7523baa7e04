#!/usr/bin/python3
"""The step list and the inspector, driven by mouse and keyboard; the saved file is what counts."""

import subprocess
import time

from driver import xdotool
from fixture import EditorTest, main, move, step
from heard import Heard

CONTROL, SHIFT, SUPER = 0x40000, 0x20000, 0x100000


class AddingSteps(EditorTest):
    # kind, label, point, text, duration, pauseAfter: what a fresh step holds
    FRESH = [
        ("move", "Move to", [640.0, 400.0], "", 1.2, 0.2),
        ("click", "Click", [0.0, 0.0], "", 1.0, 0.4),
        ("rightClick", "Right-click", [0.0, 0.0], "", 1.0, 0.4),
        ("hold", "Hold (mouse down)", [0.0, 0.0], "", 1.0, 0.3),
        ("release", "Release (mouse up)", [0.0, 0.0], "", 1.0, 0.3),
        ("type", "Type", [0.0, 0.0], "Type here", 1.6, 0.3),
        ("shortcut", "Keyboard shortcut", [0.0, 0.0], "", 1.0, 0.3),
        ("wait", "Wait", [0.0, 0.0], "", 1.0, 1.0),
        ("switchApp", "Switch app", [0.0, 0.0], "Safari", 1.0, 0.8),
        ("section", "Section", [0.0, 0.0], "Section", 1.0, 0.0),
    ]

    def test_every_kind_comes_from_the_grid_with_its_own_defaults(self):
        editor = self.open_new()
        editor.click(editor.row("1, Switch to app"))
        editor.key("Delete")
        editor.wait_rows()
        for count, (_, label, *_) in enumerate(self.FRESH, 1):
            editor.click(editor.find("push button", f"Add {label}"))
            editor.wait(lambda: len(editor.rows) == count, f"the row of {label}")
        editor.wait_rows("1, Move to (640, 400)", "2, Click", "3, Right-click",
                         "4, Hold mouse down", "5, Release mouse", '6, Type "Type here"',
                         "7, Shortcut", "8, Wait 1.0s", "9, Switch to Safari", "Section")
        saved = [
            (s["kind"], s["point"], s["text"], s["duration"], s["pauseAfter"])
            for s in editor.saved_steps()
        ]
        self.assertEqual(saved, [(kind, *rest) for kind, _, *rest in self.FRESH])

    def test_a_new_step_goes_after_the_selected_one(self):
        editor = self.open(step("click"), step("release"))
        editor.click(editor.row("1"))
        editor.click(editor.find("push button", "Add Wait"))
        editor.wait_rows("1, Click", "2, Wait", "3, Release")
        self.assert_steps(editor, "kind", ["click", "wait", "release"])

    def test_the_keyboard_alone_adds_a_step(self):
        editor = self.open(step("click"))
        button = editor.find("push button", "Add Hold (mouse down)")
        for _ in range(40):
            if button.has("focused"):
                break
            editor.key("Tab")
        self.assertTrue(button.has("focused"))
        editor.key("space")
        editor.wait_rows("1, Click", "2, Hold")
        self.assert_steps(editor, "kind", ["click", "hold"])


class EditingTheList(EditorTest):
    def test_a_row_is_dragged_below_another_and_back_by_undo(self):
        editor = self.open(step("click"), step("hold"), step("release"), step("wait"))
        x, y = editor.row("1, Click").centre
        left, top, width, height = editor.row("3, Release").box
        editor.drag((x, y), (x, top + height - 6))
        editor.wait_rows("1, Hold", "2, Release", "3, Click", "4, Wait")
        self.assert_steps(editor, "kind", ["hold", "release", "click", "wait"])
        editor.key("ctrl+z")
        editor.wait_rows("1, Click", "2, Hold", "3, Release", "4, Wait")

    def test_a_dragged_section_carries_its_steps(self):
        editor = self.open(step("section", text="One"), step("click"),
                           step("section", text="Two"), step("hold"))
        start = editor.row("One").centre
        x, y, width, height = editor.row("2, Hold").box
        editor.drag(start, (start[0], y + height + 60))
        editor.wait_rows("Two", "1, Hold", "One", "2, Click")
        self.assert_steps(editor, "kind", ["section", "hold", "section", "click"])

    def test_escape_ends_a_drag_without_a_change(self):
        editor = self.open(step("click"), step("hold"))
        x, y, width, height = editor.row("2").box
        editor.drag(editor.row("1").centre, (x + width // 2, y + height - 4), release=False)
        editor.key("Escape")
        editor.release()
        self.assert_steps(editor, "kind", ["click", "hold"])

    def test_several_selected_steps_go_at_once_and_come_back_at_once(self):
        editor = self.open(step("click"), step("hold"), step("release"), step("wait"))
        editor.click(editor.row("1"))
        editor.click(editor.row("3"), modifier="ctrl")
        editor.key("Delete")
        editor.wait_rows("1, Hold", "2, Wait")
        editor.key("ctrl+z")
        editor.wait_rows("1, Click", "2, Hold", "3, Release", "4, Wait")
        editor.key("ctrl+shift+z")
        editor.wait_rows("1, Hold", "2, Wait")
        self.assert_steps(editor, "kind", ["hold", "wait"])

    def test_the_rows_trash_and_the_inspectors_button_delete(self):
        editor = self.open(step("click"), step("hold"), step("wait"))
        editor.click(editor.row("1"))
        editor.click(editor.find("push button", "Delete Step"))
        editor.wait_rows("1, Hold", "2, Wait")
        x, y, width, height = editor.row("2, Wait").box
        xdotool("mousemove", x + width // 2, y + height // 2)
        # From the right: the inset, the duration, the trash.
        editor.click_at(x + width - 58, y + height // 2)
        editor.wait_rows("1, Hold")
        self.assert_steps(editor, "kind", ["hold"])

    def test_cut_copy_paste_and_duplicate_keep_what_steps_hold(self):
        editor = self.open(move(10, 20), step("type", text="abc"), step("wait", pauseAfter=2.5))
        editor.click(editor.row("2"))
        editor.key("ctrl+c")
        editor.click(editor.row("3"))
        editor.key("ctrl+v")
        editor.wait_rows("1, Move", "2, Type", "3, Wait", '4, Type "abc"')
        editor.click(editor.row("1"))
        editor.key("ctrl+x")
        editor.wait_rows("1, Type", "2, Wait", "3, Type")
        editor.key("End", "ctrl+v")
        editor.wait_rows("1, Type", "2, Wait", "3, Type", "4, Move to (10, 20)")
        editor.click(editor.row("2"))
        editor.key("ctrl+d")
        editor.wait_rows("1, Type", "2, Wait 2.5s", "3, Wait 2.5s", "4, Type", "5, Move")
        saved = editor.saved_steps()
        self.assertEqual([s["text"] for s in saved], ["abc", "", "", "abc", ""])
        self.assertEqual([s["pauseAfter"] for s in saved], [0.3, 2.5, 2.5, 0.3, 0.3])
        self.assertEqual(saved[4]["point"], [10.0, 20.0])
        self.assertEqual(len({s["id"] for s in saved}), 5, "every step has an id of its own")
        editor.key("ctrl+z")
        editor.wait_rows("1, Type", "2, Wait", "3, Type", "4, Move")

    def test_select_all_and_delete_empty_the_list(self):
        editor = self.open(step("click"), step("hold"), step("wait"))
        editor.click(editor.row("2"))
        editor.key("ctrl+a", "Delete")
        editor.wait_rows()
        self.assertEqual(editor.saved_steps(), [])

    def test_sections_fold_by_chevron_and_by_arrow_keys(self):
        editor = self.open(step("section", text="One"), step("click"), step("hold"))
        x, y, width, height = editor.row("One").box
        editor.click_at(x + 24, y + height // 2)
        editor.wait_rows("One")
        self.assertTrue(editor.saved_steps()[0]["collapsed"])
        editor.click(editor.row("One"))
        editor.key("Right")
        editor.wait_rows("One", "1, Click", "2, Hold")
        editor.key("Left")
        editor.wait_rows("One")
        editor.key("ctrl+z")  # folding is no edit, so there is nothing to undo
        self.assert_steps(editor, "collapsed", [True, False, False])


class Inspector(EditorTest):
    def test_text_is_typed_into_a_type_step_and_undone_as_one_edit(self):
        editor = self.open(step("type", text="Type here"))
        editor.click(editor.row("1"))
        editor.fill(editor.field("Text"), "Hello, world 42")
        editor.wait_rows('1, Type "Hello, world 42"')
        self.assert_steps(editor, "text", ["Hello, world 42"])
        editor.key("ctrl+z")
        editor.wait_rows('1, Type "Type here"')
        editor.key("ctrl+shift+z")
        editor.wait_rows('1, Type "Hello, world 42"')

    def test_text_still_being_typed_is_saved(self):
        editor = self.open(step("section", text="One"))
        editor.click(editor.row("One"))
        editor.click(editor.field("Title"))
        editor.key("End")
        editor.type(" and a half")
        editor.wait_rows("One and a half")
        self.assert_steps(editor, "text", ["One and a half"])
        self.assertTrue(editor.field("Title").has("focused"))

    def test_space_and_home_stay_with_the_text_while_it_is_typed(self):
        editor = self.open(step("type", text="ab"))
        editor.click(editor.row("1"))
        editor.click(editor.field("Text"))
        editor.key("End", "space", "c", "Home", "x")
        editor.wait_rows('1, Type "xab c"')
        self.assertEqual(editor.find("push button", "Play").name, "Play")

    def test_numbers_are_typed_and_bumped(self):
        editor = self.open(move(400, 300, duration=1.0, pauseAfter=0.25))
        editor.click(editor.row("1"))
        editor.fill(editor.field("Target X"), "512")
        editor.click(editor.field("Target Y"))
        editor.key("Up", "shift+Up", "Down", "Tab")
        editor.fill(editor.field("Duration"), "2.35")
        editor.click(editor.field("Pause"))
        editor.key("Up", "shift+Up", "Tab")
        saved = editor.saved_steps()[0]
        self.assertEqual(saved["point"], [512.0, 310.0])
        self.assertEqual((saved["duration"], saved["pauseAfter"]), (2.35, 1.4))
        for _ in range(4):
            editor.key("ctrl+z")
        editor.wait(lambda: editor.field("Pause").text == "0.25", "the first pause")
        saved = editor.saved_steps()[0]
        self.assertEqual(saved["point"], [400.0, 300.0])
        self.assertEqual((saved["duration"], saved["pauseAfter"]), (1.0, 0.25))

    def test_seconds_never_fall_below_their_least(self):
        editor = self.open(move(1, 1, duration=0.2, pauseAfter=0.1))
        editor.click(editor.row("1"))
        editor.click(editor.field("Duration"))
        editor.key("shift+Down", "Tab")
        editor.click(editor.field("Pause"))
        editor.key("shift+Down", "Tab")
        saved = editor.saved_steps()[0]
        self.assertEqual((saved["duration"], saved["pauseAfter"]), (0.05, 0.0))

    def test_shortcuts_are_recorded_even_those_that_the_window_takes(self):
        editor = self.open(step("shortcut"))
        before = self.demo.stat().st_ino
        editor.click(editor.row("1"))
        button = editor.find("push button", "Shortcut")
        editor.click(button)
        editor.key("ctrl+s")
        editor.wait_rows("1, Press ⌃S")
        self.assertEqual(self.demo.stat().st_ino, before, "the recorded keys must not save")
        saved = editor.saved_steps()[0]
        self.assertEqual((saved["keyCode"], saved["modifiers"], saved["text"]), (1, CONTROL, "S"))

        editor.click(button)
        editor.key("super+shift+4")
        editor.wait_rows("1, Press ⇧⌘")
        saved = editor.saved_steps()[0]
        self.assertEqual((saved["keyCode"], saved["modifiers"]), (21, SUPER | SHIFT))

        editor.click(button)
        editor.key("Tab")
        editor.wait_rows("1, Press ⇥")
        editor.click(button)
        editor.key("Escape")
        editor.key("ctrl+z", "ctrl+z")
        editor.wait_rows("1, Press ⌃S")
        saved = editor.saved_steps()[0]
        self.assertEqual((saved["keyCode"], saved["modifiers"], saved["text"]), (1, CONTROL, "S"))

    def test_caps_lock_adds_nothing_to_a_shortcut(self):
        editor = self.open(step("shortcut"))
        editor.click(editor.row("1"))
        editor.key("Caps_Lock")
        self.addCleanup(editor.key, "Caps_Lock")
        editor.click(editor.find("push button", "Shortcut"))
        editor.key("ctrl+s")
        editor.wait_rows("1, Press ⌃S")
        saved = editor.saved_steps()[0]
        self.assertEqual((saved["keyCode"], saved["modifiers"], saved["text"]), (1, CONTROL, "S"))

    def test_a_shortcut_that_stays_down_reaches_no_menu(self):
        subprocess.run(["xset", "r", "rate", "200", "30"], check=True)
        heard = Heard()
        self.addCleanup(heard.close)
        editor = self.open(step("shortcut"))
        editor.click(editor.row("1"))
        button = editor.find("push button", "Shortcut")
        for key, code, shown in (("d", 40, "⌃D"), ("z", 52, "⌃Z"), ("w", 25, "⌃W")):
            editor.click(button)
            since = heard.forget()
            xdotool("keydown", "ctrl", "keydown", key)
            time.sleep(0.9)
            xdotool("keyup", key, "keyup", "ctrl")
            editor.wait(lambda: ("key-up", code) in heard.keys(since), "the key to come up")
            self.assertGreater(heard.keys(since).count(("key-down", code)), 5, "it repeats")
            editor.wait_rows(f"1, Press {shown}")
        # The next press is the menu's again.
        editor.key("ctrl+d")
        editor.wait_rows("1, Press ⌃W", "2, Press ⌃W")


if __name__ == "__main__":
    main()
