#!/usr/bin/python3
"""What a screen reader meets through AT-SPI: names, roles, rows, and actions that act."""

from fixture import EditorTest, main, move, step

ROLES = {"canvas", "check box", "list", "list item", "push button", "slider", "text"}


class Tree(EditorTest):
    def test_the_window_is_there_and_named_after_the_demo(self):
        editor = self.open(step("click"))
        self.assertEqual(editor.root.role, "application")
        self.assertEqual(editor.window.role, "frame")
        self.assertTrue(editor.window.name.startswith("demo"), editor.window.name)
        self.assertGreaterEqual(editor.window.box[2:], (960, 600))

    def focusable(self, editor):
        # The window's ground takes the focus off the fields when it is clicked, no more.
        ground = editor.window.children[0]
        return [
            node
            for node in editor.root.walk(shown_only=True)
            if node.has("focusable") and node.raw != ground.raw
        ]

    def assert_described(self, editor):
        nodes = self.focusable(editor)
        self.assertGreater(len(nodes), 20)
        for node in nodes:
            with self.subTest(node=repr(node)):
                self.assertTrue(node.name.strip())
                self.assertIn(node.role, ROLES)
                x, y, width, height = node.box
                self.assertGreaterEqual(min(width, height), 14)
                if node.role not in ("list", "list item"):
                    self.assertTrue(node.description.strip(), "no help text")

    def test_every_control_has_a_name_a_role_and_a_help_text(self):
        editor = self.open(move(10, 20), step("click"), step("section", text="One"))
        self.assert_described(editor)

    def test_so_has_every_control_of_every_kinds_inspector(self):
        editor = self.open(move(1, 2), step("type"), step("shortcut"), step("switchApp"),
                           step("wait"), step("section"))
        names = {
            "1": ["Target X", "Target Y", "Duration", "Pause", "Pick on screen"],
            "2": ["Text", "Duration", "Pause"],
            "3": ["Shortcut", "Pause"],
            "4": ["Choose app…", "Center window", "Pause"],
            "5": ["Pause"],
            "Section": ["Title"],
        }
        for row, controls in names.items():
            editor.click(editor.row(row))
            editor.wait(lambda: editor.root.all(name="Delete Step"), "the inspector")
            for control in controls:
                with self.subTest(row=row, control=control):
                    editor.wait(lambda: editor.root.all(name=control), control)
            self.assert_described(editor)

    def test_the_step_list_reads_its_rows(self):
        editor = self.open(step("section", text="One"), move(10, 20), step("click"),
                           step("wait", pauseAfter=2.0))
        self.assertEqual(editor.list.name, "Steps")
        self.assertEqual(editor.rows, ["One, 3.6s", "1, Move to (10, 20), 1.3s", "2, Click, 0.3s",
                                       "3, Wait 2.0s, 2.0s"])

    def test_the_selected_row_is_told(self):
        editor = self.open(step("click"), step("hold"))
        editor.click(editor.row("2"))
        editor.wait(lambda: editor.row("2").has("selected"), "the selected row")
        self.assertFalse(editor.row("1").has("selected"))
        editor.key("Up")
        editor.wait(lambda: editor.row("1").has("selected", "focused"), "the row above")

    def test_the_canvas_tells_the_selected_target(self):
        editor = self.open(move(400, 300), step("click"))
        editor.click(editor.row("1"))
        editor.wait(lambda: editor.canvas.description == "Target 1 at (400, 300)", "the target")
        editor.canvas.act("SetFocus")
        editor.wait(lambda: editor.canvas.has("focused"), "the focus on the canvas")
        editor.key("Right")
        editor.wait(lambda: editor.canvas.description == "Target 1 at (401, 300)", "the nudge")

    def test_the_scrubber_tells_and_takes_a_time(self):
        editor = self.open(step("wait", pauseAfter=10.0))
        slider = editor.find("slider", "Time")
        self.assertEqual(slider.value, 0)
        slider.act("Increase")
        editor.wait(lambda: slider.value > 0, "a later time")

    def test_the_tab_key_reaches_every_control_and_comes_back(self):
        editor = self.open(move(10, 20), step("click"))
        editor.click(editor.row("1"))
        # What is disabled is passed over, and the list is one stop whatever its rows.
        wanted = {
            node.name
            for node in self.focusable(editor)
            if node.has("enabled") and node.role != "list item"
        }
        first = self.focused(editor)
        seen = set()
        for _ in range(60):
            before = self.focused(editor)
            editor.key("Tab")
            editor.wait(lambda: self.focused(editor) != before, f"the focus to leave {before}")
            seen.add(self.focused(editor))
            if self.focused(editor) == first:
                break
        self.assertEqual(self.focused(editor), first, "Tab comes round")
        self.assertEqual(wanted - seen, set())

    def focused(self, editor):
        """The name of the control with the focus. A list's current row counts as in focus too."""
        held = [n for n in editor.root.walk(True) if n.has("focused") and n.role != "list item"]
        return held[-1].name if held else ""


class Actions(EditorTest):
    def test_pressing_add_click_adds_a_step(self):
        editor = self.open(move(10, 20))
        button = editor.find("push button", "Add Click")
        self.assertIn("Press", button.actions)
        button.act("Press")
        editor.wait_rows("1, Move", "2, Click")
        self.assert_steps(editor, "kind", ["move", "click"])

    def test_play_and_magnify_answer_to_actions(self):
        editor = self.open(step("wait", pauseAfter=60.0))
        editor.find("push button", "Play").act("Press")
        editor.wait(lambda: editor.find("slider", "Time").value > 0, "time to pass")
        editor.find("push button", "Pause").act("Press")
        editor.find("push button", "Play")
        box = editor.find("check box", "Magnify the canvas 4× (Z)")
        box.act("Toggle")
        editor.wait(lambda: box.has("checked"), "the magnifier")


if __name__ == "__main__":
    main()
